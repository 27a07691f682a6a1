#!/usr/bin/env bash
# Every option that a program's --help names stands in its manual page and is completed by bash and zsh, and they name none
# that it does not have. Files that desktops read are valid, where the programs that know are installed.
#     check_options.sh BIN SOURCE PROGRAM...
set -euo pipefail
bin=$1
source=$2
shift 2
failures=0

# Options of two dashes in what is read, one a line.
options() { grep -oE -- '--[a-z][a-z0-9-]*' | sort -u; }

# compare PROGRAM WHERE WANTED FOUND
compare() {
    local difference
    difference=$(comm -3 <(echo "$3") <(echo "$4") | sed 's/^\t\(.*\)/\1 (unknown to --help)/' | tr '\n' ' ')
    if [ -n "$difference" ]; then
        echo "$1: $2 differs from --help: $difference" >&2
        failures=$((failures + 1))
    fi
}

# What bash offers for "PROGRAM [COMMAND] --".
completed() {
    COMP_WORDS=("$@" --)
    COMP_CWORD=$#
    "_${1//-/_}"
    printf '%s\n' "${COMPREPLY[@]}"
}

for program in "$@"; do
    help=$("$bin/$program" --help)
    wanted=$(options <<<"$help")
    compare "$program" "the manual page" "$wanted" "$(sed 's/\\-/-/g' "$source/docs/man/$program.1" | options)"
    # shellcheck disable=SC1090 # each one is read
    . "$source/packaging/completion/bash/$program"
    commands=$(sed -nE "s/^  $program ([a-z]+) .*/\1/p" <<<"$help")
    offered=$(completed "$program"; for command in $commands; do completed "$program" "$command"; done)
    compare "$program" "the completion of bash" "$wanted" "$(options <<<"$offered")"
    # Of commands zsh offers --help by itself in the first place only.
    compare "$program" "the completion of zsh" "$wanted" "$(grep -v '^#' "$source/packaging/completion/zsh/_$program" |
        sed 's/(-[^)]*)//g' | options)"
done

application=$source/resources/application/com.korvane.VyxDisplay
valid() {
    command -v "$1" >/dev/null || return 0
    "$@" || failures=$((failures + 1))
}
valid desktop-file-validate "$application.desktop"
valid appstreamcli validate --no-net "$application.metainfo.xml"
valid xmllint --noout "$application.mime.xml"
exit $((failures > 0))
