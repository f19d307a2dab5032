#!/bin/bash
# fuzz.sh SECONDS [DIRECTORY]: calls of any kind for so long, under the sanitizers. Starts from
# fuzz/corpus; new inputs go to DIRECTORY/corpus (default build/fuzz/run), findings to
# DIRECTORY/findings. Fails at the first one; print its calls with
# build/fuzz/fuzz/planegeo_replay --tell FILE.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

seconds=${1:?usage: fuzz.sh SECONDS [DIRECTORY]}
directory=${2:-build/fuzz/run}

quietly cmake --preset fuzz
quietly cmake --build --preset fuzz --parallel "$(nproc)"
mkdir -p "$directory/corpus" "$directory/findings"
UBSAN_OPTIONS=print_stacktrace=1 build/fuzz/fuzz/planegeo_fuzz -max_total_time="$seconds" \
    -max_len=256 -timeout=100 -artifact_prefix="$directory/findings/" -print_final_stats=1 \
    "$directory/corpus" fuzz/corpus >"$directory/fuzz.log" 2>&1 ||
    { tail -n 60 "$directory/fuzz.log"; exit 1; }
grep -E 'number_of_executed_units|average_exec_per_sec' "$directory/fuzz.log"
