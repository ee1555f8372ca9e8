#!/usr/bin/env bash
# Proves that calls of scripts/wine share one warm session, which ends by itself and leaves nothing when killed.
# Usage: warm_test.sh CHECKOUT
source "$1/scripts/common.sh"
set +e
folder=$(mktemp -d "$root/build/warm-test.XXXXXX")
export PANELKIT_WINEPREFIX=$folder/wine PANELKIT_WARM_SECONDS=600
unset DISPLAY
name=$PANELKIT_WINEPREFIX.warm
failures=0

pid_of_session() { pgrep -f "scripts/warm $PANELKIT_WINEPREFIX $name up" | head -n 1; }
finish() {
  local pid
  for pid in $(pgrep -f "scripts/warm $PANELKIT_WINEPREFIX "); do kill "$pid" 2>/dev/null; done
  flock -w 60 "$name.alive" true
  rm -rf "$folder"
}
trap finish EXIT

expect() { # wanted got what
  [ "$1" = "$2" ] || { echo "$3: '$2' instead of '$1'"; failures=$((failures + 1)); }
}
command_of() { "$root/scripts/wine" "$root/build/windows/bin/panelkit.exe" "$@" 2>"$folder/errors"; }

make_private_prefix "$PANELKIT_WINEPREFIX"
output=$(command_of --version)
expect 0 $? "exit code of a cold call"
expect "panelkit 0.1.0" "${output%$'\r'}" "output of a cold call"
first=$(pid_of_session)
children=$(pgrep -P "${first:-0}")
[ -n "$first" ] || expect "a process" "" "session after the first call"

command_of dump "no such file" >"$folder/output"
expect 2 $? "exit code of a warm call that fails"
expect 0 "$(wc -c <"$folder/output")" "bytes of its output"
expect 1 "$(grep -c 'panelkit: .*no such file' "$folder/errors")" "lines of its complaint"
expect "$first" "$(pid_of_session)" "session of the second call"

callers=()
for i in 1 2 3; do command_of inspect "$root/tests/samples/two_kinds.dlg" >"$folder/inspect.$i" & callers+=($!); done
for i in 0 1 2; do wait "${callers[$i]}"; expect 0 $? "exit code of caller $i of three at once"; done
for i in 1 2 3; do
  cmp "$root/tests/samples/two_kinds_inspect.json" "$folder/inspect.$i" || failures=$((failures + 1))
done
expect "$first" "$(pid_of_session)" "session of three at once"

# Killed, it takes its display and its keeper along, and the next call begins anew.
expect 1 "$(pgrep -c -P "${first:-0}" Xvfb)" "displays of the session"
[ -z "$first" ] || kill -9 "$first"
for child in $children; do
  timeout 60 tail --pid="$child" -f /dev/null
  expect 0 $? "the end of a killed session's process"
done
command_of inspect "$root/tests/samples/two_kinds.dlg" >"$folder/inspect.4"
expect 0 $? "exit code after the session was killed"
cmp "$root/tests/samples/two_kinds_inspect.json" "$folder/inspect.4" || failures=$((failures + 1))
second=$(pid_of_session)
[ -n "$second" ] && [ "$second" != "$first" ] || expect "a new process" "$second" "session after the first was killed"
[ -z "$second" ] || kill "$second"
flock -w 60 "$name.alive" true
expect 0 $? "the end of a session that is asked to end"

# Left alone, it ends by itself: the lock of its life is free, its display and its server are gone.
rm "$name.display"
PANELKIT_WARM_SECONDS=1 command_of --version >"$folder/output"
expect 0 $? "exit code of a call whose session is short"
[ -e "$name.display" ] || expect "a display" "" "session that is short"
flock -w 120 "$name.alive" true
expect 0 $? "the session's end"
timeout 60 env WINEPREFIX="$PANELKIT_WINEPREFIX" "$wineserver" -w
expect 0 $? "the server's end"
[ "$failures" -eq 0 ]
