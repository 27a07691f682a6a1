#!/usr/bin/env bash
# Draws the application's icon anew in the sizes that desktops ask for. Needs rsvg-convert (librsvg2-bin) and optipng.
set -euo pipefail
cd "$(dirname "$0")"

for size in 16 22 24 32 48 64 128 256 512; do
    picture=vyxdisplay-$size.png
    rsvg-convert --width "$size" --height "$size" --output "$picture" vyxdisplay.svg
    optipng -quiet -strip all "$picture"
done
