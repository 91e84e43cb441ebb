#!/bin/sh
# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# run-demo.sh BUILD_DIR [--today DATE]
# Fills a demonstration database from the sample calendars, placed around today (or DATE), and
# prints the agenda of the next four weeks; where there is a display, opens the calendar on it.
# run-demo.sh BUILD_DIR --pictures DIR
# fills it and writes a picture of every page of the calendar into the folder DIR.
# run-demo.sh BUILD_DIR --data DIR
# prints the agenda of the database in the folder DIR instead.
set -eu

build=$(cd "$1" && pwd)
shift
demo=$(cd "$(dirname "$0")" && pwd)
daskel=$build/app/cli/daskel
calendar=$build/app/calendar/daskel-calendar

usage() {
    echo "usage: ./run [--data DIR | --today DATE | --pictures DIR]" >&2
    exit 2
}

# The people of the samples live in Helsinki: their agenda is the same wherever this runs.
zone=Europe/Helsinki
today=$(TZ=$zone date +%F)
from=
pictures=
case ${1-} in
--data)
    [ $# -eq 2 ] || usage
    exec "$daskel" --data "$2" agenda --days 28
    ;;
--today)
    [ $# -eq 2 ] || usage
    today=$2
    from="--from $today"
    ;;
--pictures)
    [ $# -eq 2 ] || usage
    mkdir -p "$2"
    pictures=$(cd "$2" && pwd)
    ;;
?*) usage ;;
esac
export TZ=$zone

# Runs a command on the database and shows how it is called.
show() {
    echo "\$ daskel $*" | sed "s/#[0-9A-F]*/'&'/"
    "$daskel" --data "$data" "$@"
    echo
}

data=$build/demo
rm -rf "$data"
"$demo/place_samples.py" --today "$today" "$data/samples" \
    "$demo/samples/work.ics" "$demo/samples/family.ics"
cd "$data/samples"
show notebook add Work --color '#1565C0'
show import --notebook Work work.ics
show import family.ics
# Empty, or two words.
# shellcheck disable=SC2086
show agenda $from --days 28
show todos
echo "Times are those of $zone, where the people of the samples live."
echo "The demonstration database is in $data. Try:"
echo "  $daskel --data $data --help"
if [ -n "$pictures" ]; then
    # Without a display, and with the settings of nobody.
    XDG_CONFIG_HOME=$data QT_QPA_PLATFORM=offscreen "$calendar" --data "$data" --pictures "$pictures"
    echo "The pictures are in $pictures."
elif [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
    exec "$calendar" --data "$data"
else
    echo "  $calendar --data $data     (needs a display)"
fi
