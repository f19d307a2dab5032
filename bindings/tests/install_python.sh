#!/bin/bash
# Installs the Python package without a network into a fresh environment, with the library beside
# it, and runs the example there.
#
#   install_python.sh WORK_DIR LIBRARY
set -euo pipefail
work=$1 library=$2
here=$(cd "$(dirname "$0")/.." && pwd)
rm -rf "$work"
mkdir -p "$work"
cp -r "$here/python" "$work/source"
cp "$library" "$work/source/planegeo/libplanegeo.so.1"
/usr/bin/python3 -m venv --system-site-packages "$work/environment"
"$work/environment/bin/pip" install --quiet --no-index --no-build-isolation \
    --disable-pip-version-check "$work/source"
cp "$here/python/example.py" "$work"
cd "$work"
environment/bin/python example.py | diff "$here/tests/expected.txt" -
test -f environment/lib/python3.*/site-packages/planegeo/py.typed
