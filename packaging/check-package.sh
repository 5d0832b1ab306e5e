#!/usr/bin/env bash
# Makes the Debian package from build/release and checks it: that it is complete, that Debian's own
# tools find no fault in it, and that it comes out the same each time. Tells all that is wrong and
# then ends with exit status 1.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=build/release
SOURCE_DATE_EPOCH=$(date +%s)
export SOURCE_DATE_EPOCH

faults=0
fault() {
  printf 'The package: %s\n' "$*" >&2
  faults=$((faults + 1))
}

# Makes it in the folder.
make_package() {
  rm -f "$1"/tessoro_*.deb
  cpack --preset release -B "$PWD/$1" >"$build/cpack.log" 2>&1 ||
    { cat "$build/cpack.log" >&2; exit 1; }
  echo "$1"/tessoro_*.deb
}

package=$(make_package "$build")
content=$build/package-content
rm -rf "$content"
dpkg-deb --extract "$package" "$content"
program=$content/usr/games/tessoro
metainfo=$content/usr/share/metainfo/org.example.tessoro.metainfo.xml

# Each library of the toolkit that the program links is in a package that it depends on.
depends=$(dpkg-deb --field "$package" Depends)
libraries=$(objdump -p "$program" | awk '$1 == "NEEDED" && $2 ~ /Qt/ { print $2 }')
[[ $libraries ]] || fault 'the program links no Qt'
for library in $libraries; do
  owner=$(dpkg --search "*/$library" | head -n 1)
  grep -qw -- "${owner%%:*}" <<<"$depends" || fault "does not depend on ${owner%%:*} ($library)"
done

lintian --allow-root --fail-on error,warning "$package" || fault 'lintian finds faults'
desktop-file-validate "$content/usr/share/applications/tessoro.desktop" ||
  fault 'the desktop entry is not valid'
# There is no homepage to name.
if appstreamcli validate --no-net --no-color "$metainfo" |
  grep '^[EW]:' | grep -v url-homepage-missing >&2; then
  fault 'the metainfo is not valid'
fi

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
same_version() {
  [[ $2 == *"$3"* ]] || fault "$1 does not tell version $version: $2"
}
revision=$(dpkg-deb --field "$package" Version)
same_version 'the field Version' "$revision" "$version-"
same_version 'the file name' "$package" "tessoro_${revision}_"
same_version 'the changelog' \
  "$(zcat "$content/usr/share/doc/tessoro/changelog.Debian.gz" | head -n 1)" "($revision)"
same_version 'the manual page' \
  "$(zcat "$content/usr/share/man/man6/tessoro.6.gz" | head -n 1)" "\"Tessoro $version\""
same_version 'the metainfo' "$(grep '<release ' "$metainfo")" "version=\"$version\""
same_version 'the About box' \
  "$(grep -o 'TESSORO_VERSION=[^ ]*' "$build/compile_commands.json")" "\"$version\\"

# What can be seen in the program; in so small a one fortification and the guards that depend on
# the processor leave no trace, so their options are looked for where it was compiled.
hardening=$(hardening-check "$program" || true)
for feature in 'Position Independent Executable' 'Stack protected' 'Read-only relocations' \
  'Immediate binding'; do
  grep -q " $feature: yes" <<<"$hardening" || fault "is not hardened: $hardening"
done
for option in $(DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --get CPPFLAGS) \
  $(DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --get CXXFLAGS); do
  case $option in
    -D_FORTIFY_SOURCE=* | -fstack-* | -fcf-protection* | -mbranch-protection*)
      if grep '"command":' "$build/compile_commands.json" | grep -vq -- "$option"; then
        fault "is compiled without $option"
      fi
      ;;
  esac
done

# Made again at another time, by someone whose files nobody else may read and whose locale knows
# no letters but ASCII's, which the folder's name goes beyond.
rm -r "$build/packaging/hicolor" "$build"/packaging/*.gz
touch "$build/tessoro"
cmake --build --preset release --target tessoro -- --quiet
elsewhere=$build/café
again=$(umask 077 && LC_ALL=C make_package "$elsewhere")
cmp "$package" "$again" || fault 'is another one each time it is made'

rm -rf "$content" "$elsewhere"
((faults == 0))
