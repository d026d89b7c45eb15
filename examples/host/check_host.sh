#!/bin/sh
# check_host.sh PROGRAM FOLDER: what the sample host says it did, and what the saved report holds.
set -eu
rm -rf "$2"
said=$("$1" "$2")
expect() { printf '%s\n' "$said" | grep -qF -- "$1" || { printf 'missing: %s\nin:\n%s\n' "$1" "$said"; exit 1; }; }
expect 'new: Unnamed shift sheet'
expect '[MAIN.P] * PRICE = 17.111 (0)'
expect 'undone: 1, cards 0'
expect 'asked: '
expect '.report1.xrpt'
grep -qF '[MAIN.P] * PRICE' "$2"/*.report1.xrpt
"$1" 2>/dev/null && exit 1
[ $? -eq 2 ]
