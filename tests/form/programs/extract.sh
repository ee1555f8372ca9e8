#!/usr/bin/env bash
# extract.sh README FORM_PAGE C_PAGE OWN_PAGE FOLDER: writes the programs of the pages into a folder. What is a part of a program
# becomes a function.
set -euo pipefail
readme=$1 form=$2 c=$3 own=$4 folder=$5
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
block "$own" cpp 1 >"$folder/own_page.cpp"

# The further blocks of a page as functions: writes NAME_NUMBER.cpp
parts() { # page name includes parameters
  local number=2 text
  while text=$(block "$1" cpp $number); do
    printf '%b\nvoid part%d(%s);\nvoid part%d(%s)\n{\n%s\n}\n' "$3" $number "$4" $number "$4" "$text" >"$folder/$2_$number.cpp"
    number=$((number + 1))
  done
  [ "$number" -gt 2 ]
}
parts "$form" form_part '#include <panelkit/form/form.h>\n#include <iostream>' 'panelkit::Form& form'
parts "$own" own_part '#include <panelkit/panelkit.h>' 'DuBasicDialogCL& dialog, panelkit::Form& form'
