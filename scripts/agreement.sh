#!/bin/bash
# Makes a table of calls of every function on each platform and compares it with that of x86-64,
# GCC, -O3: integers have to be identical, doubles equal to 1e-12 (docs/platforms.md).
#
#   scripts/agreement.sh [CALLS [PLATFORM...]]      a million calls on all platforms by default
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

calls=${1:-1000000}
shift || true
[ $# -gt 0 ] || set -- gcc-O0 clang-O0 clang-O3 windows-x64 windows-x86 aarch64
out=build/agreement
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=" DISPLAY=

# program PLATFORM: where its program is.
program() {
    case $1 in
    windows-*) echo "$out/$1/bin/planegeo_agreement.exe" ;;
    *) echo "$out/$1/bench/agreement/planegeo_agreement" ;;
    esac
}

# build PLATFORM CMAKE ARGUMENT...
build() {
    local platform=$1
    shift
    quietly cmake -B "$out/$platform" -DPLANEGEO_BUILD_TESTS=OFF -DPLANEGEO_BUILD_AGREEMENT=ON "$@"
    quietly cmake --build "$out/$platform" --parallel "$(nproc)" --target planegeo_agreement
}

# make_table PLATFORM: builds its program, and runs it.
make_table() {
    local emulator=()
    case $1 in
    gcc-O0) build "$1" -DCMAKE_CXX_FLAGS=-O0 ;;
    gcc-O3) build "$1" -DCMAKE_BUILD_TYPE=Release ;;
    clang-*)
        need clang
        build "$1" -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
            "-DCMAKE_CXX_FLAGS=-${1#*-}"
        ;;
    windows-x64)
        need g++-mingw-w64-x86-64-posix wine64
        build "$1" -DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-x86_64.cmake
        emulator=("$(command -v wine64 || echo /usr/lib/wine/wine64)")
        ;;
    windows-x86)
        need g++-mingw-w64-i686-posix
        build "$1" -DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-i686.cmake
        emulator=("${PLANEGEO_WINE32:-/usr/lib/wine/wine}")
        if [ ! -x "${emulator[0]}" ]; then
            echo "windows-x86: built, not run: there is no wine32 (of Debian's i386 architecture)," \
                "nor does PLANEGEO_WINE32 name one" >&2
            return 0
        fi
        ;;
    aarch64)
        need g++-aarch64-linux-gnu qemu-user
        build "$1" -DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE=cmake/aarch64-linux-gnu.cmake
        emulator=(qemu-aarch64 -L /usr/aarch64-linux-gnu)
        ;;
    *) echo "no platform $1" >&2 && return 1 ;;
    esac
    WINEPREFIX=$PWD/$out/wine-$1 "${emulator[@]}" "$(program "$1")" table "$calls" >"$out/$1.table"
}

make_table gcc-O3
status=0
for platform; do
    rm -f "$out/$platform.table"
    make_table "$platform"
    [ -e "$out/$platform.table" ] || continue
    printf '%s against gcc-O3\n' "$platform"
    "$(program gcc-O3)" compare "$out/gcc-O3.table" "$out/$platform.table" \
        >"$out/$platform.differences" 2>"$out/$platform.decisions" || status=1
    tail -n 1 "$out/$platform.differences"
done
exit $status
