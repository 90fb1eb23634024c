#!/usr/bin/env bash
# Builds the core suites with the address and undefined-behaviour sanitizers
# into build-sanitized/ and runs them; any report fails the run. CI runs this
# after the README's test command.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

SANITIZED_DIR="$REPO_ROOT/build-sanitized"
SANITIZED_SUITES=(undo_tests operations_tests app_tests dialogs_tests)

install_missing_packages
say "Configuring the sanitized build into $SANITIZED_DIR"
cmake -S "$REPO_ROOT" -B "$SANITIZED_DIR" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
    -DLOOMWRIGHT_BUILD_GUI=OFF \
    -DCMAKE_CXX_FLAGS="-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer" \
    >/dev/null
say "Building ${SANITIZED_SUITES[*]}"
cmake --build "$SANITIZED_DIR" --parallel "$(nproc)" --target "${SANITIZED_SUITES[@]}"

export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
for suite in "${SANITIZED_SUITES[@]}"; do
    say "Running $suite under the sanitizers"
    "$SANITIZED_DIR/bin/$suite" --gtest_brief=1
done
