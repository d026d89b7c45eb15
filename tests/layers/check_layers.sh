#!/bin/sh
# No layer includes one above it, and nothing but the desktop, host/qt and host/http sees the toolkit. Takes the repository's root.
set -eu
cd "$1/src"
status=0

# layer: what it must not include
forbid() {
  layer=$1
  shift
  for above in "$@"; do
    if grep -rnE "^#include \"$above/" "$layer"; then
      echo "$layer reaches up to $above"
      status=1
    fi
  done
}
forbid platform model canvas formulas editor host desktop xrpt
forbid model canvas formulas editor host desktop xrpt
forbid canvas formulas editor host desktop xrpt
forbid formulas editor host desktop xrpt
forbid editor host desktop xrpt
forbid host model canvas formulas editor desktop xrpt
forbid xrpt desktop

if grep -rnE '^#include [<"]Q[A-Za-z]' --include='*.h' --include='*.cpp' . | grep -vE '^\./(desktop|host/qt|host/http)/'; then
  echo "the toolkit is seen outside desktop, host/qt and host/http"
  status=1
fi
exit $status
