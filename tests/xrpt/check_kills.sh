#!/bin/sh
# Saves that are killed at any moment: the file is whole each time, and nothing they left survives the clearing.
# usage: check_kills.sh XRPT SHIM REPORT [KILLS]
set -eu
xrpt=$1
shim=$2
report=$3
kills=${4:-40}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/folder"
out=$work/folder/out.xrpt

# Large enough that a save takes a while.
page=$(sed -n '/<page>/,/<\/page>/p' "$report")
{
  sed '/<page>/,$d' "$report"
  for i in $(seq 12); do echo "$page"; done
  sed '1,/<\/page>/d' "$report" | sed '/<page>/,/<\/page>/d'
} >"$work/large.xrpt"
"$xrpt" resave "$work/large.xrpt" --config "$(dirname "$report")" -o "$out" 2>"$work/stderr"

# With the writing itself slowed down, for that is the moment to hit.
resave() {
  ASAN_OPTIONS=verify_asan_link_order=0 FAULT_FOLDER="$work/folder" FAULT_SLOW=yes LD_PRELOAD="$shim" \
    exec "$xrpt" resave "$out" --config "$(dirname "$report")" -o "$out"
}
start=$(date +%s%N)
(resave)
took=$((($(date +%s%N) - start) / 1000000 + 1))
torn=0
left=0
for i in $(seq "$kills"); do
  resave &
  process=$!
  sleep "$(printf '0.%03d' $((i * took / kills)))"
  kill -9 $process 2>/dev/null || true
  wait $process 2>/dev/null || true
  tail -n 1 "$out" | grep -q '</reportLayout>' || torn=$((torn + 1))
  left=$((left + $(find "$work/folder" -name '.xrpt-*' | wc -l)))
  "$xrpt" clean "$work/folder" >/dev/null
  [ "$(ls -A "$work/folder")" = out.xrpt ] || { echo "left: $(ls -A "$work/folder")" && exit 1; }
done
echo "$kills kills within $took ms each, $left temporary files found and cleared, $torn torn files"
[ $torn -eq 0 ] && [ $left -gt 0 ]
