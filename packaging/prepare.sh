# shellcheck shell=bash
# Functions that run.sh and test.sh share.

# Removes a build folder whose sources have been moved or copied since: CMake refuses to use it.
remove_moved_build() {
  local cache=$1/CMakeCache.txt
  if [[ -e $cache && ! $(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$cache") -ef . ]]; then
    rm -rf "$1"
  fi
}

# Runs apt-get as root with the arguments, after "apt-get update". Ends the script if that is not
# possible.
apt_get() {
  local as_root=()
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      {
        echo 'Some packages are missing. This installs them, with the password of root:'
        echo "    su -c 'apt-get update && apt-get $*'"
      } >&2
      exit 1
    fi
    as_root=(sudo)
  fi
  # apt-get must not prompt; locally changed configuration files stay as they are.
  if ! "${as_root[@]}" apt-get update || ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get "$@" -y -o Dpkg::Options::=--force-confdef -o Dpkg::Options::=--force-confold; then
    echo "Packages are missing and could not be installed: apt-get $*" >&2
    exit 1
  fi
}

# Installs the listed Debian packages that are missing.
install_packages() {
  if ! command -v apt-get >/dev/null; then
    echo "There is no apt-get here, so these packages are expected to be installed: $*" >&2
    return
  fi
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
      missing+=("$package")
  done
  if ((${#missing[@]})); then apt_get install --no-install-recommends "${missing[@]}"; fi
}
