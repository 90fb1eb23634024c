#!/usr/bin/env bash
# Cross-builds everything that needs no Qt for 64-bit Windows with MinGW-w64
# into build-windows/ (the toolkit-free library, its GoogleTest suites and
# loomwright-tool.exe, all linked statically) and runs every suite under Wine
# through CTest, with the Windows tool compared against the Linux one on every
# file-based case. Installs the cross compiler and Wine if they are missing.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

WINDOWS_DIR="$REPO_ROOT/build-windows"
# The Linux tool to compare with is built as the README's commands build it.
install_missing_packages
build_target loomwright-tool

PACKAGES=(g++-mingw-w64-x86-64-posix wine64 googletest)
install_missing_packages

say "Configuring the Windows build into $WINDOWS_DIR"
cmake -S "$REPO_ROOT" -B "$WINDOWS_DIR" -G Ninja \
    --toolchain "$REPO_ROOT/cmake/mingw-w64.cmake" -DCMAKE_BUILD_TYPE=Release \
    -DLOOMWRIGHT_BUILD_GUI=OFF -DLOOMWRIGHT_BUILD_BENCHMARKS=OFF \
    -DLOOMWRIGHT_LINUX_TOOL="$BUILD_DIR/bin/loomwright-tool" >/dev/null
say "Building the library, its suites and loomwright-tool.exe"
cmake --build "$WINDOWS_DIR" --parallel "$(nproc)"

say "Running the suites under Wine"
# Wine's own notes on its surroundings are not the programs' output.
export WINEDEBUG=-all
# Wine's prefix is made once, before the tests race to make it, and one
# Wine server stays up for the whole run: one that quits while the next test
# connects makes that test fail ("recvmsg: Connection reset by peer").
WINE=$(command -v /usr/lib/wine/wine64 wine64 wine | head -n 1)
WINESERVER=$(command -v /usr/lib/wine/wineserver64 wineserver64 wineserver | head -n 1)
"$WINESERVER" --kill 2>/dev/null || true
"$WINESERVER" --persistent
trap '"$WINESERVER" --kill' EXIT
"$WINE" wineboot --init >/dev/null 2>&1 || true
ctest --test-dir "$WINDOWS_DIR" --output-on-failure --parallel "$(nproc)"
