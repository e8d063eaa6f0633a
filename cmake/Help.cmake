# The German manual: HTML pages copied beside the program at build time, so
# that a program started from the build tree finds help/ at once; they are
# installed with the rest of that folder.
file(GLOB help_pages CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/../data/help/*.html
                                       ${CMAKE_CURRENT_LIST_DIR}/../data/help/*.css)
set(help_folder ${HEFTARIUM_RUNTIME_DIR}/help)
set(help_copies)
foreach(page ${help_pages})
  get_filename_component(name ${page} NAME)
  list(APPEND help_copies ${help_folder}/${name})
endforeach()

add_custom_command(
  OUTPUT ${help_copies}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${help_folder}
  COMMAND ${CMAKE_COMMAND} -E copy ${help_pages} ${help_folder}
  DEPENDS ${help_pages}
  COMMENT "Copying the help manual"
  VERBATIM)
add_custom_target(help_manual ALL DEPENDS ${help_copies})
