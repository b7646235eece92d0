# cmake -DLRELEASE=<program> -DTS=<file> -DQM=<file> -P ReleaseTranslation.cmake
# Makes the binary form of a translation; a warning is an error.
execute_process(COMMAND ${LRELEASE} -silent -compress ${TS} -qm ${QM}
  OUTPUT_VARIABLE said ERROR_VARIABLE said RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT said STREQUAL "")
  file(REMOVE ${QM})
  message(FATAL_ERROR "${TS}: ${said}")
endif()
