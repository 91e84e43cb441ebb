#!/bin/sh
# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# Installs those packages of packages.txt that are missing. Does nothing, and needs no rights,
# when all are there.
set -eu

list=$(dirname "$0")/packages.txt

if ! command -v dpkg-query >/dev/null; then
    echo "This is not a Debian system: install what $list names, then call cmake directly." >&2
    exit 1
fi

missing=
for package in $(sed 's/#.*//' "$list"); do
    case $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) in
    installed*) ;;
    *) missing="$missing $package" ;;
    esac
done
[ -n "$missing" ] || exit 0

if [ "$(id -u)" = 0 ]; then
    as_root=
elif command -v sudo >/dev/null; then
    as_root=sudo
else
    echo "These packages are missing, and installing them needs root or sudo:$missing" >&2
    echo "As root: apt-get update && apt-get install --no-install-recommends$missing" >&2
    exit 1
fi

log=$(mktemp)
trap 'rm -f "$log"' EXIT

apt_get() {
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get -y "$@" >>"$log" 2>&1
}

echo "Installing packages:$missing"
# shellcheck disable=SC2086 # a list of names, meant to be split
if ! { apt_get update && apt_get install --no-install-recommends $missing; }; then
    cat "$log" >&2
    echo "The packages could not be installed." >&2
    echo "As root: apt-get update && apt-get install --no-install-recommends$missing" >&2
    exit 1
fi
