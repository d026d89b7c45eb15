#!/usr/bin/env bash
# Builds the fuzz targets and runs each for the given seconds (60), or the given number of runs when that is done sooner
# (as many as there is time for). What it finds stays in build/fuzz/found.
# usage: fuzz.sh [SECONDS [RUNS]]
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
runs=${2:--1}
cmake --preset fuzz >/dev/null
targets=$(basename -s .cpp -a fuzz/fuzz_*.cpp)
# shellcheck disable=SC2086
cmake --build --preset fuzz --target $targets

# The elements and words that a schema names, a dictionary's entry each.
words_of() {
  grep -oE '<element name="[^"]+' "$1" | sed -E 's/.*"(.*)/"<\1>"/'
  grep -oE '<value type="string">[^<]+' "$1" | sed -E 's/.*>(.*)/"\1"/'
}

run() {
  target=$1
  corpus=build/fuzz/corpus/$target
  mkdir -p "$corpus"
  dictionary=build/fuzz/$target.dict
  cat "fuzz/$target.dict" >"$dictionary"
  case $target in fuzz_report | fuzz_clipboard) words_of docs/xrpt.rng | sort -u >>"$dictionary" ;; esac
  "$(find build/fuzz -name "$target" -type f -perm -u+x | head -1)" "$corpus" "fuzz/corpus/$target" \
    -dict="$dictionary" -max_total_time="$seconds" -runs="$runs" -max_len=20000 -timeout=10 -rss_limit_mb=2048 \
    -artifact_prefix=build/fuzz/found/ -print_final_stats=1 -verbosity=0
}

# As many at a time as there are processors, so that each has its seconds.
mkdir -p build/fuzz/found
export -f run words_of
export seconds runs
# shellcheck disable=SC2086
printf '%s\n' $targets | xargs -P "$(nproc)" -I{} bash -euo pipefail -c 'run {} 2>&1 | sed "s/^/{}: /"'
