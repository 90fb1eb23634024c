#!/usr/bin/env bash
# Builds every core suite and the tool's suite with clang's address and
# undefined-behaviour sanitizers into build-sanitized/ and runs them all
# through CTest; any report fails the run. CI runs this after the README's
# test command.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

SANITIZED_DIR="${LOOMWRIGHT_SANITIZED_DIR:-$REPO_ROOT/build-sanitized}"
# The standard library's checked mode makes an index past a vector's size
# abort where it happens: AddressSanitizer alone cannot see one that stays
# within the vector's capacity. The vector annotations let it see reads past
# the size through pointers too.
SANITIZER_FLAGS="-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer"
SANITIZER_FLAGS+=" -D_GLIBCXX_ASSERTIONS -D_GLIBCXX_SANITIZE_VECTOR"

# Only this run needs clang and its sanitizer runtimes, so they stay out of
# the README's list of build packages.
SANITIZER_PACKAGES=(clang libclang-rt-14-dev)
PACKAGES+=("${SANITIZER_PACKAGES[@]}")
install_missing_packages

# A folder configured earlier with another compiler keeps it in its cache
# whatever CXX says, so such a cache is dropped and made anew.
cache="$SANITIZED_DIR/CMakeCache.txt"
if [ -f "$cache" ] && ! grep -q '^CMAKE_CXX_COMPILER:[A-Z]*=.*clang++' "$cache"; then
    say "Dropping the cache of $SANITIZED_DIR, made with another compiler"
    rm -rf "$cache" "$SANITIZED_DIR/CMakeFiles"
fi

say "Configuring the sanitized build into $SANITIZED_DIR"
CC=clang CXX=clang++ cmake -S "$REPO_ROOT" -B "$SANITIZED_DIR" -G Ninja \
    -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_CXX_COMPILER=clang++ \
    -DLOOMWRIGHT_BUILD_GUI=OFF \
    -DLOOMWRIGHT_BUILD_BENCHMARKS=OFF \
    -DCMAKE_CXX_FLAGS="$SANITIZER_FLAGS" \
    >/dev/null
# Everything this configuration has: each core suite, whatever suites have
# been added, and the tool with its suite.
say "Building the core and tool suites"
cmake --build "$SANITIZED_DIR" --parallel "$(nproc)"

# Leaks are reported at every exit, the tool's included: tool_tests runs the
# loomwright-tool of this build, which inherits these options.
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1:check_initialization_order=1:strict_init_order=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
say "Running every suite under the sanitizers"
# The format check reads sources only; the README's test command runs it.
ctest --test-dir "$SANITIZED_DIR" --output-on-failure --parallel "$(nproc)" \
    --exclude-regex '^Format\.'
