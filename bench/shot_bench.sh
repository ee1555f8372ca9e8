#!/usr/bin/env bash
# shot_bench.sh: what a picture of an example costs while Wine is warm, over starting a program that does nothing.
# In the session of scripts/bench: PANELKIT_WINEPREFIX and DISPLAY are set.
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/common.sh"
rounds=7
picture="$root/build/shot_bench.png"

milliseconds() { # command...
  local begin=${EPOCHREALTIME/[.,]/}
  "$@" >/dev/null </dev/null
  echo $(((${EPOCHREALTIME/[.,]/} - begin) / 1000))
}
shot() { milliseconds "$root/scripts/panelkit" shot "$root/examples/plotter/plotter.dlg" "$picture"; }
start() { milliseconds "$root/scripts/wine" "$root/build/windows/bin/trivial.exe"; }
median() { sort -n | sed -n "$(((rounds + 1) / 2))p"; }

rm -f "$picture"
shot >/dev/null # The first is to make all others warm.
[ -s "$picture" ] || { say "shot wrote no picture"; exit 1; }
shots=() starts=()
for ((round = 0; round < rounds; ++round)); do
  shots+=("$(shot)")
  starts+=("$(start)")
done
taken=$(printf '%s\n' "${shots[@]}" | median)
started=$(printf '%s\n' "${starts[@]}" | median)
say "a shot $taken ms, a start $started ms"
awk -v taken="$taken" -v started="$started" 'BEGIN {
  printf "{\"name\":\"shot_second_over_warm_exe\",\"value\":%.3f,\"unit\":\"x\",\"better\":\"lower\"}\n", taken / started }'
