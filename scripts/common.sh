# Shared by the two set-up commands: installs what a Debian 12 machine lacks
# and builds everything into build/ (programs in build/bin/).
set -euo pipefail

REPO_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
BUILD_DIR="$REPO_ROOT/build"

# The compiler, CMake, Qt 6 Widgets, GoogleTest/GoogleMock, Google Benchmark,
# a metric-compatible face for "Arial", and clang-format for the format check.
PACKAGES=(g++ cmake ninja-build pkg-config qt6-base-dev libgtest-dev libgmock-dev
          libbenchmark-dev fonts-liberation clang-format)

say() { printf '==> %s\n' "$*"; }

install_missing_packages() {
    local missing=()
    for package in "${PACKAGES[@]}"; do
        if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
            missing+=("$package")
        fi
    done
    if [ ${#missing[@]} -eq 0 ]; then
        say "All build packages are installed."
        return
    fi
    say "Installing missing packages with apt-get: ${missing[*]}"
    local sudo=""
    if [ "$(id -u)" -ne 0 ]; then
        sudo="sudo"
    fi
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
}

# Configures build/ as build_all does and builds one target of it.
build_target() {
    cmake -S "$REPO_ROOT" -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
    cmake --build "$BUILD_DIR" --parallel "$(nproc)" --target "$1"
}

build_all() {
    say "Configuring into $BUILD_DIR"
    cmake -S "$REPO_ROOT" -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
    say "Building the editor, the tool and the tests"
    cmake --build "$BUILD_DIR" --parallel "$(nproc)"
}
