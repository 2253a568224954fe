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
    fi
    if ! command -v apt-get >/dev/null || { [ -n "$as_root" ] && ! command -v sudo >/dev/null; }; then
        say "Missing, and no way to install them here: $missing"
        say "Going on without: the build will say what it cannot do without."
        return 0
    fi
    say "Installing: $missing"
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq update || say "The list of packages could not be renewed."
    # unquoted on purpose: words
    if ! $as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y --no-install-recommends $missing >/dev/null; then
        say "Could not be installed: $(missing_packages)"
        say "Going on without: the build will say what it cannot do without."
    fi
}

# configure PRESET FOLDER [cmake argument...]: once, and again when the arguments change; without any, as it stands.
configure() {
    local preset=$1 folder=$top/$2
    shift 2
    if [ -f "$folder/build.ninja" ] && { [ $# -eq 0 ] || [ "$*" = "$(cat "$folder/configured-with" 2>/dev/null)" ]; }; then
        return 0
    fi
    say "Configuring $preset"
    mkdir -p "$folder"
    if ! (cd "$top" && cmake --preset "$preset" "$@") >"$folder/configure.log" 2>&1; then
        cat "$folder/configure.log"
        return 1
    fi
    printf '%s\n' "$*" >"$folder/configured-with"
}

# build FOLDER [target...]
build() {
    local folder=$1
    shift
    say "Building in $folder/"
    cmake --build "$top/$folder" ${1:+--target "$@"}
}
