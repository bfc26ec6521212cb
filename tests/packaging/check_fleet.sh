#!/usr/bin/env bash
# Fifty players on this machine, fed by examples/fleet/release: a new program reaches all of them, none
# ever has half of one, a transfer that breaks off leaves the older one, and files that are there do not
# travel again.
#
#   check_fleet.sh TREE PROGRAMS
set -euo pipefail
tree=$1
PATH=$2:$PATH
players=50
command -v rsync >/dev/null || { echo "skipped: no rsync"; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "$*" >&2
    exit 1
}

# The remote shell of the test: the host is this machine.
cat >"$work/shell" <<'END'
#!/bin/sh
shift
exec sh -c "$*"
END
# One that breaks off while files travel.
cat >"$work/broken" <<'END'
#!/bin/sh
shift
sh -c "$*" &
sleep 0.05
kill $! 2>/dev/null
exit 1
END
chmod +x "$work/shell" "$work/broken"
export RSYNC_RSH=$work/shell

# make_export NAME TITLE
make_export() {
    cat >"$work/$1.xml" <<END
<program width="64" height="32"><area x="0" y="0" width="64" height="32"><clock type="digital">
  <attribute key="Id" value="7"/><title display="true" value="$2" fontName="DejaVu Sans" fontSize="8"/>
</clock></area></program>
END
    clock_tool export "$work/$1.xml" "$work/$1" --language en
}

# frame PROGRAM DIRECTORY - what a player shows at one instant
frame() {
    clock_player --use-files "$1" --output "$2" --frames 1 --at 2024-03-05T09:41:27 --language en \
        >/dev/null 2>"$2.errors"
    [[ ! -s $2.errors ]] || fail "a player complains: $(cat "$2.errors")"
    md5sum <"$2/frame_0001.png"
}

# send NAME - to all
send() {
    local player
    for ((player = 1; player <= players; player++)); do
        "$tree/examples/fleet/release" "$work/$1" "host:$work/players/$player"
    done
}

# check_all NAME - every file of every player is of that export
check_all() {
    local player
    for ((player = 1; player <= players; player++)); do
        diff -r "$work/$1" "$work/players/$player/current/" || fail "player $player has other files"
    done
    # What plays from there is what the export shows; a few stand for all, whose bytes are equal.
    local expected
    expected=$(frame "$work/$1/program.xml" "$work/expected")
    for player in 1 25 50; do
        [[ $(frame "$work/players/$player/current/program.xml" "$work/shown") == "$expected" ]] ||
            fail "player $player shows something else"
    done
}

make_export first one
make_export second two
send first
check_all first

# Interrupted: the older release is complete and current.
before=$(readlink "$work/players/1/current")
if RSYNC_RSH=$work/broken "$tree/examples/fleet/release" "$work/second" "host:$work/players/1" \
    >/dev/null 2>&1; then
    fail "a transfer that broke off succeeded"
fi
[[ $(readlink "$work/players/1/current") == "$before" ]] || fail "the link was changed too early"
diff -r "$work/first" "$work/players/1/current/" || fail "the older release was changed"

# Damaged on the way: the same.
cp -r "$work/second" "$work/damaged"
find "$work/damaged/files" -type f | head -n 1 | xargs -I{} sh -c 'echo x >>{}'
if "$tree/examples/fleet/release" "$work/damaged" "host:$work/players/1" >/dev/null 2>&1; then
    fail "a damaged release was accepted"
fi
diff -r "$work/first" "$work/players/1/current/" || fail "a damaged release plays"

send second
check_all second
# All images but that of the title are the same files as before, not copies.
same=$(find "$work/players/50/current/files" -type f -links +1 | wc -l)
all=$(find "$work/players/50/current/files" -type f | wc -l)
((same == all - 1)) || fail "$same of $all images were not sent again"
