# COMPILER, PATHS: see compile.cmake. Each header of FOLDERS, which lie in ROOT, compiles by itself, but for those in the
# folders WITHOUT. SOURCES: a file with the names of the room's sources, as seen from the folder ROOM. A header that one
# of them includes before all else was compiled by itself when the room was built; the others are compiled here, and all
# of them where the room is built with a precompiled header (PRECOMPILED), which stands before everything.
include(${CMAKE_CURRENT_LIST_DIR}/compile.cmake)
set(headers)
foreach(folder ${FOLDERS})
  file(GLOB_RECURSE found RELATIVE ${ROOT} ${ROOT}/${folder}/*.h)
  list(APPEND headers ${found})
endforeach()
foreach(folder ${WITHOUT})
  list(FILTER headers EXCLUDE REGEX "^${folder}/")
endforeach()
if(NOT headers)
  message(FATAL_ERROR "no headers in ${FOLDERS}")
endif()

if(NOT PRECOMPILED)
  file(STRINGS ${SOURCES} sources)
  list(FILTER sources INCLUDE REGEX "\\.cpp$") # a source that the build makes stands there with its rule, no file
  foreach(source ${sources})
    cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${ROOM})
    file(STRINGS ${source} first_line REGEX "^[^/]" LIMIT_COUNT 1 ENCODING UTF-8) # after the comments at its head
    if(first_line MATCHES "^#include \"([^\"]+)\"$")
      list(REMOVE_ITEM headers ${CMAKE_MATCH_1})
    endif()
  endforeach()
endif()

set(failed FALSE)
foreach(header ${headers})
  compile("#include \"${header}\"\n" status output)
  if(NOT status EQUAL 0)
    message("does not compile alone: ${header}\n${output}")
    set(failed TRUE)
  endif()
endforeach()
if(failed)
  message(FATAL_ERROR "a header needs others before it")
endif()
