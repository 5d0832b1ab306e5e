#!/usr/bin/env bash
# Installs what is missing and checks everything there is to check. Goes on after a failure, so
# that one run reports all of them, and then ends with exit status 1.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. packaging/prepare.sh

# The newest clang that both Debian 12 and 13 ship, so that both report the same.
clang=19

install_tools() {
  install_packages dpkg-dev lintian devscripts desktop-file-utils appstream \
    imagemagick librsvg2-bin xdotool xvfb libbenchmark-dev libxcb1-dev
  if ! dpkg-checkbuilddeps 2>/dev/null; then apt_get build-dep --no-install-recommends .; fi
  local tool
  for tool in "clang-$clang" "clang-format-$clang" "clang-tidy-$clang"; do
    if [[ $(apt-cache madison "$tool" 2>/dev/null) ]]; then install_packages "$tool"; fi
  done
}

formatting() {
  find src tests bench \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 "clang-format-$clang" --dry-run -Werror
}

same_version() {
  local version
  version=$(sed -n 's/^project(tessoro VERSION \([^ ]*\) .*/\1/p' CMakeLists.txt)
  dpkg-parsechangelog --show-field Version | grep -Fx "$version"
}

# Turns the picture that the windows have into an XPM file and compares it with the icon's drawing,
# both on a colour that neither has.
same_icon() {
  local palette=(000000 000080 008000 008080 800000 800080 808000 C0C0C0
    808080 0000FF 00FF00 00FFFF FF0000 FF00FF FFFF00 FFFFFF) digit
  mkdir -p build && {
    echo '/* XPM */ static char *icon[] = { "32 32 17 1", ". c pink",'
    for digit in {0..15}; do printf '"%X c #%s",\n' "$digit" "${palette[digit]}"; done
    sed -n '/ calculator{{/,/}}/s/^ *"/"/p' src/app/pictures.cpp
    echo '};'
  } >build/icon.xpm &&
    rsvg-convert --background-color=pink packaging/icons/hicolor/scalable/apps/tessoro.svg |
    compare -metric AE build/icon.xpm png:- null:
}

# The package is built from its source package in folders under build, since its files end up
# beside the folder of the sources.
package=build/package
package_sources() {
  rm -rf "$package"
  mkdir -p "$package"
  (sources=$PWD && cd "$package" && dpkg-source --build "$sources")
}

# Builds the package in the given folder. Further arguments are those of dpkg-buildpackage.
build_package() {
  local folder=$package/$1
  shift
  mkdir "$folder" &&
    dpkg-source --extract "$package"/tessoro_*.dsc "$folder/tessoro" &&
    (cd "$folder/tessoro" && dpkg-buildpackage --no-sign "$@")
}

# This is also the build in which the tests run at the optimisation that players get. It compiles
# each source file by itself, unlike the builds below.
release() {
  DEB_CXXFLAGS_APPEND=-Werror DEB_BUILD_OPTIONS=terse build_package first
}

# The one fault that the metainfo may have: there is no homepage to name.
metainfo() {
  local faults
  faults=$(appstreamcli validate --no-net --no-color "$1" | grep '^[EW]:' |
    grep -v url-homepage-missing)
  [[ ! $faults ]] || { echo "$faults" >&2; return 1; }
}

# hardening-check fails on more than this: on what only some Debians and processors have, and on
# fortified functions, which so small a program does not call.
hardened() {
  local report feature
  report=$(hardening-check "$1") || true
  for feature in 'Position Independent Executable' 'Stack protected' 'Read-only relocations' \
    'Immediate binding'; do
    grep -q "$feature: yes" <<<"$report" || { echo "$report" >&2; return 1; }
  done
}

packaged_files() {
  local root=$package/root
  dpkg-deb --extract "$package"/first/tessoro_*.deb "$root" &&
    # Debian 12 does not know the tag in debian/lintian-overrides.
    lintian --allow-root --suppress-tags alien-tag --fail-on error,warning \
      "$package"/first/*.changes &&
    desktop-file-validate "$root/usr/share/applications/tessoro.desktop" &&
    metainfo "$root/usr/share/metainfo/org.example.tessoro.metainfo.xml" &&
    hardened "$root/usr/games/tessoro" &&
    PATH=$PWD/$root/usr/games:$PATH debian/tests/press-a-cell
}

reproducible() {
  (umask 077 && DEB_BUILD_OPTIONS='nocheck terse' build_package second --build=binary) || return
  local file
  for file in "$package"/first/*.deb; do cmp "$file" "$package/second/${file##*/}" || return; done
}

# Several source files are compiled as one, which saves reading Qt's headers for each of them.
clang_build() {
  local build=build/$1
  shift
  remove_moved_build "$build"
  cmake -S . -B "$build" -G Ninja -DCMAKE_CXX_COMPILER="clang++-$clang" -DCMAKE_UNITY_BUILD=ON \
    -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG='-O1 -D_GLIBCXX_ASSERTIONS' \
    -DCMAKE_COMPILE_WARNING_AS_ERROR=ON "$@" &&
    cmake --build "$build" &&
    ctest --test-dir "$build" --no-tests=error --output-on-failure --parallel "$(nproc)"
}

# clang-tidy checks the unified source files of the clang build. Its static analyzer looks into the
# .cpp files that these include only if their path contains this word. Its counts of warnings are
# left out, since they include those in system headers, which it does not show.
unified=UnifiedSource
tidy() {
  find "build/$unified/CMakeFiles"/{game,window,tessoro}.dir/Unity -name '*.cxx' -print0 |
    xargs -0 -n 1 -P "$(nproc)" "clang-tidy-$clang" --quiet -p "build/$unified" 2>&1 |
    sed -E '/^[0-9]+ warnings? generated\.$/d'
}

sanitizers() {
  remove_moved_build build/sanitize
  cmake --preset sanitize -DCMAKE_COMPILE_WARNING_AS_ERROR=ON &&
    cmake --build --preset sanitize &&
    ctest --preset sanitize --parallel "$(nproc)"
}

failed=()
check() {
  local name=$1
  shift
  printf '\n== %s\n' "$name"
  "$@" || failed+=("$name")
}

# Skips the check where the tool is missing.
skipped=()
check_with() {
  local tool=$1
  shift
  if command -v "$tool" >/dev/null; then check "$@"; else skipped+=("$1 (needs $tool)"); fi
}

install_tools
check_with "clang-format-$clang" 'formatting' formatting
check 'same version in CMakeLists.txt and debian/changelog' same_version
check 'same picture in the icon and in the windows' same_icon
check 'source package' package_sources
check 'release build and tests' release
check 'packaged files' packaged_files
check 'the same package from another build' reproducible
check_with "clang++-$clang" 'clang++ build and tests' clang_build "$unified"
check_with "clang++-$clang" 'clang++ build and tests without Qt' \
  clang_build no-window -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON \
  -DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON
check_with "clang-tidy-$clang" 'clang-tidy' tidy
check 'build and tests with sanitizers' sanitizers

echo
if ((${#skipped[@]})); then printf 'Skipped: %s\n' "${skipped[@]}"; fi
if ((${#failed[@]})); then
  printf 'FAILED: %s\n' "${failed[@]}"
  exit 1
fi
echo "Everything${skipped:+ else} passed."
