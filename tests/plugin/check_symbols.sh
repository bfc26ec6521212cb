#!/bin/sh
# Checks what the plugin library asks of its host and what it shows to it.
#
#   check_symbols.sh LIBRARY            compares with the two lists beside this script
#   check_symbols.sh --host LIBRARY     prints the host's symbols that the library needs, in the
#                                       form of host_symbols.txt
#   check_symbols.sh --exported LIBRARY prints what the library exports
set -eu
LC_ALL=C
export LC_ALL
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
status=0

# Demangled names without address, kind and version.
names() {
    nm -D -C "$@" | sed -E 's/^ *[0-9a-f]* *[A-Za-z] //; s/@+[A-Za-z0-9_.]+$//' | sort -u
}

host_symbols() {
    names --undefined-only "$1" | qt5_names | sort -u | grep 'Lw::' || true
}

# Some have other names with Qt 6.
qt5_names() {
    sed -e 's/QList<QString>/QStringList/g' -e 's/^qt_plugin_query_metadata_v2$/qt_plugin_query_metadata/'
}

# The standard library's templates are everybody's, and the linker adds marks of its own.
exported_symbols() {
    names --defined-only "$1" | qt5_names | sort -u | grep -Ev '(^| )std::|^(__bss_start|_edata|_end|_init|_fini)$'
}

entries() {
    grep -Ev '^(#|$)' "$1" | sort -u
}

complain() {
    [ -s "$work/found" ] || return 0
    echo "$1"
    sed 's/^/    /' "$work/found"
    status=1
}

check_host() {
    host_symbols "$1" >"$work/needed"
    entries "$here/host_symbols.txt" >"$work/listed"
    comm -23 "$work/needed" "$work/listed" >"$work/found"
    complain "needed from the host, but not in host_symbols.txt:"
    comm -13 "$work/needed" "$work/listed" >"$work/found"
    complain "in host_symbols.txt, but no longer needed from the host:"
}

# A line "Name::*" of the list admits the class and everything in it but nested classes' own; each
# other line must be exported.
check_exported() {
    exported_symbols "$1" >"$work/exported"
    entries "$here/exported_symbols.txt" >"$work/listed"
    grep -v '::\*$' "$work/listed" | comm -13 "$work/exported" - >"$work/found"
    complain "in exported_symbols.txt, but not exported:"
    sed -n 's/::\*$//p' "$work/listed" >"$work/classes"
    grep -v '::\*$' "$work/listed" | comm -23 "$work/exported" - |
        sed -E 's/^(vtable for|typeinfo for|typeinfo name for|non-virtual thunk to) //' |
        awk -v classes="$work/classes" '
            BEGIN { while ((getline line < classes) > 0) class[++count] = line }
            function admitted(    i, rest) {
                for (i = 1; i <= count; ++i) {
                    if ($0 == class[i]) return 1
                    if (index($0, class[i] "::") != 1) continue
                    rest = substr($0, length(class[i]) + 3)
                    sub(/\(.*/, "", rest)
                    if (rest !~ /::/) return 1
                }
                return 0
            }
            !admitted()' >"$work/found"
    complain "exported, but not in exported_symbols.txt:"
}

check_dynamic_section() {
    readelf -d "$1" >"$work/dynamic"
    grep -q 'SONAME.*\[libclock_plugin\.so\.1\]' "$work/dynamic" || {
        echo "the soname is not libclock_plugin.so.1"
        status=1
    }
    sed -n 's/.*NEEDED.*\[\(.*\)\]/\1/p' "$work/dynamic" |
        grep -Ev '^(libQt[56](Core|Gui|Xml)|libstdc\+\+|libgcc_s|libm|libc|ld-linux.*)\.so\.[0-9]+$' \
            >"$work/found" || true
    complain "libraries that the plugin must not need:"
}

case $1 in
--host) host_symbols "$2" ;;
--exported) exported_symbols "$2" ;;
*)
    check_host "$1"
    check_exported "$1"
    check_dynamic_section "$1"
    ;;
esac
exit $status
