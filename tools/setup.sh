#!/usr/bin/env bash
# Installs what the build and its tests need, as far as it is missing. Sourced or called by ./run
# and ./test. OVK_NO_SETUP=1 skips it on systems whose packages bear other names.
set -euo pipefail

packages=(
    g++ cmake ninja-build ccache mold
    qtbase5-dev libqt5svg5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n
    libbenchmark-dev python3
    xvfb xauth x11-utils openbox xdotool at-spi2-core dbus-x11 fonts-dejavu-core
)

if [ "${OVK_NO_SETUP:-0}" = 1 ]; then
    exit 0
fi

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    cat >&2 <<TEXT
This system has no apt. Install the equivalents of these Debian packages by hand:

    ${packages[*]}

then call again with OVK_NO_SETUP=1 in the environment.
TEXT
    exit 1
fi

missing=()
for package in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "These packages are missing and need root to install: ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
