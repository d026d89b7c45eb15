#!/bin/sh
# What the command line refuses: exit status 2, a reason on standard error that names file or line, and no output file.
# usage: check_refusals.sh XRPT FOLDER   (FOLDER holds plain.xrpt)
set -u
xrpt=$1
folder=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

# refuse WHAT-THE-MESSAGE-HOLDS ARGUMENTS...
refuse() {
  wanted=$1
  shift
  "$xrpt" "$@" >"$work/stdout" 2>"$work/stderr"
  status=$?
  if [ $status -ne 2 ] || ! grep -q -- "$wanted" "$work/stderr" || [ -e "$work/out.xrpt" ]; then
    echo "xrpt $*: status $status, wanted 2 and \"$wanted\", got: $(cat "$work/stderr")"
    failed=1
  fi
  rm -f "$work/out.xrpt"
}

# script LINE-OF-THE-MISTAKE TEXT
script() {
  printf "$2" >"$work/actions"
  refuse "actions:$1:" edit "$folder/plain.xrpt" -o "$work/out.xrpt" --actions "$work/actions"
}

script 2 'press 10 10\nfly 1 2\n'
script 1 'press 10\n'
script 1 'press 10 ten\n'
script 1 'press 10 10 alt\n'
script 3 '# a comment\n\nzoom huge\n'
script 1 'zoom -1\n'
script 1 'zoom 1001\n'
script 1 'client 2147483647 800\n'
script 1 'dpi 96 10001\n'
script 1 'tick 2147483647\n'
script 1 'tool hammer\n'
script 1 'key Hyper\n'
script 1 'command Explode\n'
script 1 'set a text "never closed\n'
script 1 'move 99999999999 1\n'
script 1 'print now\n'
script 1 'page 7\n'
script 1 'select nobody\n'
script 2 'select a\nset a shoeSize 44\n'
script 1 'command Print\n'

printf '' >"$work/file"
printf 'not xml' >"$work/text.xrpt"
printf '' >"$work/empty.xrpt"
refuse text.xrpt resave "$work/text.xrpt" -o "$work/out.xrpt"
refuse empty.xrpt resave "$work/empty.xrpt" -o "$work/out.xrpt"
refuse "$work" resave "$work" -o "$work/out.xrpt"
printf '<svg><g/></svg>' >"$work/picture.svg"
refuse 'not a report' resave "$work/picture.svg" -o "$work/out.xrpt"
refuse 'not a report' edit "$work/picture.svg" -o "$work/out.xrpt" --actions "$work/file"
mkfifo "$work/pipe"
refuse 'Not a plain file' edit "$folder/plain.xrpt" -o "$work/out.xrpt" --actions "$work/pipe"
refuse 'Not a plain file' resave "$work/pipe" -o "$work/out.xrpt"
refuse 'Not a plain file' resave "$folder/plain.xrpt" -o "$work/pipe"
refuse missing.xrpt resave "$work/missing.xrpt" -o "$work/out.xrpt"
refuse 'required' resave "$folder/plain.xrpt"
refuse 'dpi' resave "$folder/plain.xrpt" -o "$work/out.xrpt" --dpi 0
printf 'command Save\n' >"$work/actions"
refuse 'actions:1: .*Not a directory' edit "$folder/plain.xrpt" --config "$work/file" -o "$work/out.xrpt" --actions "$work/actions"
if "$xrpt" resave "$folder/plain.xrpt" -o - >/dev/full 2>"$work/stderr"; then
  echo "a full disk behind standard output went unnoticed"
  failed=1
fi
refuse nowhere resave "$folder/plain.xrpt" -o "$work/nowhere/out.xrpt"

# Control characters of content, names and arguments never reach a terminal.
escape=$(printf '\033')
sed "s/<name>.*<\/name>/<name>\&#27;[2J\&#155;31m<\/name>/" "$folder/plain.xrpt" >"$work/evil$escape[2J.xrpt"
{
  "$xrpt" info "$work/evil$escape[2J.xrpt"
  "$xrpt" info "$work/evil$escape[2J.xrpt" --format json
  "$xrpt" info "$work/none$escape[2J.xrpt"
  "$xrpt" info --none "$escape[2J"
  "$xrpt" edit "$work/evil$escape[2J.xrpt" -o "$work/out.xrpt" --actions "$work/none$escape[2J"
} >"$work/stdout" 2>&1
if LC_ALL=C grep -q "$(printf '[\001-\010\013-\037\177]\|\302\233')" "$work/stdout"; then
  echo "a control character came through:" && cat -v "$work/stdout"
  failed=1
fi
exit $failed
