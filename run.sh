#!/usr/bin/env bash
# Installs what is missing, builds the game and starts it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. packaging/prepare.sh

if ! mkdir -p build 2>/dev/null || [[ ! -w build ]]; then
  echo "The game is built in $PWD/build, which cannot be written: copy the sources to where it can." >&2
  exit 1
fi
# shellcheck disable=SC2119
install_packages
remove_moved_build build/release
if [[ ! -e build/release/tessoro ]]; then echo 'Building the game.' >&2; fi
# What CMake finds is of no interest to a player; what it misses goes to standard error.
cmake --preset release >/dev/null
cmake --build --preset release --target tessoro -- --quiet |
  sed '/^ninja: no work to do\.$/d'
exec build/release/tessoro
