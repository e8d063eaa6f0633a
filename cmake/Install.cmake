# What `cmake --install` puts where: the two programs, the shipped data
# folder that the first start of every user copies from, and what a Linux
# desktop needs to show the program (menu entry, icon, AppStream data, manual
# page).

set(heftarium_desktop_sources ${PROJECT_SOURCE_DIR}/data/desktop)
set(heftarium_app_id de.quintara.Heftarium)

# The shipped data is everything the build put beside the programs, as one
# folder, so that a new kind of shipped file joins without a rule of its own.
# Left out: the programs themselves, the test and build tools, and what a
# program started from the build folder wrote there as its own data folder.
install(DIRECTORY ${HEFTARIUM_RUNTIME_DIR}/
        DESTINATION ${CMAKE_INSTALL_DATADIR}/Quintara/Heftarium
        REGEX "/heftarium[^/.]*$" EXCLUDE
        REGEX "/test_[^/]*$" EXCLUDE
        REGEX "/Heftarium\\.(log|old)$" EXCLUDE
        REGEX "/(export|import)$" EXCLUDE
        REGEX "-(wal|shm|journal)$" EXCLUDE)

install(FILES ${heftarium_desktop_sources}/${heftarium_app_id}.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${heftarium_desktop_sources}/${heftarium_app_id}.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

configure_file(${heftarium_desktop_sources}/${heftarium_app_id}.metainfo.xml.in
               ${CMAKE_BINARY_DIR}/${heftarium_app_id}.metainfo.xml @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/${heftarium_app_id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# The manual page is written by a small tool from the cli's command table.
set(heftarium_manpage ${CMAKE_BINARY_DIR}/man/heftarium-cli.1)
add_custom_command(
  OUTPUT ${heftarium_manpage}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man
  COMMAND heftarium-build-manpage ${heftarium_manpage} ${HEFTARIUM_RELEASE_DATE}
  DEPENDS heftarium-build-manpage
  COMMENT "Writing the manual page of heftarium-cli"
  VERBATIM)
add_custom_target(manpage ALL DEPENDS ${heftarium_manpage})
install(FILES ${heftarium_manpage} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
