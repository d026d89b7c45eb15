#!/bin/sh
# xrpt render over the samples: documents have their pages and their text, pictures their size, mistakes their status.
# Takes the program and the folder of examples.
set -eu
xrpt=$1
examples=$2
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

fail() {
  echo "$*"
  exit 1
}
render() { "$xrpt" render --config "$examples/config" --images "$examples/images" "$@"; }
refuse() {
  status=0
  render "$@" >"$out/stdout" 2>"$out/stderr" || status=$?
  [ "$status" -eq 2 ] || fail "status $status for: $*"
  [ -s "$out/stderr" ] && [ ! -s "$out/stdout" ] || fail "no reason given for: $*"
}

render Power_quality -o "$out/all.pdf"
pdfinfo "$out/all.pdf" | grep -q '^Pages: *3$' || fail "not three pages"
pdfinfo -f 3 -l 3 "$out/all.pdf" | grep -q 'size: *595 x 842' || fail "not A4"
pdftotext "$out/all.pdf" - | grep -q 'Supply within EN 50160 for the whole period' || fail "text is no text in the PDF"
render Tarifa_y_costes -o "$out/one.pdf" --page 2
pdfinfo "$out/one.pdf" | grep -q '^Pages: *1$' || fail "not one page"
pdfinfo "$out/one.pdf" | grep -q 'size: *842 x 595' || fail "not landscape"

render Power_quality -o "$out/page.svg" --page 2
xmllint --noout "$out/page.svg"
grep -q '>Voltage harmonics by order, % of U' "$out/page.svg" || fail "text is no text in the SVG"
grep -q 'width="210mm" height="297mm"' "$out/page.svg" || fail "the SVG has another size"
grep -q '<polyline' "$out/page.svg" || fail "lines are no lines in the SVG"

render "$examples/config/43C9DBED-63A7-55EB-90FA-4092503140BE.Line_comparison.xrpt" -o "$out/page.PNG" --dpi 100
file=$(od -An -tx1 -j16 -N8 "$out/page.PNG" | tr -d ' \n')
[ "$file" = 000004910000033b ] || fail "the picture is not 1169 by 827: $file"

refuse Power_quality -o "$out/none.pdf" --page 4
refuse Power_quality -o "$out/none.svg" --page 0
refuse Power_quality -o "$out/none.jpg"
refuse No_such_report -o "$out/none.pdf"
refuse Power_quality -o "$out/no/such/folder/none.pdf"
refuse Power_quality -o "$out/none.png" --dpi 4800
[ -z "$(ls "$out" | grep none)" ] || fail "a refused rendering left a file"
