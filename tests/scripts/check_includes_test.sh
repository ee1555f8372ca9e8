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

expect() { # wanted exit code, what, file, line
  fresh
  echo "$4" >>"$tree/src/$3"
  "$check" "$tree" >"$tree/out" 2>&1
  local code=$?
  if [ "$code" -ne "$1" ]; then
    echo "$2: exit code $code instead of $1"
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
[ "$failures" -eq 0 ]
