#!/bin/bash
# Breaks drawings in a few places each and sees that the drafting program, built with the sanitizers,
# answers or refuses them as it says: scripts/mutate-drawings.sh [COUNT [SEED]]
#
# Drawings are those of librecad-data (1272 libraries of parts) and the samples. Every third mutant is
# also divided, trimmed, snapped in and rewritten as arcs. Mutants that fail are kept.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh
count=${1:-3000} seed=${2:-1}

need clang libclang-rt-14-dev librecad-data
need_to_draft
quietly cmake --preset sanitize -DPLANEGEO_BUILD_DRAFT=ON
quietly cmake --build --preset sanitize --parallel "$(nproc)" --target draft mutate_drawing
draft=$PWD/build/sanitize/examples/drafting/draft
mutate=$PWD/build/sanitize/examples/drafting/mutate_drawing
mapfile -t drawings < <(find /usr/share/librecad/library examples/drawings -name '*.dxf' -size -300k | sort)
work=$(mktemp -d)
kept=$PWD/build/sanitize/mutants
export ASAN_OPTIONS=allocator_may_return_null=1 UBSAN_OPTIONS=print_stacktrace=1

# try MUTANT NAME COMMAND...: whether the command keeps what the program promises: it ends with 0, or
# with 1, messages of its own and no output; in time, and without a finding of the sanitizers.
try() {
    local mutant=$1 name=$2 status=0
    shift 2
    rm -f "$work"/out.*
    timeout 60 "$draft" "$@" >"$work/answer" 2>"$work/messages" || status=$?
    outcomes[status]=$((${outcomes[status]:-0} + 1))
    case $status in
    0) [ "$(find "$work" -name 'out.*.*' | wc -l)" -eq 0 ] && [ -s "$work/answer" ] && return ;;
    1) [ -s "$work/messages" ] && ! grep -qv '^draft: ' "$work/messages" &&
        [ -z "$(find "$work" -name 'out.*')" ] && return ;;
    esac
    mkdir -p "$kept"
    cp "$mutant" "$kept/$seed-$name.dxf"
    cp "$work/messages" "$kept/$seed-$name.messages"
    printf 'seed %d, %s: ended with %d\n' "$seed" "$*" "$status"
    failures=$((failures + 1))
}

outcomes=() failures=0 from=$seed
while [ $((seed - from)) -lt "$count" ]; do
    drawing=${drawings[$((seed * 7919 % ${#drawings[@]}))]}
    mutant=$work/mutant.dxf
    "$mutate" "$seed" "$drawing" "$mutant"
    try "$mutant" intersect intersect --json "$mutant" -o "$work/out.intersect"
    if [ $((seed % 3)) -eq 0 ]; then
        try "$mutant" measure measure "$mutant"
        try "$mutant" divide divide "$mutant" -n 3 -o "$work/out.divide"
        try "$mutant" trim trim "$mutant" --pick 1,2 -o "$work/out.trim"
        try "$mutant" snap snap "$mutant" --at 3,4 --from 50,60 -r 20 -o "$work/out.snap"
        try "$mutant" tangents tangents "$mutant" --from 50,60 -o "$work/out.tangents"
        try "$mutant" arcs arcs "$mutant" --tol 0.1 -o "$work/out.arcs"
    fi
    seed=$((seed + 1))
done
rm -rf "$work"
printf '%d mutants: %d runs answered, %d refused, %d failures\n' "$count" "${outcomes[0]:-0}" \
    "${outcomes[1]:-0}" "$failures"
[ "$failures" -eq 0 ]
