#!/usr/bin/env bash
# Installs the Debian 12 packages that the native and the cross build need.
# Safe to run repeatedly: apt is only touched when something is missing.
set -euo pipefail

packages=(
    cmake
    g++
    ninja-build
    googletest                 # /usr/src/googletest, built by both toolchains
    libbenchmark-dev
    g++-mingw-w64-x86-64-posix
    wine                       # /usr/bin/wine and wineboot
    wine64
    xvfb                       # xvfb-run for tests that open windows
    xauth
    libfreetype-dev
    libfontconfig-dev
    fonts-liberation           # metric-compatible stand-ins for the Windows fonts
    fonts-wine                 # the symbols Wine draws window frames with
    zlib1g-dev
    libxml2-utils              # xmllint, checks exported SVG
    librsvg2-bin               # rsvg-convert, renders exported SVG
    clang                      # fuzzing builds
    libclang-rt-14-dev         # libFuzzer and the sanitizer runtimes (only recommended by clang)
)

missing=()
for pkg in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${db:Status-Status}' "$pkg" 2>/dev/null || true)
    if [[ "$status" != "installed" ]]; then
        missing+=("$pkg")
    fi
done

if [[ ${#missing[@]} -eq 0 ]]; then
    echo "install-deps: all ${#packages[@]} packages are present"
    exit 0
fi

echo "install-deps: installing ${missing[*]}"
sudo=()
if [[ $(id -u) -ne 0 ]]; then
    sudo=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update
"${sudo[@]}" apt-get install -y --no-install-recommends "${missing[@]}"
