#!/usr/bin/env bash
# Builds the fuzz targets and runs each for the given seconds (60). What it finds stays in build/fuzz/found.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
cmake --preset fuzz >/dev/null
targets=$(basename -s .cpp -a fuzz/fuzz_*.cpp)
# shellcheck disable=SC2086
cmake --build --preset fuzz --target $targets
mkdir -p build/fuzz/found
for target in $targets; do
  corpus=build/fuzz/corpus/$target
  mkdir -p "$corpus"
  "$(find build/fuzz -name "$target" -type f -perm -u+x | head -1)" "$corpus" "fuzz/corpus/$target" \
    -dict="fuzz/$target.dict" -max_total_time="$seconds" -max_len=20000 -timeout=10 -rss_limit_mb=2048 -artifact_prefix=build/fuzz/found/ \
    -print_final_stats=1 -verbosity=0
done
