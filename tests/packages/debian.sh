#!/bin/bash
# Installs the Debian packages, builds and runs hosts against them, and purges them again: over this
# system, which an overlay keeps as it is. Takes root.
#
#   debian.sh PACKAGE_DIR
set -euo pipefail
if [ "$1" != inside ]; then
    if ! unshare --mount true 2>/dev/null; then
        echo "not installed: no overlay of the system can be made in this container"
        exit 0
    fi
    exec unshare --mount "$0" inside "$(realpath "$1")"
fi
packages=$2
version=$(dpkg-deb --field "$packages"/libplanegeo1_*.deb Version | sed 's/-[0-9]*$//')
host=$(cd "$(dirname "$0")/../install" && pwd)/host.c
work=$(mktemp --directory)
mount -t tmpfs none "$work"
for directory in usr var etc; do
    mkdir "$work/$directory" "$work/$directory.work"
    mount -t overlay overlay "/$directory" \
        -o "lowerdir=/$directory,upperdir=$work/$directory,workdir=$work/$directory.work"
done
cd "$work"

# A new overlay may show the system's own changes as ours: only our names count.
remains() { find usr var/lib/dpkg/info etc -name "*planegeo*" ! -type c; }

fails() { ! "$@" >/dev/null 2>&1; }

# Not for the archive, so no bug asks for it; and CPack calls ldconfig beside the trigger.
lintian --allow-root --fail-on error,warning \
    --suppress-tags initial-upload-closes-no-bugs,maintscript-calls-ldconfig "$packages"/*.deb

dpkg --install "$packages"/*.deb
remains >installed
read -ra shared <<<"$(pkg-config --cflags --libs planegeo)"
read -ra static <<<"$(pkg-config --static --cflags --libs planegeo)"
cc "$host" "${shared[@]}" -o shared
cc -static "$host" "${static[@]}" -o static
./shared "$version"
./static "$version"
ldconfig -p | grep 'libplanegeo\.so\.1 ' >/dev/null # to its end, or ldconfig fails
cmake -S "$(dirname "$host")" -B cmake -D languages=C -D version="$version"
cmake --build cmake
ctest --test-dir cmake --output-on-failure --no-tests=error

dpkg --purge libplanegeo-dev
./shared "$version" # the library alone is enough to run
fails cc "$host" -lplanegeo -o failing
dpkg --purge libplanegeo1
fails ./shared "$version"
dpkg --audit
if [ -n "$(remains)" ]; then
    echo "these remain:"
    remains
    exit 1
fi
echo "$(wc -l <installed) files came and went"
