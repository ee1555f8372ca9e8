#!/usr/bin/env bash
# install_test.sh BUILD SOURCES COMPILER TOOLCHAIN RUN VERSION: installs a Windows build, moves it, and builds and runs
# there, by the very commands of docs/using.md, what a user would. RUN starts a Windows program.
set -euo pipefail
build=$1 sources=$2 CXX=$3 toolchain=$4 run=$5 version=$6
tools=${CXX%g++*}
here=$(dirname "${BASH_SOURCE[0]}")
source "$here/package.sh"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

cmake --install "$build" --prefix "$folder/first" >"$folder/log" || { cat "$folder/log"; exit 1; }
mv "$folder/first" "$folder/moved"
export PANELKIT="$folder/moved" CXX CXXFLAGS="-Wall -Wextra -Wpedantic -Werror" CMAKE_TOOLCHAIN_FILE="$toolchain"
docs=$PANELKIT/share/doc/panelkit
cmake=lib/cmake/panelkit
for file in bin/panelkit.{dll,dll.debug,exe} lib/{libpanelkit.dll.a,pkgconfig/panelkit.pc} \
  "$cmake"/{panelkitConfig,panelkitTargets,panelkitConfigVersion,todays_look}.cmake include/panelkit/panelkit.h \
  share/doc/panelkit/{using,description-file,CHANGELOG}.md; do
  [ -f "$PANELKIT/$file" ] || fail "not installed: $file"
done
! grep -rlF -e "$folder/first" -e "$build" -e "$sources" "$PANELKIT"/{lib,include,bin} || fail "these know where they were made"

# What came in once, unseen, with one header of the standard library was 0.8 MB.
size=$(stat -c %s "$PANELKIT/bin/panelkit.dll")
[ "$size" -le 1500000 ] || fail "panelkit.dll has $size bytes"

# Debugging information stands in its own file and gives an address its line.
needs_no_runtime "$PANELKIT/bin/panelkit.dll"
needs_no_runtime "$PANELKIT/bin/panelkit.exe"
! "${tools}objdump" -h "$PANELKIT/bin/panelkit.dll" | grep -q '\.debug_info' || fail "panelkit.dll is not stripped"
"${tools}objdump" -s -j .gnu_debuglink "$PANELKIT/bin/panelkit.dll" | grep -q panelkit.dll || fail "no link to the debug file"
address=$("${tools}nm" "$PANELKIT/bin/panelkit.dll.debug" | awk '$3 ~ /^_?_ZN15DuBasicDialogCL7CreateMEP4CWnd$/ { print $1 }')
line=$("${tools}addr2line" -e "$PANELKIT/bin/panelkit.dll.debug" "$address")
[[ $line == *dialog/basic_dialog*.cpp:[0-9]* ]] || fail "CreateM at $address is said to be at $line"

# find_package, as the page tells.
mkdir "$folder/cmake" "$folder/pc" "$folder/hand"
cd "$folder/cmake"
block "$docs/using.md" cpp 1 >main.cpp
block "$docs/using.md" cmake 1 >CMakeLists.txt
block "$docs/using.md" sh 1 >commands
bash -eu commands >log 2>&1 || { cat log; exit 1; }
application build/app.exe "$PANELKIT/bin/panelkit.exe"
carries() { python3 -c 'import sys; program, part = (open(name, "rb").read() for name in sys.argv[1:])
sys.exit(part not in program)' "$@"; }
manifest=$PANELKIT/$cmake/todays_look.manifest
! carries build/app.exe "$manifest" || fail "the program has a manifest that it didn't ask for"
cp CMakeLists.txt plain && block "$docs/todays-look.md" cmake 1 >>CMakeLists.txt
cmake --build build >log 2>&1 || { cat log; exit 1; }
application build/app.exe "$PANELKIT/bin/panelkit.exe"
carries build/app.exe "$manifest" || fail "the program's look is not today's"
mv plain CMakeLists.txt

# Another version doesn't do.
for wanted in 99 "${version%%.*}.99" "$version.1"; do
  sed "s/find_package(panelkit [0-9.]*/find_package(panelkit $wanted/" CMakeLists.txt >other
  mkdir "other$wanted" && cp other "other$wanted/CMakeLists.txt"
  if cmake -S "other$wanted" -B "other$wanted/build" -G Ninja -DCMAKE_PREFIX_PATH="$PANELKIT" >log 2>&1; then
    fail "version $wanted was found"
  fi
  grep -q "$version" log || { cat log; fail "refusing $wanted doesn't tell which version there is"; }
done

cd "$folder/pc"
cp ../cmake/main.cpp .
block "$docs/using.md" sh 2 >commands
bash -eu commands
application app.exe "$PANELKIT/bin/panelkit.exe"
block "$docs/todays-look.md" xml 1 >app.manifest
block "$docs/todays-look.md" rc 1 >app.rc
block "$docs/todays-look.md" sh 1 >>commands
WINDRES="${tools}windres" bash -eu commands
application app.exe "$PANELKIT/bin/panelkit.exe"
carries app.exe app.manifest || fail "the program built by hand: its look is not today's"
[ "$(PKG_CONFIG_PATH=$PANELKIT/lib/pkgconfig pkg-config --modversion panelkit)" = "$version" ] || fail "pkg-config: version"

cd "$folder/hand"
cp ../cmake/main.cpp "$PANELKIT/bin/panelkit.dll" .
block "$docs/using.md" sh 3 >commands
bash -eu commands
application app.exe "$PANELKIT/bin/panelkit.exe"

# As applications did it that have include/panelkit in their include path. Of the headers, those are there that an
# application reads, itself or by way of others, and no more.
sed 's|<panelkit/panelkit.h>|"panelkit.h"|' main.cpp >old.cpp
echo '#include "panelkit_c.h"' >>old.cpp
$CXX $CXXFLAGS -std=c++17 -DPANELKIT_NARROW_NAMES -I"$PANELKIT/include/panelkit" -fsyntax-only old.cpp -MD -MF read
tr -s ' \\' '\n\n' <read | grep /include/panelkit/ | xargs realpath | sed 's|^.*/include/panelkit/||' | sort -u >headers_read
find "$PANELKIT/include/panelkit" -type f -printf '%P\n' | sort >headers_installed
diff headers_read headers_installed || fail "left: read, right: installed"
echo "$(wc -l <headers_installed) headers installed, each of use"
