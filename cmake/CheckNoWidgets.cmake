# cmake -DPROGRAM=path -P CheckNoWidgets.cmake: fails when the program loads
# Qt Widgets or Qt PrintSupport, which would mean a logic library reached
# for a window.
execute_process(COMMAND ldd ${PROGRAM} OUTPUT_VARIABLE linked RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "ldd could not read ${PROGRAM}")
endif()
string(REGEX MATCHALL "libQt6(Widgets|PrintSupport)[^ \t\n]*" forbidden "${linked}")
list(REMOVE_DUPLICATES forbidden)
if(forbidden)
  message(FATAL_ERROR "${PROGRAM} links ${forbidden}")
endif()
message(STATUS "${PROGRAM} links neither Qt Widgets nor Qt PrintSupport")
