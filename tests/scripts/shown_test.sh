#!/usr/bin/env bash
# Proves what the native command promises of the subcommands that show files, which it starts under Wine: names as
# the user wrote them, findings once, pictures of many files by one start, no more than the program itself takes.
# Usage: shown_test.sh CHECKOUT
source "$1/scripts/common.sh"
set +e
folder=$(mktemp -d "$root/build/shown-test.XXXXXX")
export PANELKIT_WINEPREFIX=$folder/wine PANELKIT_WARM_SECONDS=600 LC_ALL=C.UTF-8
unset DISPLAY
failures=0

finish() {
  local pid
  for pid in $(pgrep -f "scripts/warm $PANELKIT_WINEPREFIX "); do kill "$pid" 2>/dev/null; done
  flock -w 60 "$PANELKIT_WINEPREFIX.warm.alive" true
  rm -rf "$folder"
}
trap finish EXIT

native() { "$root/scripts/panelkit" "$@"; }
windows() { "$root/scripts/wine" "$root/build/windows/bin/panelkit.exe" "$@"; }
fail() { echo "$*"; failures=$((failures + 1)); }

# Runs a command and looks at its exit code and at all that it says on standard error.
expect() { # code lines command...
  local code=$1 wanted=$2 got
  shift 2
  "$@" >"$folder/output" 2>"$folder/errors"
  got=$?
  [ "$got" = "$code" ] || fail "$*: exit code $got instead of $code"
  got=$(tr -d '\r' <"$folder/errors")
  [ "$got" = "$wanted" ] || fail "$*: says '$got' instead of '$wanted'"
}

cpu_of() { # command...: the least milliseconds of processor time of three runs
  local i times least=1000000 TIMEFORMAT='%3U %3S'
  for i in 1 2 3; do
    times=$({ time "$@" >/dev/null 2>&1; } 2>&1 | awk '{ print int(($1 + $2) * 1000) }')
    [ "$times" -ge "$least" ] || least=$times
  done
  echo "$least"
}

make_private_prefix "$PANELKIT_WINEPREFIX"
native --version >/dev/null || exit 1 # Builds it.
work=$folder/work
mkdir -p "$work/sub/empty" "$work/folder.png" "$work/out"
cp "$root/examples/lists/lists.dlg" "$root/tests/samples/check/no-label.gbk" "$work/sub"
cp "$root/examples/lists/"*.bmp "$work/sub" 2>/dev/null
cp "$root/tests/samples/check/record-slip.gbk" "$work/sub/slip.dlg"
cd "$work"
slip="sub/../sub/slip.dlg:14:18: error: '1O0' is no number (size); records lost behind it: 1 [record-slip]"
label="sub/no-label.gbk:20:3: warning: no label stands directly before this control in Tab order, or the one that \
does stands elsewhere [no-label]"

for how in native windows; do
  for name in dump inspect check format ids convert; do
    expect 2 "panelkit: cannot open 'no/such.dlg': no such file" "$how" "$name" no/such.dlg
    expect 2 "panelkit: cannot open 'sub': not a regular file" "$how" "$name" sub
    expect 2 "panelkit: The following argument was not expected: --nonsense (panelkit --help tells more)" \
      "$how" "$name" --nonsense sub/lists.dlg
  done
  expect 2 "panelkit: cannot write 'no/such.dlg'" "$how" new no/such.dlg
  expect 2 "panelkit: cannot write 'no/such.h'" "$how" ids sub/lists.dlg -o no/such.h
  expect 2 "panelkit: cannot write 'no/such.dlg'" "$how" convert --to utf-8 sub/lists.dlg -o no/such.dlg
  expect 2 "panelkit: cannot open 'sub/../nix.dlg': no such file" "$how" shot sub/../nix.dlg x.png
  expect 2 "panelkit: cannot write 'no/such/x.png': no such folder" "$how" shot sub/lists.dlg no/such/x.png
  expect 2 "panelkit: cannot write 'no/such/lists.png': no such folder" "$how" shot sub/lists.dlg -o no/such
  expect 2 "panelkit: cannot write 'folder.png': it is a folder" "$how" shot sub/lists.dlg folder.png
  expect 2 "panelkit: control 77 of './sub/lists.dlg' has no status 1" \
    "$how" shot ./sub/lists.dlg x.png --status 77 1
  expect 0 "$slip" "$how" shot sub/../sub/slip.dlg x.png
  expect 1 "$slip" "$how" inspect --strict sub/../sub/slip.dlg
  expect 0 "" "$how" inspect sub/no-label.gbk
  expect 1 "$label" "$how" shot --strict sub/no-label.gbk "$work/out/absolute.png"
  [ "$(head -c 4 out/absolute.png | tail -c 3)" = PNG ] || fail "$how: no picture of a doubtful file"
  rm -f out/absolute.png
  expect 2 "panelkit: cannot open 'nix.dlg': no such file" "$how" inspect sub/lists.dlg nix.dlg
  [ "$(grep -c '"file": "sub/lists.dlg"' "$folder/output")" = 1 ] || fail "$how: inspect names no file"
done
expect 2 "panelkit: view needs a display (shot writes a picture without one)" native view sub/lists.dlg
DISPLAY=:0 expect 2 "panelkit: cannot open 'nix.dlg': no such file" native view nix.dlg
ln -s sub/empty link
expect 0 "" native shot sub/lists.dlg link/../linked.png # Links are followed as the shell does.
[ -s sub/linked.png ] || fail "no picture behind a link"

# One start of Wine for all: a start a picture would take twenty times as long.
files=()
for i in {1..20}; do cp sub/lists.dlg "sub/$i.dlg"; files+=("sub/$i.dlg"); done
one=$(cpu_of native shot sub/1.dlg x.png)
all=$(cpu_of native shot -o out "${files[@]}")
[ "$(find out -name '*.png' -size +0 | wc -l)" = 20 ] || fail "pictures are missing: $(ls out)"
echo "processor time of a picture: $one ms, of twenty: $all ms"
[ "$all" -lt $((one * 12)) ] || fail "twenty pictures take $all ms, one takes $one ms"

# Wine is warm: what the native command adds is little.
program() {
  (
    export DISPLAY="$(<"$PANELKIT_WINEPREFIX.warm.display")"
    wine_environment "$PANELKIT_WINEPREFIX"
    "$wine64" "$root/build/windows/bin/panelkit.exe" "$@"
  )
}
for name in "shot sub/1.dlg x.png" "inspect sub/1.dlg"; do
  ours=$(cpu_of native $name)
  theirs=$(cpu_of program $name)
  echo "processor time of $name: native $ours ms, the program $theirs ms"
  [ "$ours" -le $((theirs * 3)) ] || fail "$name takes $ours ms natively, $theirs ms by itself"
done
[ "$failures" -eq 0 ]
