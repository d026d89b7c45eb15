#!/bin/sh
# Copies cards in one editor and pastes them in another, on a screen of its own. Takes the editor and the sample folders.
# 77 where there is no X server or nobody to type.
set -eu
editor=$1
samples=$2
for tool in Xvfb xdotool; do
  command -v $tool >/dev/null || { echo "no $tool here"; exit 77; }
done

work=$(mktemp -d)
started=""
stop() {
  for process in $started; do kill "$process" 2>/dev/null || true; done
  rm -rf "$work"
}
trap stop EXIT

Xvfb -displayfd 3 -screen 0 1400x900x24 3>"$work/display" >/dev/null 2>&1 &
started="$!"
for _ in $(seq 50); do [ -s "$work/display" ] && break; sleep 0.1; done
DISPLAY=:$(cat "$work/display")
XDG_RUNTIME_DIR=$work
export DISPLAY XDG_RUNTIME_DIR
unset QT_QPA_PLATFORM

# Starts an editor with folders of its own on a report and prints its window.
start() {
  cp -r "$samples/config" "$work/$1"
  XDG_CONFIG_HOME=$work/$1 XDG_STATE_HOME=$work/$1 "$editor" --config "$work/$1" --images "$samples/images" "$2" \
    >"$work/$1.log" 2>&1 &
  process=$!
  started="$started $process"
  window=$(timeout 20 xdotool search --sync --onlyvisible --pid "$process" | head -n 1)
  sleep 2
}
keys() {
  xdotool windowfocus --sync "$1"
  shift
  for key in "$@"; do xdotool key "$key"; sleep "$pause"; done
}
cards() { grep -c '<horizontalAlign>' "$work/$1"/*.Line_comparison.xrpt; }

start first Consumo_mensual
first=$window
start second Line_comparison
second=$window
before=$(cards second)
after=$before
# A machine that is busy may not be ready for the first keys.
for pause in 0.4 1 2; do
  keys "$first" ctrl+e ctrl+c
  keys "$second" ctrl+v ctrl+s
  for _ in $(seq 20); do
    after=$(cards second)
    [ "$after" -gt "$before" ] && break 2
    sleep 0.3
  done
done
echo "texts and pictures in the second editor's report: $before before, $after after pasting"
[ "$after" -gt "$before" ]
