#!/usr/bin/env bash
# by_clang_test.sh ROOT BUILD COMPILER SOURCES RUN: a program that clang compiles works with the library that g++ has
# made. That clang is not installed is a failure. RUN starts a Windows program.
set -euo pipefail
root=$1 build=$2 CXX=$3 sources=$4 run=$5
here=$(dirname "${BASH_SOURCE[0]}")
command -v clang++ >/dev/null || { echo "not installed: clang++"; exit 1; }
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
machine=$("$CXX" -dumpmachine)
library=$(dirname "$("$CXX" -print-libgcc-file-name)")/include/c++
# The C++ library is g++'s; the last two say about it what that compiler knows by itself.
clang=(clang++ "--target=${machine%%-*}-w64-windows-gnu" -std=c++17 -Wall -Wextra -Wpedantic -Werror
  -I"$(dirname "$sources")/include" -I"$root/src" -isystem "$library" -isystem "$library/$machine"
  -D__GXX_TYPEINFO_EQUALITY_INLINE=0 -D__GXX_MERGED_TYPEINFO_NAMES=0)

"${clang[@]}" -c "$sources/README_1.cpp" -o "$folder/readme.o"
"${clang[@]}" -c "$here/by_clang.cpp" -o "$folder/by_clang.o"
# The linker tells of each section that the two compilers have made in different sizes.
"$CXX" -static "$folder/by_clang.o" "$build/src/libpanelkit.dll.a" -o "$folder/by_clang.exe" 2>"$folder/log" ||
  { cat "$folder/log"; exit 1; }
cp "$build/bin/panelkit.dll" "$folder"
"$run" "$folder/by_clang.exe" "$root/examples/plotter/plotter.dlg"
