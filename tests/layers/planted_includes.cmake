# Plants includes against the direction of dependencies in a scratch tree and runs
# the include check on it: it must fail and name each planted file, line and include,
# and must pass over the includes that go the right way.
#
#   cmake -DCHECK=<check_layers.cmake> -DTREE=<scratch folder> -P planted_includes.cmake

file(REMOVE_RECURSE ${TREE})
file(WRITE ${TREE}/src/host/plain_global.h "#pragma once\n")
file(WRITE ${TREE}/src/session/runner.h "#pragma once\n")
file(WRITE ${TREE}/src/platform/value.h "#pragma once\n")
file(WRITE ${TREE}/src/screen/form.h "#pragma once\n#include <string>\n#include \"platform/value.h\"\n")
file(WRITE ${TREE}/src/parties/customer.cpp
     "#include \"screen/form.h\"\n\n#include \"host/plain_global.h\"\n")
file(WRITE ${TREE}/src/grid/cells.h "#pragma once\n#include \"../session/runner.h\"\n")
file(WRITE ${TREE}/src/platform/controls.h "#pragma once\n  #  include \"screen/form.h\"\n")
file(WRITE ${TREE}/src/host/fine.cpp "#include \"session/runner.h\"\n")

execute_process(COMMAND ${CMAKE_COMMAND} -DSOURCE_DIR=${TREE} -P ${CHECK}
                RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(status EQUAL 0)
  message(FATAL_ERROR "the check passed a tree with includes against the direction\n${err}")
endif()
# The check folds long lines; join them again before looking.
string(REGEX REPLACE "\n +" " " err "${err}")
foreach(needle
        "src/parties/customer.cpp:3: includes \"host/plain_global.h\" from host/"
        "src/grid/cells.h:2: includes \"../session/runner.h\" from session/"
        "src/platform/controls.h:2: includes \"screen/form.h\" from screen/, but platform code may include only from platform/")
  string(FIND "${err}" "${needle}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "the check's report lacks\n  ${needle}\n${err}")
  endif()
endforeach()
foreach(fine "customer.cpp:1:" "src/screen/form.h" "host/fine.cpp" "<string>")
  string(FIND "${err}" "${fine}" at)
  if(NOT at EQUAL -1)
    message(FATAL_ERROR "the check refused an include that goes the right way: ${fine}\n${err}")
  endif()
endforeach()
file(REMOVE_RECURSE ${TREE})
