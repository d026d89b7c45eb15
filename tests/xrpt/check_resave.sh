#!/bin/sh
# Saving twice in a row changes the revision alone, every sample comes back as it was, and what the saver writes fits the
# schema: the samples', and a page on which every kind of card was drawn.
# usage: check_resave.sh XRPT EXAMPLES
set -eu
xrpt=$1
examples=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

: >"$work/none"
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
  xmllint --noout --relaxng "$examples/../docs/xrpt.rng" "$work/twice.xrpt" 2>/dev/null
done

"$xrpt" resave "$report" --images "$examples/images" -o - >"$work/piped.xrpt"
same_but_revision "$report" "$work/piped.xrpt"

# In a folder without its styles what is lost is counted, and the exit status stays.
references=$(grep -cE '<style>[0-9A-F-]{36}</style>' "$report")
for command in resave edit; do
  "$xrpt" $command "$report" --config "$work" -o "$work/bare.xrpt" $([ $command = resave ] || echo --actions "$work/none") \
    2>"$work/stderr"
  [ "$(grep -c "warning: $references references" "$work/stderr")" -eq 1 ] || { cat "$work/stderr" && exit 1; }
done

y=20
for tool in label image date formule conditioned reportGraph analogBar primitive; do
  echo "tool $tool"
  echo "press 720 $y"
  echo "move 820 $((y + 40))"
  echo "release 820 $((y + 40))"
  y=$((y + 60))
done >"$work/draw"
echo print >>"$work/draw"
"$xrpt" edit "$examples/../tests/scripts/plain.xrpt" -o "$work/drawn.xrpt" --actions "$work/draw" >"$work/state"
[ "$(grep -o '"tag"' "$work/state" | wc -l)" -eq 11 ] || { echo "not every kind was drawn"; exit 1; }
xmllint --noout --relaxng "$examples/../docs/xrpt.rng" "$work/drawn.xrpt"

"$xrpt" resave "$report" --config "$examples/config" -o "$work/renamed.xrpt" --name Other
grep -q '<name>Other</name>' "$work/renamed.xrpt"
if diff "$report" "$work/renamed.xrpt" | grep '^<' | grep -vE '<(id|name|revision)>'; then exit 1; fi
