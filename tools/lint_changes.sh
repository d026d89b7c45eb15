#!/usr/bin/env bash
# What clang-tidy says of the lines changed since a commit: CI_BASE, else where this branch left origin, else the commit
# before. Faults (bugprone, performance) fail; all else is advice. Ten minutes at most: what is left then is left out.
# Needs build/dev, built.
set -euo pipefail
cd "$(dirname "$0")/.."
head=$(git rev-parse HEAD)
base=${CI_BASE:-}
[ -n "$base" ] || base=$(git merge-base HEAD origin/HEAD 2>/dev/null || git merge-base HEAD origin/main 2>/dev/null || true)
[ -n "$base" ] && [ "$(git rev-parse "$base")" != "$head" ] || base=$(git rev-parse --verify -q HEAD~1 || true)
[ -n "$base" ] || { echo "no commit to compare with"; exit 0; }

tools/compile_alone.py build/dev --database build/lint
status=0
git diff -U0 "$base" -- 'src/*.h' 'src/*.cpp' 'bench/*.cpp' |
  timeout 600 clang-tidy-diff-14.py -clang-tidy-binary clang-tidy-14 -p1 -path build/lint -j "$(nproc)" -quiet \
    >build/lint/said 2>&1 || status=$?
grep -vE '^$|^No relevant changes found|warnings? (generated|treated as)|errors? generated' build/lint/said || true
[ "$status" -ne 124 ] || echo "not all of it was looked at: ten minutes are over"
! grep -qE ': error: ' build/lint/said
