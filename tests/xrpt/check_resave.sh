#!/bin/sh
# Saving twice in a row changes the revision alone, and every sample comes back as it was.
# usage: check_resave.sh XRPT EXAMPLES
set -eu
xrpt=$1
examples=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

same_but_revision() {
  if diff "$1" "$2" | grep '^[<>]' | grep -v '<revision>'; then
    echo "$2 differs from $1 in more than its revision"
    exit 1
  fi
  if cmp -s "$1" "$2"; then
    echo "$2 has no revision of its own"
    exit 1
  fi
}

for report in "$examples"/config/*.xrpt; do
  "$xrpt" resave "$report" --images "$examples/images" -o "$work/once.xrpt"
  "$xrpt" resave "$work/once.xrpt" --config "$examples/config" --images "$examples/images" -o "$work/twice.xrpt"
  same_but_revision "$report" "$work/once.xrpt"
  same_but_revision "$work/once.xrpt" "$work/twice.xrpt"
done

"$xrpt" resave "$report" --config "$examples/config" -o "$work/renamed.xrpt" --name Other
grep -q '<name>Other</name>' "$work/renamed.xrpt"
if diff "$report" "$work/renamed.xrpt" | grep '^<' | grep -vE '<(id|name|revision)>'; then exit 1; fi
