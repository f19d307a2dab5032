#!/bin/bash
# The command succeeds and prints what the file has.
#
#   prints.sh FILE COMMAND...
set -euo pipefail
"${@:2}" | diff "$1" -
