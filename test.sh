#!/usr/bin/env bash
# Installs what is missing and checks everything there is to check. Goes on after a failure, so
# that one run tells all of them, and then ends with exit status 1.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. packaging/install-packages.sh

formatting() {
  find src tests bench \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 clang-format --dry-run -Werror
}

build_and_test() {
  cmake --preset "$1" && cmake --build --preset "$1" &&
    ctest --preset "$1" --no-tests=error --parallel "$(nproc)"
}

# Unoptimised, which is quicker and has the standard library's assertions.
build_and_test_without_window() {
  cmake -S . -B build/no-window -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTESSORO_STRICT=ON \
    -DCMAKE_CXX_FLAGS=-D_GLIBCXX_ASSERTIONS \
    -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON -DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON &&
    cmake --build build/no-window &&
    ctest --test-dir build/no-window --no-tests=error --output-on-failure --parallel "$(nproc)"
}

# clang-tidy also counts the warnings in the system's headers, which it does not show.
tidy() {
  find src -name '*.cpp' -print0 |
    xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p build/release 2>&1 |
    sed -E '/^[0-9]+ warnings? generated\.$/d'
}

failed=()
check() {
  local name=$1
  shift
  printf '\n== %s\n' "$name"
  "$@" || failed+=("$name")
}

install_packages libgtest-dev libbenchmark-dev libxcb1-dev xvfb xdotool \
  poppler-utils printer-driver-cups-pdf \
  clang-format clang-tidy

check 'formatting' formatting
check 'release build and tests' build_and_test release
check 'build and tests without Qt' build_and_test_without_window
check 'clang-tidy' tidy
check 'build and tests under AddressSanitizer and UndefinedBehaviorSanitizer' build_and_test sanitize

echo
if ((${#failed[@]})); then
  printf 'FAILED: %s\n' "${failed[@]}"
  exit 1
fi
echo 'Everything passed.'
