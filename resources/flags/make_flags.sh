#!/usr/bin/env bash
# Draws the flags anew from the npm package flag-icons (MIT licence, see LICENSE): one picture of 40 by 30 pixels for
# each country of libs/airdb/data/countries.csv that has one. Needs npm, rsvg-convert (librsvg2-bin) and optipng.
set -euo pipefail
cd "$(dirname "$0")"
package=flag-icons@7.5.0

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
(cd "$work" && npm pack --silent "$package" >/dev/null && tar xzf flag-icons-*.tgz)
cp "$work/package/LICENSE" LICENSE
rm -f ./*.png
sed -e '/^#/d' -e 1d ../../libs/airdb/data/countries.csv | cut -d, -f1 | tr '[:upper:]' '[:lower:]' |
    while read -r code; do
        picture=$work/package/flags/4x3/$code.svg
        [ -f "$picture" ] || continue
        rsvg-convert --width 40 --height 30 --output "$code.png" "$picture"
        optipng -quiet -strip all "$code.png"
    done
