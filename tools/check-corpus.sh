#!/bin/sh
# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# check-corpus.sh BUILD_DIR [FOLDER]
#
# Takes every .ics file below FOLDER through the built program: it imports without a crash, changes
# nothing when imported again, and its export makes an equal calendar in a new database. Without
# FOLDER the one that the variable CALENDAR_FOLDER names is taken, or calendars/ in the checkout,
# where real calendars can lie that nobody else is to see; where there is none, nothing is checked.
# Prints each file that fails, then "N passed, N failed".

set -u

if [ $# -lt 1 ] || [ $# -gt 2 ]; then
    echo "usage: check-corpus.sh BUILD_DIR [FOLDER]" >&2
    exit 2
fi
checkout=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "$1" && pwd) || exit 2
folder=${2:-${CALENDAR_FOLDER:-$checkout/calendars}}
daskel=$build/app/cli/daskel
repeated=$build/platform/mkcal/tests/tst_importrepeated

if [ ! -d "$folder" ]; then
    echo "no folder of calendars at $folder: nothing to check"
    exit 0
fi
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

# import DATABASE FILE: the line of counts in $counts; 0 when the program ended as it should (3 says
# that items were skipped).
import() {
    counts=$("$daskel" --data "$work/$1" import "$2" 2>"$work/messages")
    code=$?
    [ $code -eq 0 ] || [ $code -eq 3 ]
}

# written DATABASE: its export in DATABASE.ics, without the moment at which it was written.
written() {
    "$daskel" --data "$work/$1" export "$work/whole.ics" 2>"$work/messages" &&
        grep -v '^DTSTAMP:' "$work/whole.ics" >"$work/$1.ics"
}

# check FILE: prints why it fails.
check() {
    rm -rf "$work/first" "$work/second"
    if ! import first "$1"; then
        echo "import ended with $code: $(tail -n 3 "$work/messages")"
    elif ! import first "$1"; then
        echo "the second import ended with $code: $(tail -n 3 "$work/messages")"
    elif [ "${counts#new 0, changed 0,}" = "$counts" ]; then
        echo "the second import found something new: $counts"
    elif ! written first; then
        echo "export failed: $(tail -n 3 "$work/messages")"
    elif ! import second "$work/whole.ics" || [ $code -ne 0 ]; then
        echo "what was exported is not read back whole: $(tail -n 3 "$work/messages")"
    elif ! written second; then
        echo "the second export failed: $(tail -n 3 "$work/messages")"
    elif ! cmp -s "$work/first.ics" "$work/second.ics"; then
        echo "the calendar comes back different:"
        diff "$work/first.ics" "$work/second.ics" | head -n 10
    fi
}

passed=0
failed=0
find "$folder" -type f -name '*.ics' | sort >"$work/files"
while read -r file; do
    reason=$(check "$file")
    if [ -z "$reason" ]; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        printf '%s: %s\n' "${file#"$folder"/}" "$reason"
    fi
done <"$work/files"

# The same in memory, incidence by incidence and getter by getter, east and west of Greenwich.
if [ -x "$repeated" ]; then
    if CALENDAR_FOLDER=$folder "$repeated" >"$work/messages" 2>&1; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        grep -A 3 '^FAIL' "$work/messages"
    fi
fi

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
