# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by run and test: installs what is missing and builds. Needs $top, the top of the repository.

say() { printf '%s\n' "-- $*"; }

missing_packages() {
    local package
    for package in $(grep -v '^#' "$top/packaging/debian-packages"); do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || printf '%s ' "$package"
    done
}

install_missing() {
    if ! command -v dpkg-query >/dev/null; then
        say "This is no Debian system: the packages of packaging/debian-packages are taken to be there."
        return 0
    fi
    local missing as_root=
    missing=$(missing_packages)
    [ -n "$missing" ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        as_root=sudo
        command -v sudo >/dev/null || { say "Missing, and neither root nor sudo to install them: $missing"; return 1; }
    fi
    say "Installing: $missing"
    # unquoted on purpose: words
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq update || say "The list of packages could not be brought up to date."
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y --no-install-recommends $missing >/dev/null
}

# build PRESET FOLDER [cmake argument...]
build() {
    local preset=$1 folder=$2
    shift 2
    say "Building $preset in $folder/"
    (cd "$top" && cmake --preset "$preset" "$@" >"/tmp/morvane-cmake.$$" 2>&1 || { cat "/tmp/morvane-cmake.$$"; rm -f "/tmp/morvane-cmake.$$"; exit 1; }
     rm -f "/tmp/morvane-cmake.$$"
     cmake --build "$folder")
}
