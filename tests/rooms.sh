#!/bin/bash
# What the rooms of src/ keep to: includes run one way, and tolerances have a name.
#
#   rooms.sh SRC_DIR
set -euo pipefail
cd "$1"
failed=0

# may_use ROOM ROOM...: the first includes from itself and the others only.
may_use() {
    local others
    others=$(IFS='|' && echo "$*")
    if grep -nE '^#include "[a-z]+/' "$1"/* | grep -vE "#include \"($others)/"; then
        echo "^ src/$1 may include from these alone: $*"
        failed=1
    fi
}

may_use base
may_use line base
may_use circle base line
may_use solver base
may_use ellipse base line circle solver

if grep -nE '^[^/]*[0-9]e-[0-9]' ./*/*.cpp; then
    echo "^ a bare tolerance; base/tolerance.h is where it gets a name"
    failed=1
fi
exit $failed
