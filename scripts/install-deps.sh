#!/usr/bin/env bash
# Installs the Debian 12 packages that building, testing, fuzzing, benchmarking and running Pelodine
# need (clang and its runtimes for make fuzz).
# Quick when everything is there: only the missing packages go to apt-get.
#   scripts/install-deps.sh          install what is missing
#   scripts/install-deps.sh --list   print the list, one package a line (scripts/check-deps.sh)
set -euo pipefail

packages=(
    build-essential cmake pkg-config
    qtbase5-dev qtbase5-dev-tools libqt5svg5-dev qttools5-dev qttools5-dev-tools
    qttranslations5-l10n qt5-image-formats-plugins libexiv2-dev
    liblcms2-dev libjpeg62-turbo-dev
    fonts-dejavu-core
    xvfb xauth imagemagick
    appstream desktop-file-utils shared-mime-info
    clang libclang-rt-14-dev
    kimageformat-plugins libheif-dev
)

if [ "${1:-}" = --list ]; then
    printf '%s\n' "${packages[@]}"
    exit 0
fi

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$p")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

echo "Installing: ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then
    sudo_cmd=(sudo)
fi
"${sudo_cmd[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
