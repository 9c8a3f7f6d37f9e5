#!/bin/bash
# Installs what building and testing needs on Debian 12; returns at once when all of it is there.
set -euo pipefail

packages=(
    g++-mingw-w64-i686-posix cmake ninja-build ccache googletest
    clang libclang-rt-14-dev llvm clang-format clang-tidy cppcheck
    wine wine32:i386 fonts-wine xvfb xauth xdotool
    imagemagick librsvg2-bin python3 python3-fonttools fonts-dejavu-core zip unzip
)

installed() {
    local count
    count=$(dpkg-query -W -f='${db:Status-Abbrev}\n' "${packages[@]}" 2>/dev/null | grep -c '^ii') || true
    [ "$count" -eq "${#packages[@]}" ]
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

apt() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 "$@"
}

if installed; then exit 0; fi

echo "Installing packages: ${packages[*]}"
dpkg --print-foreign-architectures | grep -qx i386 || as_root dpkg --add-architecture i386
# An index that is out of step makes the update fail as a whole; the others are good all the same.
apt update -qq || echo "apt-get update reported an error; going on"
if ! apt install -y -qq --no-install-recommends "${packages[@]}"; then
    # The security archive may be ahead for one architecture only, and wine32 needs equal versions.
    pins=$(mktemp)
    trap 'rm -f "$pins"' EXIT
    printf 'Package: *\nPin: release l=Debian-Security\nPin-Priority: 100\n' > "$pins"
    chmod 644 "$pins"
    apt -o Dir::Etc::Preferences="$pins" install -y -qq --no-install-recommends --allow-downgrades "${packages[@]}"
fi
installed || { echo "Some packages could not be installed." >&2; exit 1; }
