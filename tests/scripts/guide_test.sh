#!/usr/bin/env bash
# guide_test.sh BUILD SOURCES RUN: does all that docs/getting-started.md says, in a fresh home: every block that names a
# file becomes that file, every block of commands is run, what they print is what the page shows. RUN starts a Windows
# program. Of the pages that tell the same in Chinese the commands are run too.
set -euo pipefail
build=$1 sources=$2 run=$3
guide_pages=("docs/getting-started.md" "docs/zh-CN/author-guide.md")
[ "$build" -ef "$sources/build/windows" ] || { echo "the page builds in build/windows, this is $build"; exit 1; }
block() { python3 -B "$sources/scripts/site/blocks.py" text "$@"; }
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# What may differ from a fresh machine: the ccache of before, where it is.
export CCACHE_DIR="${CCACHE_DIR:-$HOME/.cache/ccache}" HOME="$folder"
unset CMAKE_TOOLCHAIN_FILE

script() { # page
  local page=$1 language number argument
  echo 'set -eu'
  while read -r _ language number argument; do
    case "$language" in
    sh) printf '{\n%s\n} >>"$HOME/said"\n' "$(block "$page" sh "$number")" ;;
    dlg | cpp | cmake)
      [ -z "$argument" ] || printf 'python3 -B "%s/scripts/site/blocks.py" text %s %s %s >%s\n' \
        "$sources" "$page" "$language" "$number" "$argument"
      ;;
    esac
  done < <(python3 -B "$sources/scripts/site/blocks.py" list | grep "^$page:")
}

page=${guide_pages[0]}
script "$page" >"$folder/commands"
cd "$sources"
bash "$folder/commands" || { tail -n 30 "$folder/said"; echo "the commands of $page fail"; exit 1; }
cd "$folder/pens"
for picture in first pens; do
  [ "$(head -c 4 "$picture.png" | tail -c 3)" = PNG ] || { echo "no picture $picture.png"; exit 1; }
done
while read -r line; do
  grep -qxF "$line" "$folder/said" || { echo "not said: $line"; tail -n 30 "$folder/said"; exit 1; }
done < <(block "$page" output 1)
ls build/pens.exe build/panelkit.dll build/pens.dlg build/lamp_red.bmp >/dev/null
# From another folder, as a program is started that has an icon somewhere.
cd /
"$run" "$build/bin/guide_user.exe" "$(cd "$folder/pens/build" && pwd)/pens.exe" | tr -d '\r' >"$folder/printed"
diff <(block "$page" output 2) "$folder/printed" || { echo "left: $page, right: what its program prints"; exit 1; }

mkdir "$folder/zh" && cd "$folder/zh"
{ echo "set -eu; panelkit() { '$sources/scripts/panelkit' \"\$@\"; }"; script "${guide_pages[1]}"; } >commands
bash commands || { echo "the commands of ${guide_pages[1]} fail"; exit 1; }
[ -s panel.png ] || { echo "no picture of ${guide_pages[1]}"; exit 1; }
