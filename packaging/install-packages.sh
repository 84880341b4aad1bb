#!/usr/bin/env bash
# Installs the distribution packages that building and testing need, and those that the arguments name; asks for
# sudo only when not root and when something is missing.
set -euo pipefail
cd "$(dirname "$0")"

mapfile -t wanted < packages.txt
wanted+=("$@")
missing=()
for package in "${wanted[@]}"; do
    status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
    [ "$status" = "install ok installed" ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "Installing: ${missing[*]}"
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
