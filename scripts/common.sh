# Sourced by the other scripts: the project's root, packages, configuring and building.

set -euo pipefail
started_in=$PWD
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

# If ccache is installed, clones and work trees share compiled files.
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1

say() { printf '%s\n' "toolvane: $*"; }

# packages_of SECTION…: the package names in these sections of the one list.
packages_of() {
    awk -v wanted=" $* " '
        /^\[/ { section = substr($0, 2, index($0, "]") - 2); next }
        { sub(/#.*/, ""); if (NF && index(wanted, " " section " ")) print $1 }
    ' packaging/debian-packages.txt
}

# install_packages SECTION…: installs what is missing, with sudo if not root.
install_packages() {
    local missing=() package
    for package in $(packages_of "$@"); do
        dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed \
            || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "installing ${#missing[@]} packages that are missing: ${missing[*]}"
    local become=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            say "run this as root, or install sudo, so that the packages can be installed" >&2
            exit 69
        }
        become=(sudo)
    fi
    "${become[@]}" apt-get update -q
    "${become[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# build PRESET [TARGET…]
build() {
    local preset=$1
    shift
    say "building ($preset)"
    local output
    output=$(cmake --preset "$preset" 2>&1) || {
        printf '%s\n' "$output" >&2
        exit 1
    }
    cmake --build --preset "$preset" ${1:+--target "$@"}
}

# on_virtual_display COMMAND…: runs it on a separate X server, which ends with it.
on_virtual_display() {
    xvfb-run --auto-servernum --server-args '-screen 0 1600x1000x24' "$@"
}
