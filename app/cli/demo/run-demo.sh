#!/bin/sh
# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# run-demo.sh BUILD_DIR [--data DIR]
# Fills a demonstration database from the sample calendars, placed around today, and prints the
# agenda of the next four weeks. With --data it reads the database of that folder instead.
set -eu

build=$1
shift
demo=$(cd "$(dirname "$0")" && pwd)
daskel=$build/app/cli/daskel

if [ $# -gt 0 ]; then
    exec "$daskel" "$@" agenda --days 28
fi

work=11111111-aaaa-4000-8000-000000000001
data=$build/demo
rm -rf "$data"
"$demo/place_samples.py" "$data/samples" "$demo/samples/work.ics" "$demo/samples/family.ics"
"$daskel" --data "$data" notebook add Work --uid $work --color '#1565C0' >/dev/null
echo "\$ daskel import --notebook Work work.ics"
"$daskel" --data "$data" import --notebook $work "$data/samples/work.ics"
echo "\$ daskel import family.ics"
"$daskel" --data "$data" import "$data/samples/family.ics"
echo "\$ daskel agenda --days 28"
"$daskel" --data "$data" agenda --days 28
echo
echo "\$ daskel todos"
"$daskel" --data "$data" todos
echo
echo "The demonstration database is in $data. Try:"
echo "  $daskel --data $data --help"
