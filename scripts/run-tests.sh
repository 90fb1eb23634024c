#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole test suite through
# CTest. The gui tests use Qt's offscreen platform and need no display.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_missing_packages
build_all

say "Running the tests"
ctest --test-dir "$BUILD_DIR" --output-on-failure --parallel "$(nproc)"
