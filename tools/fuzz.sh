#!/usr/bin/env bash
# Builds the fuzz targets and runs each for the given seconds (60). What it finds stays in build/fuzz/found.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
cmake --preset fuzz >/dev/null
targets=$(basename -s .cpp -a fuzz/fuzz_*.cpp)
# shellcheck disable=SC2086
cmake --build --preset fuzz --target $targets

# The elements and words that a schema names, a dictionary's entry each.
words_of() {
  grep -oE '<element name="[^"]+' "$1" | sed -E 's/.*"(.*)/"<\1>"/'
  grep -oE '<value type="string">[^<]+' "$1" | sed -E 's/.*>(.*)/"\1"/'
}

mkdir -p build/fuzz/found
for target in $targets; do
  corpus=build/fuzz/corpus/$target
  mkdir -p "$corpus"
  dictionary=build/fuzz/$target.dict
  cat "fuzz/$target.dict" >"$dictionary"
  [ "$target" != fuzz_report ] || words_of docs/xrpt.rng | sort -u >>"$dictionary"
  "$(find build/fuzz -name "$target" -type f -perm -u+x | head -1)" "$corpus" "fuzz/corpus/$target" \
    -dict="$dictionary" -max_total_time="$seconds" -max_len=20000 -timeout=10 -rss_limit_mb=2048 -artifact_prefix=build/fuzz/found/ \
    -print_final_stats=1 -verbosity=0
done
