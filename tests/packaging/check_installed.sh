#!/bin/sh
# Installs the build into a prefix of its own, plays from there, and builds a host against it.
#
#   check_installed.sh CMAKE BUILD-DIRECTORY EXAMPLE
set -eu
cmake=$1
build=$2
example=$3
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix

fail() {
    echo "$*" >&2
    exit 1
}

# quietly COMMAND... - shows the command's output only if it fails
quietly() {
    "$@" >"$work/log" 2>&1 || {
        cat "$work/log" >&2
        fail "failed: $*"
    }
}

# play PLAYER DIRECTORY - writes the same three frames whoever plays
play() {
    (cd / && quietly "$1" "$example" --at 2024-03-05T09:41:27 --frames 3 --output "$2")
}

install_tree() {
    quietly "$cmake" --install "$build" --prefix "$work/first"
    # The tree must run wherever it is put.
    mv "$work/first" "$prefix"
    for path in bin/clock_player lib/clock-player/image/ClockType/picbutton1.png \
        lib/clock-player/plugins/libclock_plugin.so.1 include/clock-player/hnode.h \
        share/doc/clock-player/examples/station.xml share/man/man1/clock_player.1.gz; do
        [ -f "$prefix/$path" ] || fail "not installed: $path"
    done
    [ "$(readlink "$prefix/bin/clock_player")" = ../lib/clock-player/bin/clock_player ] ||
        fail "bin/clock_player is no relative link into the tree"
}

# The installed programs must not find their library, nor the plugin its, in the build.
check_search_paths() {
    ldd "$prefix/lib/clock-player/bin/clock_player" | grep -q "=> $prefix/lib/clock-player/" ||
        fail "the installed player does not use the installed liblw_host"
    for file in "$prefix"/lib/clock-player/bin/* "$prefix"/lib/clock-player/plugins/* \
        "$prefix"/lib/clock-player/lib/*; do
        # shellcheck disable=SC2016
        if readelf -d "$file" | grep -E 'R(UN)?PATH' | grep -qv '\[\$ORIGIN/\.\./lib\]'; then
            fail "$file looks for libraries outside its tree"
        fi
    done
}

compare_frames() {
    play "$build/bin/clock_player" "$work/built"
    play "$prefix/bin/clock_player" "$work/installed"
    [ "$(find "$work/built" -name '*.png' | wc -l)" = 3 ] || fail "not three frames"
    diff -r "$work/built" "$work/installed" || fail "the installed player draws other frames"
}

build_host() {
    quietly "$cmake" -G Ninja -S "$here/host_project" -B "$work/host" -DCMAKE_PREFIX_PATH="$prefix"
    quietly "$cmake" --build "$work/host"
    grep -q "$prefix/lib/cmake" "$work/host/CMakeCache.txt" ||
        fail "another clock-player was found"
    quietly "$work/host/small_host" "$work/frame.png"
    [ -s "$work/frame.png" ] || fail "the host wrote no frame"
}

install_tree
check_search_paths
compare_frames
build_host
