#!/usr/bin/env bash
# Installs what is missing of debian-packages.txt and of debian-packages-KIND.txt for each KIND named (test, long). Says
# what it does; does nothing when all is there.
set -euo pipefail
cd "$(dirname "$0")"

lists=(debian-packages.txt)
for kind in "$@"; do
    lists+=("debian-packages-$kind.txt")
done
mapfile -t wanted < <(grep -hvE '^\s*(#|$)' "${lists[@]}")
# Under some releases a name is one that the package of another name provides.
installed=$(dpkg-query -W -f '${db:Status-Status} ${Package} ${Provides}\n' 2>/dev/null |
    sed -n 's/^installed //p' | tr -s ', ' '\n' || true)
missing=()
for package in "${wanted[@]}"; do
    grep -qxF "$package" <<<"$installed" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

if ! command -v apt-get >/dev/null; then
    echo "This machine has no apt-get. Please install the counterparts of: ${missing[*]}" >&2
    exit 1
fi
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Please install as root: ${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
fi
echo "Installing build packages: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
