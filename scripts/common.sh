# shellcheck shell=bash
# Shared by run, test, .ci/run and most of scripts/: installs what is missing, configures, builds.
# Sourced with "set -euo pipefail" and the working directory at the top of the tree. Messages go to
# standard error: standard output is for results.

note() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; }

# packages NEED... - the packages of scripts/packages.txt listed for these needs
packages() {
    local need name
    while read -r need name _; do
        case " $* " in *" $need "*) echo "$name" ;; esac
    done <scripts/packages.txt
}

is_installed() {
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null || true) == installed ]]
}

as_root() {
    if ((EUID == 0)); then "$@"; else sudo "$@"; fi
}

# install_packages NEED... - installs missing packages; otherwise needs no network
install_packages() {
    if ! command -v dpkg-query >/dev/null; then
        note "not a Debian system; assuming these are installed: $(packages "$@" | xargs)"
        return
    fi
    local name missing=()
    for name in $(packages "$@"); do
        is_installed "$name" || missing+=("$name")
    done
    ((${#missing[@]})) || return 0
    note "installing ${missing[*]}"
    quietly as_root apt-get update
    quietly as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}"
}

# build DIRECTORY CMAKE-ARGUMENT... -- BUILD-ARGUMENT... - shows the output only on failure
build() {
    local directory=$1 configure=()
    shift
    while (($#)) && [[ $1 != -- ]]; do
        configure+=("$1")
        shift
    done
    (($#)) && shift
    note "building in $directory"
    quietly cmake -G Ninja -S . -B "$directory" "${configure[@]}"
    quietly cmake --build "$directory" "$@"
}

# Qt's major version, from the environment variable CLOCK_QT.
qt=${CLOCK_QT:-5}

# native_build - prints the build directory for this machine
native_build() {
    if [[ $qt == 6 ]]; then echo build-qt6; else echo build; fi
}

# quietly COMMAND... - shows the command's output only if it fails
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" </dev/null >"$log" 2>&1 || status=$?
    ((status == 0)) || cat "$log" >&2
    rm -f "$log"
    return "$status"
}
