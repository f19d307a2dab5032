#!/bin/bash
# Builds the packages into build/packages: by name those of a platform, else all.
#
#   scripts/package.sh [debian|tarball|x64|x86]...
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh
out=$PWD/build/packages

if [ -z "${SOURCE_DATE_EPOCH:-}" ] && git rev-parse --git-dir >/dev/null 2>&1; then
    SOURCE_DATE_EPOCH=$(git log -1 --format=%ct) # the same commit gives the same packages
    export SOURCE_DATE_EPOCH
fi

# pack PRESET PATTERN [CMAKE_ARGUMENT...]: builds, packs, and keeps what matches.
pack() {
    local preset=$1 pattern=$2
    quietly cmake --preset "$preset" "${@:3}"
    quietly cmake --build --preset "$preset" --parallel "$(nproc)"
    find "build/$preset" -maxdepth 1 -name "$pattern*" -delete
    (umask 022 && cd "build/$preset" && quietly cpack)
    mkdir -p "$out"
    find "$out" -maxdepth 1 -name "$pattern*" -delete
    find "build/$preset" -maxdepth 1 -name "$pattern" -exec mv {} {}.sha256 "$out" \;
}

debian() {
    need_to_build
    need dpkg-dev gzip file
    pack package "*.deb" -D PLANEGEO_PACKAGE=debian -D CMAKE_INSTALL_PREFIX=/usr \
        -D CMAKE_INSTALL_LIBDIR="lib/$(dpkg-architecture -q DEB_HOST_MULTIARCH)"
}
tarball() {
    need_to_build
    pack package "*.tar.gz" -D PLANEGEO_PACKAGE=archive -D CMAKE_INSTALL_PREFIX=/usr/local \
        -D CMAKE_INSTALL_LIBDIR=lib
}
x64() {
    need g++-mingw-w64-x86-64-posix cmake make
    pack package-x64 "*-x64.zip"
}
x86() {
    need g++-mingw-w64-i686-posix cmake make
    pack package-x86 "*-x86.zip"
}

for package in "${@:-debian tarball x64 x86}"; do
    for one in $package; do "$one"; done
done
(cd "$out" && ls -l -- *.deb *.tar.gz *.zip 2>/dev/null) || true
