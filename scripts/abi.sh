#!/bin/bash
# Compares the library's binary interface with the recorded one (docs/abi.md): any difference fails.
#
#   scripts/abi.sh            compares
#   scripts/abi.sh record     records the interface anew
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh
need abigail-tools

recorded=abi/planegeo.abi
library=build/abi/src/libplanegeo.so
quietly cmake -B build/abi -DCMAKE_BUILD_TYPE=Debug -DPLANEGEO_BUILD_TESTS=OFF
quietly cmake --build build/abi --parallel "$(nproc)" --target planegeo

if [ "${1:-}" = record ]; then
    abidw --headers-dir include --no-corpus-path --no-comp-dir-path --no-show-locs \
        --drop-private-types --exported-interfaces-only --type-id-style hash \
        --out-file $recorded $library
    exit
fi
# Exits with 0 only where nothing was added, removed or changed.
abidiff $recorded $library
