#!/usr/bin/env bash
# Brings the files of translations up to the texts in the sources: new texts come in empty, texts that are gone go.
#     update.sh [FOLDER]   those in FOLDER rather than those beside this script
# LUPDATE: Qt's program of that name, where it is not found by itself (package qt6-l10n-tools).
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
folder=$(cd "${1:-$here}" && pwd)
cd "$here/.."
lupdate=${LUPDATE:-$(PATH=/usr/lib/qt6/bin:$PATH command -v lupdate)}

includes=(-I src)
for include in libs/*/include; do
    includes+=(-I "$include")
done
# The command line is read, and answered in English, before it is known which language is chosen.
mapfile -t sources < <(find src libs -name '*.cpp' -o -name '*.h' | grep -v '/command_line' | LC_ALL=C sort)
update() { "$lupdate" "${sources[@]}" "${includes[@]}" -no-obsolete -locations none "$@"; }

update -ts "$folder"/vyxdisplay_{de,zh_CN}.ts
update -pluralonly -ts "$folder/vyxdisplay_en.ts" # English itself needs but its plurals
