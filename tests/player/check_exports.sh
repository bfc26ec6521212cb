#!/bin/sh
# Checks that a program shows nothing that would take the place of the plugin's own in a process
# that loads both, although both contain the calendars.
#
#   check_exports.sh PROGRAM PLUGIN
set -eu
LC_ALL=C
export LC_ALL

# Weak symbols are templates and inline functions, which are everybody's.
exported() {
    nm -D --defined-only "$1" | awk '$2 != "W" && $2 != "V" { print $3 }' |
        grep -Ev '^(__bss_start|_edata|_end|_init|_fini)$' | sort -u || true
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
exported "$1" >"$work/program"
exported "$2" >"$work/plugin"
grep -q . "$work/plugin" || { echo "$2 shows nothing at all"; exit 1; }
comm -12 "$work/program" "$work/plugin" >"$work/both"
[ -s "$work/both" ] || exit 0
echo "shown by the program too:"
c++filt <"$work/both"
exit 1
