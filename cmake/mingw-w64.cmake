# Cross-builds for 64-bit Windows with Debian's MinGW-w64 (posix threads) and
# runs what it builds under Wine. Only what needs no Qt is built: Debian ships
# no Qt for Windows.
#
#   cmake -S . -B build-windows -G Ninja --toolchain cmake/mingw-w64.cmake
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Every program links its runtime in, so that it runs on a Windows machine
# with nothing installed.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# CTest runs the test programs, and test discovery lists them, under Wine.
find_program(LOOMWRIGHT_WINE NAMES wine64 wine PATHS /usr/lib/wine NO_DEFAULT_PATH)
find_program(LOOMWRIGHT_WINE NAMES wine64 wine)
if(LOOMWRIGHT_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${LOOMWRIGHT_WINE})
endif()
