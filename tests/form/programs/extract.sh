#!/usr/bin/env bash
# extract.sh README FORM_PAGE C_PAGE PAINTING_PAGE FOLDER: writes the programs of the pages into a folder. What is a part of a program
# becomes a function.
set -euo pipefail
readme=$1 form=$2 c=$3 painting=$4 folder=$5
rm -rf "$folder"
mkdir -p "$folder"

# The Nth fenced block of a language; fails if there is none.
block() { # page language number
  awk -v open="\`\`\`$2" -v wanted="$3" '
    $0 == "```" { inside = 0 }
    inside { print; printed = 1 }
    $0 == open { inside = ++seen == wanted }
    END { exit !printed }' "$1"
}

block "$readme" cpp 1 >"$folder/readme.cpp"
block "$form" cpp 1 >"$folder/form_page.cpp"
block "$c" c 1 >"$folder/c_page.c"
block "$painting" c 1 >"$folder/painting.c"

# The blocks of a page from the Nth on, of which there is one at least.
parts() { # page name number
  local number=$3 text
  while text=$(block "$1" cpp "$number"); do
    printf '#include <panelkit/form/form_host.h>\n#include <iostream>\nvoid %s%d(panelkit::Form& form);\nvoid %s%d(panelkit::Form& form)\n{\n%s\n}\n' \
      "$2" "$number" "$2" "$number" "$text" >"$folder/form_part_$2_$number.cpp"
    number=$((number + 1))
  done
  [ "$number" -gt "$3" ]
}
parts "$form" form 2
parts "$painting" painting 1
