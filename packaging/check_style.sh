#!/usr/bin/env bash
# Runs clang-tidy with the checks of .clang-tidy: over what was changed lately, at most twelve sources, those not yet
# committed first; over the sources named; or over all of them (some twenty minutes on two cores).
#     check_style.sh [--all | FILE.cpp...]
set -euo pipefail
cd "$(dirname "$0")/.."
most=12

tidy=clang-tidy-14
command -v $tidy >/dev/null || tidy=clang-tidy
command -v $tidy >/dev/null || { echo "clang-tidy is not installed: skipped." >&2; exit 0; }

# It reads each source by itself, as no unity build and no precompiled header shows it, and needs what MOC makes.
build=build/tidy
cmake --preset tidy >/dev/null
cmake --build $build --target autogen build_info >/dev/null

compiled() { sed -n 's|^ *"file": "'"$PWD"'/\(.*\.cpp\)",\{0,1\}$|\1|p' $build/compile_commands.json | grep -v '^build/'; }
changed() {
    git rev-parse --is-inside-work-tree >/dev/null 2>&1 || return 0
    { git diff --name-only HEAD; git ls-files --others --exclude-standard; git log -40 --format= --name-only; } |
        awk '/\.cpp$/ && !seen[$0]++'
}

case "${1:-}" in
--all) mapfile -t files < <(compiled) ;;
"") mapfile -t files < <(changed | grep -xFf <(compiled) | head -$most) ;;
*) files=("$@") ;;
esac
[ ${#files[@]} -gt 0 ] || { echo "Nothing has changed."; exit 0; }

# The count of warnings in system headers, which nobody asked for, goes.
printf '%s\0' "${files[@]}" | xargs -0 -n 1 -P "$(nproc)" $tidy --quiet -p $build 2> >(grep -vE '^[0-9]+ warnings? ' >&2)
echo "${#files[@]} sources are in the one dialect."
