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

# play PLAYER DIRECTORY - writes three frames
play() {
    (cd / && quietly "$1" "$example" --at 2024-03-05T09:41:27 --frames 3 --output "$2")
}

install_tree() {
    quietly "$cmake" --install "$build" --prefix "$work/first"
    # The tree must run wherever it is put.
    mv "$work/first" "$prefix"
    for path in bin/clock_player lib/clock-player/image/ClockType/picbutton1.png \
        lib/clock-player/plugins/libclock_plugin.so.1 include/clock-player/hnode.h \
        share/doc/clock-player/examples/station.xml share/man/man1/clock_player.1.gz \
        share/doc/clock-player/program.rng share/doc/clock-player/integrating.md \
        share/bash-completion/completions/clock_player \
        share/bash-completion/completions/clock_tool; do
        [ -f "$prefix/$path" ] || fail "not installed: $path"
    done
    [ "$(readlink "$prefix/bin/clock_player")" = ../lib/clock-player/bin/clock_player ] ||
        fail "bin/clock_player is not a relative link into the tree"
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

# The commands of docs/integrating.md under "A complete program".
commands() {
    sed -n '/^## A complete program/,/^## /p' "$here/../../docs/integrating.md" |
        sed -n "/^\`\`\`sh\$/,/^\`\`\`\$/p" | sed '1d;$d'
}

# As the page says, in an empty folder, with the installed sources; then installed elsewhere.
build_host() {
    mkdir "$work/host"
    for file in small_host.cpp CMakeLists.txt; do
        cp "$prefix/share/doc/clock-player/examples/$file" "$work/host"
    done
    commands >"$work/host/commands"
    (cd "$work/host" && quietly env CMAKE_PREFIX_PATH="$prefix" CMAKE_GENERATOR=Ninja sh -e commands)
    grep -q "$prefix/lib/cmake" "$work/host/build/CMakeCache.txt" ||
        fail "another clock-player was found"
    check_host_frames "$work/host/frames"
    quietly "$cmake" --install "$work/host/build" --prefix "$work/moved"
    mkdir "$work/frames"
    (cd / && quietly "$work/moved/bin/small_host" \
        "$prefix/lib/clock-player/plugins/libclock_plugin.so.1" "$work/host/glyphs" "$work/frames")
    check_host_frames "$work/frames"
}

# check_host_frames DIRECTORY - three of each kind, each with a picture of its own
check_host_frames() {
    [ "$(find "$1" -name '*_[123].png' | wc -l)" = 9 ] || fail "not three frames of each kind"
    [ "$(md5sum "$1"/*.png | cut -d ' ' -f 1 | sort -u | wc -l)" = 9 ] || fail "frames are equal"
    # An empty picture clock is a rectangle of one colour.
    [ "$(wc -c <"$1/picture_1.png")" -gt 2000 ] || fail "the picture clock is empty"
}

install_tree
check_search_paths
compare_frames
build_host
