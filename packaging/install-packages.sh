# shellcheck shell=bash
# For run.sh and test.sh to source.

# Installs the Debian packages that building and playing the game takes, and those named as
# arguments. Without fonts-dejavu-core a bare machine would show menus in a typewriter's typeface.
install_packages() {
  local needed=(
    g++ cmake ninja-build qt6-base-dev
    fonts-dejavu-core fonts-liberation cups-client
    "$@"
  )
  if ! command -v apt-get >/dev/null; then
    echo "Without apt-get, this counts on finding the equivalents of: ${needed[*]}" >&2
    return
  fi

  local missing=() package
  for package in "${needed[@]}"; do
    dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
      missing+=("$package")
  done
  if ((${#missing[@]} == 0)); then return; fi

  local as_root=()
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing, and installing them takes root or sudo: ${missing[*]}" >&2
      exit 1
    fi
    as_root=(sudo)
  fi
  if ! { "${as_root[@]}" apt-get update &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y --no-install-recommends "${missing[@]}"; }; then
    echo "These packages are missing and could not be installed: ${missing[*]}" >&2
    exit 1
  fi
}
