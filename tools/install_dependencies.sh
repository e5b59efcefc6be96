#!/usr/bin/env bash
# Installs what building and testing Wirepane needs, from the distribution's packages. Does nothing, and asks for no
# rights, when all of it is there. Speaks on standard error only.
set -euo pipefail

packages=(
    build-essential cmake ninja-build pkg-config git python3
    qt6-base-dev qt6-websockets-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-translations-l10n
    qtkeychain-qt6-dev libgl-dev
    libsqlite3-dev libopencc-dev libopencc-data zlib1g-dev libzstd-dev libdtl-dev
    libpq-dev postgresql
    qt6-multimedia-dev dbus
    libgtest-dev libbenchmark-dev nginx-light openssl
    fonts-dejavu-core fonts-liberation fonts-noto-cjk fonts-noto-mono tzdata
)
if [ "${1:-}" = "--with-checks" ]; then
    packages+=(clang-format-14 clang-tidy-14 poppler-utils lintian)
fi

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "Installing: ${missing[*]}" >&2
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
"${as_root[@]}" apt-get update -qq >&2
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
