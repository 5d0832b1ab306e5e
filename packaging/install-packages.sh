# shellcheck shell=bash
# For run.sh and test.sh to source.

# Installs the Debian packages that building and playing the game takes, and those named as
# arguments. Without fonts-dejavu-core a bare machine would show menus in a typewriter's typeface;
# without qt6-wayland there is no window in a Wayland session that has no X server beside it.
install_packages() {
  local needed=(
    g++ cmake ninja-build qt6-base-dev qt6-wayland
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

  # Nobody is there to be asked: the machine's own settings stay as they are.
  local install=(apt-get install -y --no-install-recommends
    -o Dpkg::Options::=--force-confdef -o Dpkg::Options::=--force-confold "${missing[@]}")
  local as_root=()
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      {
        echo 'Some packages are missing. This installs them, with the password of root:'
        echo "    su -c 'apt-get update && apt-get install --no-install-recommends ${missing[*]}'"
      } >&2
      exit 1
    fi
    as_root=(sudo)
  fi
  if ! { "${as_root[@]}" apt-get update &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive "${install[@]}"; }; then
    echo "These packages are missing and could not be installed: ${missing[*]}" >&2
    exit 1
  fi
}
