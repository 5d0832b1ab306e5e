#!/usr/bin/env bash
# Installs what is missing and checks everything there is to check. Goes on after a failure, so
# that one run tells all of them, and then ends with exit status 1.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. packaging/prepare.sh

# Of clang and its tools: the latest that Debian 12 and 13 both have, so that each finds the same.
clang=19

formatting() {
  find src tests bench packaging \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 "clang-format-$clang" --dry-run -Werror
}

build_and_test() {
  remove_moved_build "build/$1"
  cmake --preset "$1" && cmake --build --preset "$1" &&
    ctest --preset "$1" --parallel "$(nproc)"
}

# With the standard library's assertions. Several source files are compiled as one, which saves
# reading the toolkit's headers for each of them; the release build takes each by itself.
build_and_test_with_clang() {
  local build=build/$1
  shift
  remove_moved_build "$build"
  cmake -S . -B "$build" -G Ninja -DCMAKE_CXX_COMPILER="clang++-$clang" -DCMAKE_UNITY_BUILD=ON \
    -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG='-O1 -D_GLIBCXX_ASSERTIONS' \
    -DTESSORO_STRICT=ON -DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON "$@" &&
    cmake --build "$build" &&
    ctest --test-dir "$build" --no-tests=error --output-on-failure --parallel "$(nproc)"
}

# Goes over the source files as they were put together for clang++. By this word in their path the
# static analyzer knows that it has to look into what they include. clang-tidy also counts the
# warnings in the system's headers, which it does not show.
unified=UnifiedSource
tidy() {
  find "build/$unified/CMakeFiles"/{game,window,tessoro}.dir/Unity -name '*.cxx' -print0 |
    xargs -0 -n 1 -P "$(nproc)" "clang-tidy-$clang" --quiet -p "build/$unified" 2>&1 |
    sed -E '/^[0-9]+ warnings? generated\.$/d'
}

failed=()
check() {
  local name=$1
  shift
  printf '\n== %s\n' "$name"
  "$@" || failed+=("$name")
}

# The same with a check that takes the package.
left_out=()
check_with() {
  local package=$1
  shift
  if [[ " ${unavailable[*]} " == *" $package "* ]]; then
    left_out+=("$1 (Debian has no $package here)")
  else
    check "$@"
  fi
}

optional=("clang-$clang" "clang-format-$clang" "clang-tidy-$clang")
install_packages libgtest-dev libbenchmark-dev libxcb1-dev xvfb xdotool poppler-utils cups-daemon \
  qt6-base-private-dev dpkg-dev file lintian desktop-file-utils appstream devscripts

check_with "clang-format-$clang" 'formatting' formatting
check 'release build and tests' build_and_test release
check 'Debian package' packaging/check-package.sh
check_with "clang-$clang" 'clang++ build and tests' \
  build_and_test_with_clang "$unified"
check_with "clang-$clang" 'clang++ build and tests without Qt' \
  build_and_test_with_clang no-window -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON
check_with "clang-tidy-$clang" 'clang-tidy' tidy
check 'build and tests under AddressSanitizer and UndefinedBehaviorSanitizer' build_and_test sanitize

echo
if ((${#left_out[@]})); then printf 'Left out: %s\n' "${left_out[@]}"; fi
if ((${#failed[@]})); then
  printf 'FAILED: %s\n' "${failed[@]}"
  exit 1
fi
echo "Everything${left_out:+ else} passed."
