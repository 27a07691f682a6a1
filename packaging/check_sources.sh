#!/usr/bin/env bash
# What a machine can see of the house style: formatting, conversions, and includes that would walk around the floors.
set -euo pipefail
cd "$(dirname "$0")/.."

if git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
    mapfile -t files < <(git ls-files --cached --others --exclude-standard -- '*.cpp' '*.h' | while read -r f; do
        [ -f "$f" ] && echo "$f"; done)
else
    mapfile -t files < <(find libs src tools tests bench fuzz -name '*.cpp' -o -name '*.h')
fi

if grep -nE '^#include "\.\./' "${files[@]}"; then
    echo "Includes are written \"folder/header.h\", never relative to a parent folder." >&2
    exit 1
fi
# Of a variable; a literal's type may be named so, as in qint64(256).
types='(std::(size_t|ptrdiff_t|u?int(8|16|32|64)_t)|int|double|float|unsigned|q?u?int(8|16|32|64)|qsizetype|bool)'
mapfile -t shipped < <(printf '%s\n' "${files[@]}" | grep -E '^(src|libs|tools)/')
if grep -nP "(?<![\w:<.\"])(?<!operator )$types\((?=[A-Za-z_(])(?!const |\w+ [&*])" "${shipped[@]}" | grep -vE '^[^:]+:[0-9]+: *//'; then
    echo "Conversions are written static_cast<type>(value)." >&2
    exit 1
fi
for file in "${files[@]}"; do
    case "$file" in
    *.h) grep -q '^#pragma once' "$file" || { echo "$file lacks #pragma once" >&2; exit 1; } ;;
    esac
done

formatter=clang-format-14
command -v $formatter >/dev/null || formatter=clang-format
printf '%s\0' "${files[@]}" | xargs -0 -n 32 -P 2 $formatter --dry-run -Werror
echo "${#files[@]} files are as they should be."
