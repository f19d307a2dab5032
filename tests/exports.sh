#!/bin/bash
# The header declares what the list names, the built library exports that and nothing else, and it
# leans on nothing but the platform's own libraries.
#
#   exports.sh LIST HEADER LIBRARY OBJDUMP
set -euo pipefail
export LC_ALL=C
list=$1 header=$2 library=$3 objdump=$4
failed=0

# same WHAT WANT GOT: both are lines.
same() {
    diff --unified=0 --label "$1: wanted" --label "$1: found" <(echo "$2") <(echo "$3") || failed=1
}

listed=$(sed '/^#/d; /^$/d' "$list" | sort)
declared=$(tr '\n' ' ' <"$header" | grep --only-matching 'PLANEGEO_CALL \+[A-Za-z_0-9]\+(' |
    sed 's/.* //; s/($//' | sort)
same "names in the list, each once" "$(uniq <<<"$listed")" "$listed"
same "declarations in the header" "$listed" "$declared"

facts=$("$objdump" --private-headers "$library")
case $library in
*.dll)
    exported=$(sed -n 's/^\t\[ *[0-9]*\] \([^ ]*\)$/\1/p' <<<"$facts" | sort)
    same "exports" "$listed" "$exported"
    same "name" planegeo.dll "$(sed -n 's/^Name\s.* //p' <<<"$facts")"
    same "libraries needed" $'KERNEL32.dll\nmsvcrt.dll' \
        "$(sed -n 's/^\s*DLL Name: //p' <<<"$facts" | sort)"
    ;;
*)
    # Every defined symbol with its version; the node that names the version is one of them.
    exported=$("$objdump" --dynamic-syms "$library" |
        sed -n '/\*UND\*/d; s/^[0-9a-f]\+ .* \(\S\+\) \+\(\S\+\)$/\2@\1/p' | sort)
    versioned=$(printf '%s\n' "$listed" PLANEGEO_1 | sed 's/$/@PLANEGEO_1/' | sort)
    same "exports" "$versioned" "$exported"
    same "name" libplanegeo.so.1 "$(sed -n 's/^ *SONAME *//p' <<<"$facts")"
    same "libraries needed, the language's own aside" "" \
        "$(sed -n 's/^ *NEEDED *//p' <<<"$facts" | grep -v '^lib\(stdc++\|m\|gcc_s\|c\)\.so')"
    ;;
esac
exit $failed
