#!/usr/bin/env bash
# Makes the pictures of docs/manual and docs/pictures anew, without a screen; some minutes. With names it makes those
# sittings alone: shown-night shown-dusk shown-day shown-classic shown-surface (docs/pictures), night dusk day alerts
# weather video surface windows playback
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${PRESET:-dev}
[ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"
cmake --build --preset "$preset" --target manual_pictures
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 TZ=UTC
export XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home XDG_CACHE_HOME=$home
"build/$preset/bin/manual_pictures" docs "$@"
