#!/usr/bin/env bash
# Proves that check_includes finds each kind of wrong include, in a small tree of its own.
# Usage: check_includes_test.sh SCRIPT
check=$1
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
failures=0

fresh() {
  rm -rf "${tree:?}/src"
  mkdir -p "$tree"/src/{baselib,containers,toolkit,pictures,records,dialog} "$tree"/src/controls/{base,text,lists} "$tree"/tools
  echo '#include "baselib/io.h"' >"$tree/src/baselib/io.cpp"
  echo '#include "toolkit/toolkit.h"' >"$tree/src/controls/text/edit.cpp"
  echo '// Nothing.' >"$tree/src/records/list.cpp"
  echo 'class PANELKIT_API ListCL;' >"$tree/src/records/list.h"
  echo '#include "records/list.h"' >"$tree/src/dialog/dialog.h"
  printf '  baselib/io.cpp\n  records/list.cpp\n' >"$tree/src/description_sources.cmake"
  printf '  controls/text/edit.cpp\n' >"$tree/src/control_sources.cmake"
}

expect() { # wanted exit code, what, [file, line]...
  local wanted=$1 what=$2
  shift 2
  fresh
  while [ $# -gt 0 ]; do
    echo "$2" >>"$tree/src/$1"
    shift 2
  done
  "$check" "$tree" >"$tree/out" 2>&1
  local code=$?
  if [ "$code" -ne "$wanted" ]; then
    echo "$what: exit code $code instead of $wanted"
    cat "$tree/out"
    failures=$((failures + 1))
  fi
}

expect 0 "records include baselib" records/region.h '#include "baselib/io.h"'
expect 0 "the dialog includes controls" dialog/dialog.h '#include "controls/text/edit.h"'
expect 0 "a control includes the toolkit" controls/lists/list.h '#include "toolkit/toolkit.h"'
expect 0 "a picture's record of the control half includes the toolkit" pictures/brush_record.h '#include "toolkit/toolkit.h"'
expect 0 "pictures include containers" pictures/bitmap.h '#include "containers/arr.h"'
expect 1 "baselib includes containers" baselib/io.h '#include "containers/arr.h"'
expect 1 "pictures include records" pictures/bitmap.h '#include "records/list.h"'
expect 1 "records include a control" records/region.h '#include "controls/base/control.h"'
expect 1 "the controls' base includes a control" controls/base/control.h '  #  include "controls/text/edit.h"'
expect 1 "controls include the dialog" controls/text/edit.h '#include "dialog/dialog.h"'
expect 1 "controls of two folders know each other" controls/text/edit.h '#include "controls/lists/list.h"'
expect 1 "the dialog includes the form" dialog/dialog.h '#include "form/form.h"'
expect 1 "the toolkit includes containers" toolkit/wnd.h '#include "containers/arr.h"'
expect 1 "baselib includes the toolkit" baselib/io.h '#include "toolkit/toolkit.h"'
expect 1 "a record's header includes the toolkit" controls/text/edit_record.h '#include "toolkit/toolkit.h"'
expect 1 "the description half includes windows.h" baselib/io.cpp '#include <windows.h>'
expect 1 "a record's header includes windows.h" controls/text/edit_record.h '#include <Windows.h>'
expect 1 "a described file's header includes windows.h" records/list.h '#include <windows.h>'
expect 1 "a path that does not start at src" dialog/dialog.h '#include "edit.h"'
expect 1 "a file in neither half" records/region.cpp '#include "baselib/io.h"'
expect 1 "a file in both halves" control_sources.cmake '  baselib/io.cpp'
expect 1 "a listed file that is not there" control_sources.cmake '  records/gone.cpp'
expect 0 "panelkit.h brings what exports, by another header" panelkit.h '#include "dialog/dialog.h"
// nothing else'
expect 1 "panelkit.h leaves out a header that exports" panelkit.h '#include "containers/other.h"'

told() { # what the last run said
  grep -qF -- "$1" "$tree/out" || { echo "missing: $1"; cat "$tree/out"; failures=$((failures + 1)); }
}

# Units of one folder, in a circle or not. A source file is one with the header of its name.
wnd='#include "toolkit/wnd.h"'
app='#include "toolkit/app.h"'
loop='#include "toolkit/loop.h"'
listed='  toolkit/wnd.cpp
  toolkit/app.cpp
  toolkit/wnd_messages.cpp'
circle() { # wanted exit code, what, [file, line]...
  expect "$1" "$2" control_sources.cmake "$listed" toolkit/wnd.h // toolkit/app.h // toolkit/loop.h // \
    toolkit/wnd.cpp "$wnd" toolkit/app.cpp "$app" toolkit/wnd_messages.cpp "$wnd" "${@:3}"
}
circle 0 "two that know a third" toolkit/wnd.h "$loop" toolkit/app.h "$loop" toolkit/app.cpp "$wnd"
circle 1 "two headers" toolkit/wnd.h "$app" toolkit/app.h "$wnd"
told "a circle of includes: src/toolkit/"
circle 1 "a header and the other's source" toolkit/wnd.h "$app" toolkit/app.cpp "$wnd"
circle 1 "two sources" toolkit/wnd.cpp "$app" toolkit/app.cpp "$wnd"
circle 1 "a source that continues the other's name" toolkit/wnd_messages.cpp "$app" toolkit/app.cpp "$wnd"
circle 1 "three" toolkit/wnd.h "$app" toolkit/app.h "$loop" toolkit/loop.h "$wnd"
told "a circle of includes: src/toolkit/app -> src/toolkit/loop -> src/toolkit/wnd -> src/toolkit/app"
circle 1 "behind one that stands outside" toolkit/toolkit.h "$wnd" toolkit/wnd.h "$app" toolkit/app.h "$wnd"
circle 0 "a part and its header" toolkit/wnd.h '#include "toolkit/wnd_parts.h"' toolkit/wnd_parts.h "$wnd"
circle 1 "a part of its own that the header's source needs" \
  toolkit/wnd.cpp '#include "toolkit/wnd_hook.h"' toolkit/wnd_hook.h "$wnd"
circle 1 "the circle of a part is its header's" \
  toolkit/wnd.h '#include "toolkit/wnd_parts.h"' toolkit/wnd_parts.h "$wnd" toolkit/wnd_parts.h "$app" toolkit/app.cpp "$wnd"
[ "$failures" -eq 0 ]
