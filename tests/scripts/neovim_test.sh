#!/usr/bin/env bash
# neovim_test.sh PANELKIT SOURCES: a real editor, without a screen, opens a copy of an example, gets a finding and its
# fix, renames an id and formats; the file that it writes has exactly the bytes meant.
set -euo pipefail
panelkit=$1 sources=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp "$sources"/examples/lists/* "$folder"
export HOME=$folder XDG_DATA_HOME=$folder/data XDG_STATE_HOME=$folder/state XDG_CACHE_HOME=$folder/cache \
  XDG_CONFIG_HOME=$folder/config LC_ALL=C.UTF-8 PANELKIT=$panelkit PANELKIT_FILE=$folder/lists.dlg \
  PANELKIT_SOURCES=$sources
before=$(mktemp -p "$folder")
cp "$folder/lists.dlg" "$before"
timeout 60 nvim --headless --clean -c "luafile $sources/tests/scripts/neovim_session.lua" >"$folder/log" 2>&1 ||
  { cat "$folder/log"; exit 1; }
id=$(cat "$folder/id")
# The same by sed and by `panelkit format`: in this example the id is a word of its own only where it is an id.
LC_ALL=C sed -i -E "s/(^|[^0-9])$id([^0-9]|\$)/\129999\2/" "$before"
"$panelkit" format "$before"
cmp "$before" "$folder/lists.dlg"
