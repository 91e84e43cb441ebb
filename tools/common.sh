# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# Sourced by run and bench, whose working directory is the project's root.

# stage NAME COMMAND...: runs the command, prints the name and the seconds it took; on failure
# prints what the command said and ends the script.
stage() {
    stage_name=$1
    shift
    mkdir -p build
    stage_log=build/$stage_name.log
    stage_start=$(date +%s)
    if ! "$@" >"$stage_log" 2>&1; then
        cat "$stage_log" >&2
        echo "$stage_name failed" >&2
        exit 1
    fi
    printf '%-28s %4d s\n' "$stage_name" $(($(date +%s) - stage_start)) >&2
}
