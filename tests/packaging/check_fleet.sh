#!/usr/bin/env bash
# Fifty players on this machine, fed by examples/fleet/release: a new program reaches all of them,
# none ever plays half of one, a transfer that breaks off leaves the older one, and files that are
# there do not travel again.
#
#   check_fleet.sh TREE PROGRAMS
set -euo pipefail
tree=$1
PATH=$2:$PATH
players=50
command -v rsync >/dev/null || { echo "skipped: no rsync"; exit 77; }
work=$(mktemp -d)
pids=()
trap 'kill -9 "${pids[@]}" 2>/dev/null || :; wait; rm -rf "$work"' EXIT

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
    sha256sum <"$work/$1/program.xml" | cut -d ' ' -f 1 >"$work/$1.digest"
}

# release NAME PLAYER
release() { "$tree/examples/fleet/release" "$work/$1" "host:$work/players/$2"; }

# send NAME - to all
send() {
    local player
    for ((player = 1; player <= players; player++)); do
        release "$1" "$player"
    done
}

# start PLAYER
start() {
    clock_player --kiosk --watch --use-files "$work/players/$1/current/program.xml" \
        -platform offscreen --language en --status-file "$work/status/$1" 2>"$work/errors/$1" &
    pids+=($!)
}

# told FIELD [PLAYER] - each value in the status of this player, or of all, with its count
told() {
    # shellcheck disable=SC2086 # a pattern
    cat "$work"/status/${2:-*} | sed -n "s/^    \"$1\": \"\?\([^\",]*\)\"\?,\?$/\1/p" |
        sort | uniq -c | xargs
}

# await_all NAME - until all players play it
await_all() {
    local tries=0 wanted
    wanted="$players $(cat "$work/$1.digest")"
    until [[ $(told program_sha256) == "$wanted" ]]; do
        ((tries++ < 200)) || fail "not all players play $1: $(told program_sha256)"
        sleep 0.3
    done
}

# check_all NAME - all have these files, play them, and never had anything else to say
check_all() {
    local player
    for ((player = 1; player <= players; player++)); do
        diff -r "$work/$1" "$work/players/$player/current/" || fail "player $player has other files"
    done
    await_all "$1"
    [[ $(told fault_count) == "$players 0" && $(told notice) == "$players null" ]] ||
        fail "faults or notices: $(cat "$work"/errors/*)"
    [[ $(jobs -pr | wc -l) == "$players" ]] || fail "a player has ended: $(cat "$work"/errors/*)"
}

make_export first one
make_export second two
send first
mkdir "$work/status" "$work/errors"
for ((player = 1; player <= players; player++)); do
    start "$player"
done
check_all first

# Interrupted: the older release is complete and current.
before=$(readlink "$work/players/1/current")
if RSYNC_RSH=$work/broken release second 1 >/dev/null 2>&1; then
    fail "a transfer that broke off succeeded"
fi
[[ $(readlink "$work/players/1/current") == "$before" ]] || fail "the link was changed too early"
diff -r "$work/first" "$work/players/1/current/" || fail "the older release was changed"

# Damaged on the way: the same.
cp -r "$work/second" "$work/damaged"
find "$work/damaged/files" -type f | head -n 1 | xargs -I{} sh -c 'echo x >>{}'
if release damaged 1 >/dev/null 2>&1; then
    fail "a damaged release was accepted"
fi
sleep 3 # for players that look once a second
check_all first

send second
check_all second
# All images but that of the title are the same files as before, not copies.
same=$(find "$work/players/50/current/files" -type f -links +1 | wc -l)
all=$(find "$work/players/50/current/files" -type f | wc -l)
((same == all - 1)) || fail "$same of $all images were not sent again"

# What would have been seen of half a program: it is written where one plays, without a release.
head -c 200 "$work/first/program.xml" >"$work/players/1/current/program.xml"
tries=0
until [[ $(told fault_count 1) == "1 1" ]]; do
    ((tries++ < 100)) || fail "half a program is not noticed"
    sleep 0.3
done

kill "${pids[@]}"
for pid in "${pids[@]}"; do
    wait "$pid" || fail "a player ended with $?: $(cat "$work"/errors/*)"
done
