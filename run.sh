#!/usr/bin/env bash
# Installs what is missing, builds the game and starts it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. packaging/prepare.sh

# Reopen closed standard streams, which the tools below need.
[[ -e /dev/fd/0 ]] || exec </dev/null
[[ -e /dev/fd/1 ]] || exec >/dev/null
[[ -e /dev/fd/2 ]] || exec 2>/dev/null

if ! mkdir -p build 2>/dev/null || [[ ! -w build ]]; then
  echo "The game is built in $PWD/build, which is not writable: copy the sources elsewhere." >&2
  exit 1
fi
# Without fonts-dejavu-core, a machine with no other fonts shows menus in a monospaced one. Without
# qt6-wayland, a Wayland session that has no X server shows no window.
install_packages g++ cmake ninja-build qt6-base-dev qt6-wayland \
  fonts-dejavu-core fonts-liberation cups-client
remove_moved_build build/release
if [[ ! -e build/release/tessoro ]]; then echo 'Building the game.' >&2; fi
# Hide CMake's status output. Its errors go to standard error.
cmake --preset release >/dev/null
cmake --build --preset release --target tessoro -- --quiet |
  sed '/^ninja: no work to do\.$/d'
exec build/release/tessoro
