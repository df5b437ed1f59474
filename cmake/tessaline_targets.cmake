# How every target of the project is built: language level, warnings, floating point rules, sanitizers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_STANDARD_REQUIRED ON)

add_library(tessaline_flags INTERFACE)
target_include_directories(tessaline_flags INTERFACE ${PROJECT_SOURCE_DIR})
# A fused multiply-add rounds once instead of twice, so the text of a number would depend on the processor.
target_compile_options(tessaline_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  # g++ 12 sees overlapping copies in every `"literal" + string` once it inlines the library (its bug 105651).
  target_compile_options(tessaline_flags INTERFACE -Wno-restrict)
endif()

# One build serves the sanitized tests and the fuzz targets: the rooms count where they were for libFuzzer, and the
# tests, which do not count, only link the counters.
set(for_the_fuzzer)
if(TESSALINE_SANITIZE)
  target_compile_options(tessaline_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tessaline_flags INTERFACE -fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
    set(for_the_fuzzer -fsanitize=fuzzer-no-link)
  endif()
endif()

if(TESSALINE_COVERAGE)
  target_compile_options(tessaline_flags INTERFACE --coverage)
  target_link_options(tessaline_flags INTERFACE --coverage)
endif()

# tessaline_room(NAME LINK TARGET... [FOLDERS FOLDER...]): a static library of every .cpp of the current folder and of
# the folders named. A room links only what it may include, so a forbidden include fails to compile or to link.
function(tessaline_room name)
  cmake_parse_arguments(room "" "" "LINK;FOLDERS" ${ARGN})
  set(patterns ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  foreach(folder ${room_FOLDERS})
    list(APPEND patterns ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  if(sources)
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC tessaline_flags ${room_LINK})
    target_compile_options(${name} PRIVATE ${for_the_fuzzer})
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE tessaline_flags ${room_LINK})
  endif()
endfunction()

# tessaline_test(NAME LABEL LINK TARGET... [FOLDERS FOLDER...]): one GoogleTest program of every *_test.cpp (and *.c,
# and the helper *.cpp files beside them) of the current folder and the folders named; LABEL is the ctest label.
function(tessaline_test name label)
  cmake_parse_arguments(test "" "" "LINK;FOLDERS" ${ARGN})
  set(patterns ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.c)
  foreach(folder ${test_FOLDERS})
    list(APPEND patterns ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.c)
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
  if(sources)
    add_executable(${name} ${sources})
    target_link_libraries(${name} PRIVATE tessaline_flags ${test_LINK} own_settings GTest::gmock)
    # What is tested is optimised; optimising the tests themselves would only lengthen the build.
    target_compile_options(${name} PRIVATE -O0)
    # Half of what a test takes to compile is these two.
    target_precompile_headers(${name} PRIVATE
      "$<$<COMPILE_LANGUAGE:CXX>:<gtest/gtest.h$<ANGLE-R>>" "$<$<COMPILE_LANGUAGE:CXX>:<gmock/gmock.h$<ANGLE-R>>")
    if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
      # Else a compiler cache would give objects that refuse a precompiled header of the same bytes.
      target_compile_options(${name} PRIVATE "SHELL:-Xclang -fno-pch-timestamp")
    endif()
    target_compile_definitions(${name} PRIVATE TESSALINE_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 120
      PROPERTIES LABELS ${label} TIMEOUT 600)
  endif()
endfunction()
