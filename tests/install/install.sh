#!/bin/bash
# Installs a build into a fresh place, moves it elsewhere, and builds and runs programs against it
# as hosts do: through CMake and through pkg-config, in C and in C++, shared and static.
#
#   install.sh BUILD_DIR WORK_DIR VERSION CC CXX [CMAKE_ARGUMENT...]
#
# EMULATOR runs the programs that are not for this machine.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$1 work=$2 version=$3 cc=$4 cxx=$5
cmake_arguments=("${@:6}")
prefix=$work/moved

step() { echo "-- $*"; }

configure() { # LANGUAGES DIRECTORY
    cmake -S "$here" -B "$work/$2" -D languages="$1" -D version="$version" \
        -D CMAKE_PREFIX_PATH="$prefix" -D CMAKE_C_COMPILER="$cc" -D CMAKE_CXX_COMPILER="$cxx" \
        "${cmake_arguments[@]}"
}

must_fail() { # WORDS COMMAND...: it fails, and in these words
    if "${@:2}" >"$work/log" 2>&1; then
        echo "succeeds although planegeo is not installed: ${*:2}"
        return 1
    fi
    grep -q "$1" "$work/log" || { cat "$work/log" && return 1; }
}

by_cmake() { # DIRECTORY LANGUAGES
    step "by CMake, project in $2"
    configure "$2" "$1"
    cmake --build "$work/$1"
    ctest --test-dir "$work/$1" --output-on-failure --no-tests=error
}

by_pkg_config() { # COMPILER SOURCE [static]
    local flags
    step "by pkg-config, $(basename "$2") ${3:-shared}"
    read -ra flags <<<"$(pkg-config ${3:+--static} --cflags --libs planegeo)"
    "$1" ${3:+-static} "$2" "${flags[@]}" -o "$work/host.exe"
    ${EMULATOR:-} "$work/host.exe" "$version"
}

rm -rf "$work"
mkdir -p "$work"
export PKG_CONFIG_LIBDIR=$work

step "without the package nothing builds"
must_fail "planegeoConfig.cmake" configure C without
must_fail "planegeo.*not found" pkg-config --print-errors --exists planegeo
must_fail "planegeo.h: No such file" "$cc" "$here/host.c" -o "$work/host.exe"

step "install"
cmake --install "$build" --prefix "$work/installed"
mv "$work/installed" "$prefix"
PKG_CONFIG_LIBDIR=$(dirname "$(find "$prefix" -name planegeo.pc)")
export LD_LIBRARY_PATH=$PKG_CONFIG_LIBDIR/.. WINEPATH=Z:$prefix/bin

by_cmake c "C"
by_cmake cxx "C;CXX"

[ "$(pkg-config --modversion planegeo)" = "$version" ]
by_pkg_config "$cc" "$here/host.c"
by_pkg_config "$cc" "$here/host.c" static
by_pkg_config "$cxx" "$here/host.cpp" static
# A shared C++ runtime is not at hand where an emulator runs the programs.
[ -n "${EMULATOR:-}" ] || by_pkg_config "$cxx" "$here/host.cpp"

step "the example of README.md prints what is said there"
block() { sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/p" "$here/../../README.md" | sed '1d;$d'; }
block c >"$work/readme.c"
by_pkg_config "$cc" "$work/readme.c" | grep -v '^--' | tr -d '\r' | diff <(block text) -
