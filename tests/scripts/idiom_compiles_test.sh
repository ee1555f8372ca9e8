#!/usr/bin/env bash
# idiom_compiles_test.sh ROOT: the sources of examples/idiom compile unchanged and without a warning, by g++ and by
# clang, for 64 and for 32 bit. A compiler that is not installed is a failure.
set -uo pipefail
root=$1
sources=("$root"/examples/idiom/*.cpp)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

compile() { # compiler...
  local source failed=0
  command -v "$1" >/dev/null || { echo "not installed: $1"; return 1; }
  for source in "${sources[@]}"; do
    # As an application would: its character set is its own matter. These want the structures of controls narrow.
    "$@" -std=c++17 -DPANELKIT_NARROW_NAMES -fsyntax-only -Wall -Wextra -Werror -I"$root/src" "$source" 2>&1 || failed=1
  done
  return "$failed"
}

failed=0
for machine in x86_64 i686; do
  # clang finds the platform's headers itself, those of the C++ library it must be told.
  library=$(ls -d /usr/lib/gcc/$machine-w64-mingw32/*-posix/include/c++ | tail -1)
  compile $machine-w64-mingw32-g++-posix >"$folder/g++" &
  compile clang++ --target=$machine-w64-windows-gnu -isystem "$library" -isystem "$library/$machine-w64-mingw32" \
    >"$folder/clang++" || { failed=1; echo "== clang++, $machine"; cat "$folder/clang++"; }
  wait $! || { failed=1; echo "== g++, $machine"; cat "$folder/g++"; }
done
[ "$failed" -eq 0 ] && echo "${#sources[@]} sources compile for four targets"
exit "$failed"
