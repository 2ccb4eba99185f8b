# Runs one session script and checks its exit status against the script's first line.
file(STRINGS ${SCRIPT} first_line LIMIT_COUNT 1)
set(expected 0)
if(first_line MATCHES "^# expect exit ([0-9]+)")
  set(expected ${CMAKE_MATCH_1})
endif()
execute_process(COMMAND ${DISPATCH} session ${SCRIPT}
                RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT status EQUAL expected)
  message(FATAL_ERROR "exit ${status}, expected ${expected}\n${out}\n${err}")
endif()
