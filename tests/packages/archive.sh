#!/bin/bash
# Unpacks an archive as hosts do and builds and runs programs against it.
#
#   archive.sh ARCHIVE WORK_DIR [MINGW_PREFIX]
#
# For a Windows archive the prefix names the compiler, and EMULATOR runs the programs; without it they
# are linked, not run.
set -euo pipefail
archive=$(realpath "$1") work=$2 mingw=${3:+$3-}
version=$(basename "$archive" | cut -d- -f2)
here=$(cd "$(dirname "$0")" && pwd)
host=$here/../install/host.c
rm -rf "$work"
mkdir -p "$work"
cd "$work"
cmake -E tar xf "$archive"
root=$PWD/$(basename "$archive" | sed 's/\.tar\.gz$//; s/\.zip$//')
echo "-- $(basename "$archive")"
test -f "$root/README.md" -a -f "$root/LICENSE" -a -f "$root/CHANGELOG.md"

run() { # PROGRAM ARGUMENT...
    if [ -z "$mingw" ] || [ -n "${EMULATOR:-}" ]; then
        ${EMULATOR:-} "./$1" "${@:2}"
    else
        echo "linked, not run: $1"
    fi
}

export PKG_CONFIG_LIBDIR=$root/lib/pkgconfig LD_LIBRARY_PATH=$root/lib
read -ra shared <<<"$(pkg-config --cflags --libs planegeo)"
read -ra static <<<"$(pkg-config --static --cflags --libs planegeo)"
"${mingw}gcc" "$host" "${shared[@]}" -o shared.exe
"${mingw}gcc" -static "$host" "${static[@]}" -o static.exe
if [ -z "$mingw" ]; then
    run shared.exe "$version"
    run static.exe "$version"
    PYTHONPATH=$root/bindings/python PLANEGEO_LIBRARY=$root/lib/libplanegeo.so.1 \
        PYTHONDONTWRITEBYTECODE=1 python3 "$root/bindings/python/example.py" |
        diff "$here/../../bindings/tests/expected.txt" -
    exit
fi

cp "$root/bin/planegeo.dll" .
"$here/../exports.sh" "$here/../../src/exports.txt" "$root/include/planegeo.h" planegeo.dll \
    "${mingw}objdump"
imports() { "${mingw}objdump" --private-headers "$1" | sed -n 's/^\s*DLL Name: //p'; }
imports shared.exe | grep -x planegeo.dll >/dev/null
if imports static.exe | grep planegeo >/dev/null; then exit 1; fi
run shared.exe "$version"
run static.exe "$version"

# The linkers of other compilers make their import library from the .def file.
case $mingw in
x86_64*) machine=i386:x86-64 target=x86_64-pc-windows-msvc ;;
*) machine=i386 target=i686-pc-windows-msvc ;;
esac
llvm-dlltool -m $machine -d "$root/lib/planegeo.def" -l planegeo.lib
clang --target=$target -ffreestanding -Wall -Werror -I"$root/include" -c "$here/plain_host.c" -o plain.obj
lld-link /nodefaultlib /subsystem:console /entry:entry /out:plain.exe plain.obj planegeo.lib
imports plain.exe | grep -x planegeo.dll >/dev/null
run plain.exe
