# Sessions of Wine for tests that press keys and move the mouse; for scripts that have read common.sh.
session_prefixes=() displays=() keepers=()

stop_sessions() {
  local prefix pid
  for prefix in "${session_prefixes[@]}"; do
    [ ! -d "$prefix" ] || [ ! -x "$wineserver" ] || WINEPREFIX="$prefix" timeout 20 "$wineserver" -k 2>/dev/null || true
  done
  for pid in "${keepers[@]}"; do kill -9 "$pid" 2>/dev/null || true; done
  for pid in "${displays[@]}"; do kill "$pid" 2>/dev/null || true; done
  session_prefixes=() displays=() keepers=()
}

# Wine's focus is one per prefix: each session has a display and a prefix of its own, and is where Wine programs start
# from now on. A fresh prefix each time lets no run inherit anything from another. All that a session runs is to stay on
# one core: Wine is much slower when its server is on another than the program.
start_session() { # prefix core keeper.exe
  local prefix=$1 core=$2 pipe="$1.pipe" line=
  # A leftover of a run that was killed.
  [ ! -d "$prefix" ] || [ ! -x "$wineserver" ] || WINEPREFIX="$prefix" timeout 20 "$wineserver" -k 2>/dev/null || true
  session_prefixes+=("$prefix")
  make_private_prefix "$prefix" || return 1
  start_display || return 1
  displays+=("$display_pid")
  wine_environment "$prefix"
  export PANELKIT_WINEPREFIX="$prefix" PANELKIT_CODEPAGE=1252
  # A start of Wine beside no other program is slow and may fail: server and one program stay.
  timeout 60 taskset -c "$core" "$wineserver" -p || { say "the Wine server did not start"; return 1; }
  rm -f "$pipe"
  mkfifo "$pipe"
  exec 6<>"$pipe"
  rm -f "$pipe"
  taskset -c "$core" "$root/scripts/wine" "$3" >&6 6<&- 2>/dev/null </dev/null &
  keepers+=($!)
  read -r -t 90 line <&6 || true
  exec 6<&-
  [ "${line%$'\r'}" = ready ] || { say "Wine did not start (no window after 90 s)"; return 1; }
}
