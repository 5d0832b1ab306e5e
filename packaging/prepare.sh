# shellcheck shell=bash
# For run.sh and test.sh to source.

# Removes what was built in the folder before the sources were moved or copied: it refers to where
# they were, and CMake goes no further when it sees that.
remove_moved_build() {
  local cache=$1/CMakeCache.txt
  if [[ -e $cache && ! $(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$cache") -ef . ]]; then
    rm -rf "$1"
  fi
}

can_be_root() {
  ((EUID == 0)) || command -v sudo >/dev/null
}

as_root() {
  if ((EUID == 0)); then "$@"; else sudo "$@"; fi
}

# Whether the package is one of `optional` and apt's lists, where it has any, are without it.
can_do_without() {
  [[ " ${optional[*]} " == *" $1 "* && $(apt-cache madison g++) && ! $(apt-cache madison "$1") ]]
}

could_not_install() {
  echo "These packages are missing and could not be installed: $*" >&2
  exit 1
}

# Installs the Debian packages that building and playing the game takes, and those named as
# arguments. Without fonts-dejavu-core a bare machine would show menus in a typewriter's typeface;
# without qt6-wayland there is no window in a Wayland session that has no X server beside it.
# Those in `optional` are installed too, but for those that Debian does not have: `unavailable` has
# these afterwards.
optional=()
unavailable=()
install_packages() {
  local needed=(
    g++ cmake ninja-build qt6-base-dev qt6-wayland
    fonts-dejavu-core fonts-liberation cups-client
    "$@" "${optional[@]}"
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

  if can_be_root; then as_root apt-get update || could_not_install "${missing[@]}"; fi
  local obtainable=()
  for package in "${missing[@]}"; do
    if can_do_without "$package"; then unavailable+=("$package"); else obtainable+=("$package"); fi
  done
  if ((${#obtainable[@]} == 0)); then return; fi

  if ! can_be_root; then
    {
      echo 'Some packages are missing. This installs them, with the password of root:'
      echo "    su -c 'apt-get update && apt-get install --no-install-recommends ${obtainable[*]}'"
    } >&2
    exit 1
  fi
  # Nobody is there to be asked: the machine's own settings stay as they are.
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
    -o Dpkg::Options::=--force-confdef -o Dpkg::Options::=--force-confold "${obtainable[@]}" ||
    could_not_install "${obtainable[@]}"
}
