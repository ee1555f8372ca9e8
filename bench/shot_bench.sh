#!/usr/bin/env bash
# shot_bench.sh: what a picture of an example costs while Wine is warm, over starting a program that does nothing, over one
# that pictures the same windows by plain calls, and over one that pictures an empty window, which tell how much of the
# first the window system takes.
# In the session of scripts/bench: PANELKIT_WINEPREFIX and DISPLAY are set.
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/common.sh"
rounds=9
picture="$root/build/shot_bench.png" raw="$root/build/shot_bench.bmp" list="$root/build/shot_bench.list"
cd "$root/examples/plotter"

milliseconds() { # command...
  local begin=${EPOCHREALTIME/[.,]/}
  "$@" >/dev/null </dev/null
  echo $(((${EPOCHREALTIME/[.,]/} - begin) / 1000))
}
shot() { milliseconds "$root/scripts/panelkit" shot "$root/examples/plotter/plotter.dlg" "$picture"; }
start() { milliseconds "$root/scripts/wine" "$root/build/windows/bin/trivial.exe"; }
raw_shot() { milliseconds "$root/scripts/wine" "$root/build/windows/bin/raw_shot.exe" "$raw" "$@"; } # [LIST]
ratio() { # name time time
  awk -v name="$1" -v taken="$2" -v other="$3" 'BEGIN {
    printf "{\"name\":\"%s\",\"value\":%.3f,\"unit\":\"x\",\"better\":\"lower\"}\n", name, taken / other }'
}
median() { sort -n | sed -n "$(((rounds + 1) / 2))p"; }

rm -f "$picture" "$raw" "$list"
"$root/scripts/wine" "$root/build/windows/bin/first_bench.exe" list "$list" </dev/null
shot >/dev/null # The first is to make all others warm.
raw_shot "$list" >/dev/null
[ -s "$picture" ] && [ -s "$raw" ] || { say "shot wrote no picture"; exit 1; }
shots=() starts=() raws=() empties=()
for ((round = 0; round < rounds; ++round)); do
  shots+=("$(shot)")
  starts+=("$(start)")
  raws+=("$(raw_shot "$list")")
  empties+=("$(raw_shot)")
done
taken=$(printf '%s\n' "${shots[@]}" | median)
started=$(printf '%s\n' "${starts[@]}" | median)
plain=$(printf '%s\n' "${raws[@]}" | median)
empty=$(printf '%s\n' "${empties[@]}" | median)
say "a shot $taken ms, by plain calls $plain ms, of an empty window $empty ms, a start $started ms"
ratio shot_second_over_warm_exe "$taken" "$started"
ratio shot_second_over_raw_shot "$taken" "$plain"
ratio raw_shot_over_warm_exe "$plain" "$started"
ratio empty_shot_over_warm_exe "$empty" "$started"
