# compile(SOURCE STATUS OUTPUT): compiles the text as C++ with the include paths in the file PATHS, and keeps nothing.
file(STRINGS ${PATHS} lines)
set(include_paths)
foreach(line ${lines})
  list(APPEND include_paths -I${line})
endforeach()

string(RANDOM LENGTH 12 run)
set(source_file ${PATHS}.${run}.cpp)

function(compile source status output)
  file(WRITE ${source_file} "${source}")
  execute_process(COMMAND ${COMPILER} -std=c++20 -fsyntax-only -Wall -Wextra -Werror ${include_paths} ${source_file}
    RESULT_VARIABLE result ERROR_VARIABLE errors OUTPUT_QUIET)
  file(REMOVE ${source_file})
  set(${status} ${result} PARENT_SCOPE)
  set(${output} "${errors}" PARENT_SCOPE)
endfunction()
