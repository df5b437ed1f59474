# Builds for 64-bit Windows with Debian's MinGW-w64; what is built runs under Wine. The preset "mingw" uses it.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(mingw_triple x86_64-w64-mingw32)
# The compilers with POSIX threads: those of std::thread.
set(CMAKE_C_COMPILER ${mingw_triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingw_triple}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw_triple}-windres)

set(TESSALINE_MINGW_PREFIX "" CACHE PATH "What cmake/windows-libraries has built")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TESSALINE_MINGW_PREFIX)
set(CMAKE_FIND_ROOT_PATH ${TESSALINE_MINGW_PREFIX} /usr/${mingw_triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ZLIB_USE_STATIC_LIBS ON) # an import library stands beside the static one

# A program needs the system's own libraries alone; -static takes the thread library in, which the two flags for the
# runtime of the compiler would leave out. The default stack has 2 MiB. Without a time stamp equal sources give equal bytes.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--stack,8388608 -Wl,--no-insert-timestamp")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine-run ${CMAKE_BINARY_DIR}/wine)
