#!/bin/bash
# Builds the example of a binding, runs it, and compares what it prints. The library is in
# LD_LIBRARY_PATH.
#
#   example.sh LANGUAGE WORK_DIR TOOL...
set -euo pipefail
language=$1 work=$2/$1
shift 2
here=$(cd "$(dirname "$0")/.." && pwd)
rm -rf "$work"
mkdir -p "$work"

case $language in
python) run=("$1" "$here/python/example.py") ;;
pascal)
    run=("$work/example")
    "$1" -v0ew -Sew -Fu"$here/pascal" -Fl"$LD_LIBRARY_PATH" -FU"$work" -o"${run[0]}" \
        "$here/pascal/example.pas"
    ;;
csharp)
    run=("$2" "$work/Example.exe")
    "$1" -langversion:7 -warnaserror -warn:4 -r:System.Core -out:"${run[1]}" "$here"/csharp/*.cs
    ;;
esac
"${run[@]}" | diff "$here/tests/expected.txt" -
