#!/bin/bash
# What the unit tests reach of src/: fails below 98 % of its lines or 95 % of its branches, and
# writes the lines and branches not reached to build/coverage/missing.txt (docs/coverage.md).
#
# Not counted are the branches of exceptions, which the library is built without.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh
need_to_test
need gcovr

quietly cmake --preset coverage
quietly cmake --build --preset coverage --parallel "$(nproc)" --target planegeo_tests
find build/coverage -name '*.gcda' -delete
quietly build/coverage/tests/planegeo_tests

report() {
    gcovr --root . --filter src/ --exclude-throw-branches --exclude-unreachable-branches \
        --gcov-ignore-parse-errors build/coverage/src "$@"
}
report --json build/coverage/coverage.json --txt build/coverage/lines.txt \
    --fail-under-line 98 --fail-under-branch 95 && status=0 || status=$?
report --branches --txt build/coverage/branches.txt
for part in lines branches; do
    printf '%s: %s\n' $part "$(grep TOTAL build/coverage/$part.txt)"
done
exit "$status"
