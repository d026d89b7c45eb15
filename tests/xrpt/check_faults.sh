#!/bin/sh
# Every call on the way of a save is made to fail once, with each of several reasons: the file is the old one or the new
# one, whole, the exit status says which, and nothing else is left. A file of several names, which is written in place,
# may be torn only when all of it lies beside.
# usage: check_faults.sh XRPT SHIM REPORT
set -eu
xrpt=$1
shim=$2
report=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/folder"
out=$work/folder/out.xrpt
runs=0
echo old >"$work/old"
python3 -c 'import os, sys; os.setxattr(sys.argv[1], "user.kept", b"yes")' "$work/old" 2>/dev/null ||
  echo "extended attributes are not to be had here"

fail() {
  echo "$kind: call $call number $n, error $errno, status $status: $*"
  ls -la "$work/folder"
  cat "$work/stderr"
  exit 1
}
is_new() { [ -e "$1" ] && tail -n 1 "$1" | grep -q '</reportLayout>'; }
is_old() { [ "$(cat "$1" 2>/dev/null)" = old ]; }

prepare() {
  rm -rf "$work/folder" "$work/name" "$work/hit"
  mkdir "$work/folder"
  case $kind in
    replaced) cp --preserve=all "$work/old" "$out" ;;
    linked) cp --preserve=all "$work/old" "$out" && ln "$out" "$work/name" ;;
  esac
}

check() {
  if [ "$status" -eq 0 ]; then
    is_new "$out" || fail "the save is said to have succeeded"
  elif [ "$status" -ne 2 ] || [ ! -s "$work/stderr" ]; then
    fail "no reason given"
  elif [ "$kind" = new ]; then
    [ ! -e "$out" ] || fail "a failed save left a file"
  elif ! is_old "$out"; then
    [ "$kind" = linked ] && is_new "$out.recovered" || fail "the old file is gone"
  fi
  [ "$call" = unlink ] && return 0
  [ -z "$(find "$work/folder" -name '.xrpt-*')" ] || fail "a temporary file is left"
  [ "$status" -ne 0 ] || [ ! -e "$out.recovered" ] || fail "a copy is left"
}

for kind in replaced new linked; do
  for call in open write fsync rename fchmod fchown flock fstat stat lseek read ftruncate posix_fallocate faccessat \
    listxattr getxattr fsetxattr unlink; do
    for errno in 28 5 1 0; do # no space, input/output, not permitted, half a write
      [ $errno -ne 0 ] || [ $call = write ] || continue
      n=0
      while n=$((n + 1)); do
        prepare
        status=0
        ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0 XDG_STATE_HOME="$work/state" FAULT_FOLDER="$work/folder" \
          FAULT_CALL=$call FAULT_NTH=$n FAULT_ERRNO=$errno FAULT_HIT="$work/hit" LD_PRELOAD="$shim" \
          "$xrpt" resave "$report" -o "$out" >/dev/null 2>"$work/stderr" || status=$?
        runs=$((runs + 1))
        check
        [ -e "$work/hit" ] || break
      done
    done
  done
done
echo "$runs saves"
