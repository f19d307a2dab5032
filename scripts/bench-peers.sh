#!/bin/bash
# Measures the library beside its peers and prints the tables of bench/README.md: installs what that
# takes, builds, runs every row, and leaves the run in build/release/bench/run.json.
#
#     scripts/bench-peers.sh [GOOGLE BENCHMARK ARGUMENT...]
#
# bench/table.py build/release/bench/run.json --into bench/README.md then puts them there.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

need_to_build
need libbenchmark-dev python3 libocct-foundation-dev libocct-modeling-data-dev \
    libocct-modeling-algorithms-dev libtbb-dev libcgal-dev libgsl-dev libeigen3-dev libgeos-dev \
    libboost-dev
quietly cmake --preset release -DPLANEGEO_BUILD_BENCH=ON -DPLANEGEO_BENCH_PEERS=ON
quietly cmake --build --preset release --parallel "$(nproc)" --target planegeo_bench

machine="$(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -n 1), $(nproc) cores"
version() { dpkg-query --show --showformat="$1 \${Version}" "$2" | sed 's/[+-].*//'; }
versions="GCC $(c++ -dumpfullversion), $(version glibc libc6), $(version 'Open CASCADE' libocct-foundation-dev)"
versions+=", $(version CGAL libcgal-dev), $(version GEOS libgeos-dev), $(version GSL libgsl-dev)"
versions+=", $(version Boost libboost-dev), $(version Eigen libeigen3-dev)"

run=build/release/bench/run.json
build/release/bench/planegeo_bench --benchmark_min_time=0.002 --benchmark_repetitions=20 \
    --benchmark_enable_random_interleaving=true --benchmark_format=json \
    --benchmark_context="machine=${machine//,/;},versions=${versions//,/;}" "$@" >"$run" 2>/dev/null
bench/table.py "$run"
