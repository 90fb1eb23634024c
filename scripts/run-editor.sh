#!/usr/bin/env bash
# Installs what is missing, builds, and starts the editor on the bundled
# sample data in data/ (found next to the build, with no option).
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_missing_packages
build_all

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
    echo "Loomwright is built, but there is no display to show it on (DISPLAY and WAYLAND_DISPLAY are unset): run this on a desktop or under xvfb-run." >&2
    exit 1
fi
say "Starting $BUILD_DIR/bin/loomwright"
exec "$BUILD_DIR/bin/loomwright"
