#!/usr/bin/env bash
# Completes command lines of the built programs as bash would.
#
#   check_completion.sh COMPLETION PROGRAMS EXAMPLES
set -euo pipefail
PATH=$2:$PATH
examples=$3
# shellcheck source=/dev/null
source "$1"

# completed WORD... - what the last word may become, one a line
completed() {
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    COMPREPLY=()
    "$(complete -p "$1" | sed -E 's/.*-F ([^ ]+).*/\1/')" "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    printf '%s\n' "${COMPREPLY[@]}"
}

failed=0
# expect ANSWERS WORD... - the answers are separated by spaces and come in any order
expect() {
    local answers=$1 found
    shift
    found=$(completed "$@" | sort | xargs)
    [[ $found == "$(tr ' ' '\n' <<<"$answers" | sort | xargs)" ]] && return
    echo "\"$*\" completes to \"$found\" and not to \"$answers\"" >&2
    failed=1
}

expect "--frames" clock_player --fr
expect "--led" clock_player --le
expect "en fa zh" clock_player --language ""
expect "zh" clock_player --language z
expect "linuxfb" clock_player -platform l
expect "$examples/wall.xml" clock_player "$examples/wa"
expect "$examples/wall.xml" clock_player --frames 3 "$examples/wa"
expect "sdk self-test" clock_tool s
expect "export" clock_tool exp
expect "--output" clock_tool sdk --ou
expect "--language" clock_tool glyphs --la
expect "en fa zh" clock_tool export --language ""
expect "$examples/wall.xml" clock_tool lint "$examples/wa"
expect "" clock_tool nonsense --ou
if [[ -e /usr/share/zoneinfo/Europe/Berlin ]]; then
    expect "Europe/Berlin" clock_tool zone Europe/Berl
fi
expect "" clock_player "$examples/READ"
if [[ -x $(command -v clock_studio) ]]; then
    expect "--version" clock_studio --ve
    expect "$examples/wall.xml" clock_studio "$examples/wa"
fi
exit "$failed"
