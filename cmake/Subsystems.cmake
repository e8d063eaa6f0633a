# Every folder of src/ is a logic library heftarium_<folder>, built from the
# files at its top level, and, where it has windows, a window library
# heftarium_<folder>_ui built from its ui/ subfolder. Only the window library
# sees Qt Widgets; whatever links a logic library alone (the cli, the bench)
# cannot reach a widget. A main.cpp belongs to the folder's program, not to
# its libraries. New files join by being there.
function(heftarium_subsystem folder)
  set(dir ${PROJECT_SOURCE_DIR}/src/${folder})
  file(GLOB logic_sources CONFIGURE_DEPENDS ${dir}/*.cpp ${dir}/*.h)
  list(FILTER logic_sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(heftarium_${folder} STATIC ${logic_sources})
  target_include_directories(heftarium_${folder} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(heftarium_${folder} PUBLIC heftarium_policy Qt6::Core)

  file(GLOB window_sources CONFIGURE_DEPENDS ${dir}/ui/*.cpp ${dir}/ui/*.h ${dir}/ui/*.ui)
  list(FILTER window_sources EXCLUDE REGEX "/main\\.cpp$")
  if(window_sources)
    add_library(heftarium_${folder}_ui STATIC ${window_sources})
    target_link_libraries(heftarium_${folder}_ui PUBLIC heftarium_${folder} Qt6::Widgets)
  endif()
endfunction()
