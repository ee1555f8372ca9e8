#!/usr/bin/env bash
# idiom_compiles_test.sh ROOT: the sources of examples/idiom compile unchanged and without a warning, by g++ and by
# clang, for 64 and for 32 bit. A compiler that is not installed is a failure.
set -uo pipefail
root=$1
sources=("$root"/examples/idiom/*.cpp)
# As an application would compile them: its character set is its own matter.
options=(-std=c++17 -fsyntax-only -Wall -Wextra -Werror -I"$root/src")
out=$(mktemp)
trap 'rm -f "$out"' EXIT
failed=0

for machine in x86_64 i686; do
  library=$(ls -d /usr/lib/gcc/$machine-w64-mingw32/*-posix/include/c++ | tail -1)
  for compiler in "$machine-w64-mingw32-g++-posix" "clang++ --target=$machine-w64-windows-gnu"; do
    command=($compiler "${options[@]}")
    # It finds the platform's headers itself, those of the C++ library only where another g++ stands first.
    [[ $compiler != clang* ]] || command+=(-isystem "$library" -isystem "$library/$machine-w64-mingw32")
    command -v "${command[0]}" >/dev/null || { echo "not installed: ${command[0]}"; failed=1; continue; }
    for source in "${sources[@]}"; do
      if ! "${command[@]}" "$source" >"$out" 2>&1; then
        echo "== $compiler: ${source##*/}"
        cat "$out"
        failed=1
      fi
    done
  done
done
[ "$failed" -eq 0 ] && echo "${#sources[@]} sources compile for four targets"
exit "$failed"
