# How every target of the project is built: language level, warnings, floating point rules, sanitizers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_STANDARD_REQUIRED ON)

add_library(tessaline_flags INTERFACE)
# A fused multiply-add rounds once instead of twice, so the text of a number would depend on the processor.
target_compile_options(tessaline_flags INTERFACE "$<$<COMPILE_LANGUAGE:C,CXX>:-Wall;-Wextra;-Wpedantic;-Wshadow;-Wconversion;-Werror;-ffp-contract=off>")
if(WIN32)
  # Windows 7 and later; no macros min and max; printf as the C standard has it, which the compiler then checks it by.
  target_compile_definitions(tessaline_flags INTERFACE WINVER=0x0601 _WIN32_WINNT=0x0601 NOMINMAX
    WIN32_LEAN_AND_MEAN __USE_MINGW_ANSI_STDIO=1)
endif()
# The provider is a shared library too, which shows the calls of the C interface and nothing else.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
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

# Sources for one system alone stand in folders of this name.
if(WIN32)
  set(tessaline_system windows)
else()
  set(tessaline_system posix)
endif()

# tessaline_show(TARGET SCOPE PATH...): who links the target may include what lies at these paths, files or folders from
# the root of the project, and learns no other path: <build>/include/TARGET holds links to them and nothing else. So an
# include of a room that is not linked finds no file.
function(tessaline_show target scope)
  set(shown ${PROJECT_BINARY_DIR}/include/${target})
  foreach(path ${ARGN})
    get_filename_component(folder ${shown}/${path} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${path} ${shown}/${path} SYMBOLIC)
  endforeach()
  target_include_directories(${target} ${scope} ${shown})
endfunction()

# Else a compiler cache would give objects that refuse a precompiled header of the same bytes.
set(precompiled_alike)
if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
  set(precompiled_alike "SHELL:-Xclang -fno-pch-timestamp")
endif()

# tessaline_precompile(ROOM): what nearly every source includes of the standard library is compiled once, for the lowest
# room, and serves all rooms.
function(tessaline_precompile room)
  target_compile_options(${room} PRIVATE ${precompiled_alike})
  if(room STREQUAL text)
    target_precompile_headers(text PRIVATE <algorithm> <array> <functional> <memory> <optional> <span> <string>
      <string_view> <unordered_map> <variant> <vector>)
  else()
    target_precompile_headers(${room} REUSE_FROM text)
  endif()
endfunction()

# tessaline_room(NAME LINK TARGET... [FOLDERS FOLDER...] [SHOW PATH...] [SOURCES FILE...]): a static library of every
# .cpp of the current folder and of the folders named, or of the files named. It shows its folder, or the paths named.
function(tessaline_room name)
  cmake_parse_arguments(room "" "" "LINK;FOLDERS;SHOW;SOURCES" ${ARGN})
  set(sources ${room_SOURCES})
  if(NOT sources)
    set(patterns ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    foreach(folder ${room_FOLDERS})
      list(APPEND patterns ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
    endforeach()
    file(GLOB sources CONFIGURE_DEPENDS ${patterns})
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  endif()
  if(NOT room_SHOW)
    file(RELATIVE_PATH room_SHOW ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
  endif()
  add_library(${name} STATIC ${sources})
  target_link_libraries(${name} PUBLIC tessaline_flags ${room_LINK})
  target_compile_options(${name} PRIVATE ${for_the_fuzzer})
  if(TESSALINE_PRECOMPILE)
    tessaline_precompile(${name})
  endif()
  tessaline_show(${name} PUBLIC ${room_SHOW})
endfunction()

# What is tested is optimised; optimising the tests themselves would only lengthen the build.
set(how_tests_compile -O0 ${precompiled_alike})

# tessaline_test(NAME LABEL LINK TARGET... [FOLDERS FOLDER...]): one GoogleTest program of every *_test.cpp (and *.c,
# and the helper *.cpp files beside them) of the current folder and the folders named, and of folders in them for this
# system alone; LABEL is the ctest label.
function(tessaline_test name label)
  cmake_parse_arguments(test "" "" "LINK;FOLDERS" ${ARGN})
  set(patterns)
  foreach(folder . ${test_FOLDERS})
    foreach(inside . ${tessaline_system})
      list(APPEND patterns ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/${inside}/*.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/${inside}/*.c)
    endforeach()
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
  if(sources)
    add_executable(${name} ${sources})
    tessaline_dialogs(${name})
    target_link_libraries(${name} PRIVATE tessaline_flags tests_shown ${test_LINK} own_settings tests_system GTest::gmock)
    target_compile_options(${name} PRIVATE ${how_tests_compile})
    target_precompile_headers(${name} REUSE_FROM own_settings)
    set(c_sources ${sources})
    list(FILTER c_sources INCLUDE REGEX "\\.c$")
    set_source_files_properties(${c_sources} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    target_compile_definitions(${name} PRIVATE TESSALINE_SOURCE_DIR="${seen_source}"
      PROGRAM_ENDING="${CMAKE_EXECUTABLE_SUFFIX}")
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 120
      PROPERTIES LABELS ${label} TIMEOUT 600)
  endif()
endfunction()
