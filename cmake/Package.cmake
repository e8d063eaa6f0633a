# The Debian package, built with `cpack -G DEB` (scripts/package). Its
# version is the project's; the libraries it needs are found by
# dpkg-shlibdeps from the programs themselves.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME heftarium)
set(CPACK_PACKAGE_VENDOR Quintara)
set(CPACK_PACKAGE_CONTACT "Quintara <heftarium@quintara.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Sammlungsdatenbank für eine nummerierte Heftroman-Serie")
set(CPACK_PACKAGE_DESCRIPTION
    "Heftarium verwaltet die Sammlung einer langen, nummerierten Heftroman-Serie: alle Ausgaben in einer Liste, Details, Attribute, Filter, Austausch über .dat-Dateien und Export als Text und HTML. Mitgeliefert ist die Serie Valdorin mit Heftromanen und Taschenbüchern; heftarium-cli bietet dieselbe Logik ohne Fenster für Skripte.")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.quintara.example/heftarium")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt loads these as plugins, which dpkg-shlibdeps can't see: the platform
# plugins to open a window at all.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
# The printed lists use Liberation Mono and a Garamond serif.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation, fonts-ebgaramond")

include(CPack)
