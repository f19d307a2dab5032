# shellcheck shell=bash
# Sourced by the scripts at the root: what they need of the machine.

# need PACKAGE...: installs the Debian packages that are missing and says so; where it cannot,
# it says why and fails.
need() {
    local package missing=() as_root=(env)
    for package; do
        dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null |
            grep -qx installed || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if ! command -v apt-get >/dev/null; then
        echo "cannot install ${missing[*]}: there is no apt-get here" >&2
        return 1
    fi
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "cannot install ${missing[*]}: that takes root or sudo" >&2
            return 1
        fi
        as_root=(sudo env)
        [ -t 2 ] || as_root=(sudo --non-interactive env)
    fi
    if [ -z "${PLANEGEO_APT_UPDATED:-}" ]; then
        quietly "${as_root[@]}" apt-get update || return 1
        export PLANEGEO_APT_UPDATED=1
    fi
    printf 'installing %s\n' "${missing[@]}" >&2
    quietly "${as_root[@]}" DEBIAN_FRONTEND=noninteractive apt-get install --yes \
        --no-install-recommends -o DPkg::Lock::Timeout=300 "${missing[@]}"
}

# has_header NAME...: whether the compiler finds these headers, wherever they came from.
has_header() {
    printf '#include <%s>\n' "$@" | c++ -E -x c++ - >/dev/null 2>&1
}

# need_to_build, need_to_test, need_to_draft: what the library, its tests and the drafting program
# take; each fails where that cannot be had.
need_to_build() {
    need g++ make cmake || { command -v c++ && command -v make && command -v cmake; } >/dev/null
}
need_to_test() {
    need libgtest-dev pkg-config || { has_header gtest/gtest.h && command -v pkg-config >/dev/null; }
}
need_to_draft() {
    need libdxflib-dev libcli11-dev nlohmann-json3-dev libboost-dev pkg-config ||
        has_header dxflib/dl_dxf.h CLI/CLI.hpp nlohmann/json.hpp boost/geometry.hpp
}

# quietly COMMAND...: shows what the command prints only if it fails.
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" >"$log" 2>&1 </dev/null || status=$?
    [ "$status" -eq 0 ] || cat "$log" >&2
    rm -f "$log"
    return "$status"
}
