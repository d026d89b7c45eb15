#!/bin/sh
# Two processes, each in a process namespace of its own where the system allows, save different reports into one folder
# again and again: neither ever gets the other's content.
# usage: check_neighbours.sh XRPT REPORT [SAVES]
set -eu
xrpt=$1
report=$2
saves=${3:-40}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/folder"
apart=
unshare --pid --fork true 2>/dev/null && apart="unshare --pid --fork"

# The leak checker of a sanitizer build looks for itself in /proc, which there shows the numbers outside.
export ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0"
# Everything a process starts in a namespace of its own has the same numbers as the other's.
cat >"$work/save" <<'END'
set -eu
for i in $(seq "$5"); do
  "$1" resave "$2" -o "$3/$4.xrpt" --name "$4"
  grep -q "<name>$4</name>" "$3/$4.xrpt" || { echo "$4 holds another report" && exit 1; }
done
END
$apart sh "$work/save" "$xrpt" "$report" "$work/folder" left "$saves" &
left=$!
$apart sh "$work/save" "$xrpt" "$report" "$work/folder" right "$saves" &
status=0
wait $! || status=1
wait $left || status=1
[ "$(ls -A "$work/folder" | tr '\n' ' ')" = "left.xrpt right.xrpt " ] || { ls -A "$work/folder" && status=1; }
exit $status
