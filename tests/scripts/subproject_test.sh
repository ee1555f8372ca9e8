#!/usr/bin/env bash
# subproject_test.sh BUILD SOURCES COMPILER TOOLCHAIN RUN: the library as part of a project that fetches its sources, as
# docs/using.md tells. It brings itself and nothing else.
set -euo pipefail
build=$1 sources=$2 CXX=$3 toolchain=$4 run=$5
tools=${CXX%g++*}
source "$(dirname "${BASH_SOURCE[0]}")/package.sh"
folder="$build/subproject" # A place of its own, where ccache knows the sources of before.
rm -rf "$folder"
mkdir "$folder"
cd "$folder"

block "$sources/docs/using.md" cpp 1 >main.cpp
block "$sources/docs/using.md" cmake 2 >CMakeLists.txt
block "$sources/docs/todays-look.md" cmake 1 >>CMakeLists.txt
cat >>CMakeLists.txt <<'EOF'
file(WRITE bystander.cpp "int main() {}\n")
add_executable(bystander bystander.cpp)
install(TARGETS app DESTINATION bin)
enable_testing()
get_property(caches DIRECTORY PROPERTY CACHE_VARIABLES)
foreach(name ${caches})
  get_property(type CACHE ${name} PROPERTY TYPE)
  if(NOT type MATCHES "INTERNAL|STATIC")
    file(APPEND ${CMAKE_BINARY_DIR}/cache "${name}=${${name}}\n")
  endif()
endforeach()
EOF
sed '/FetchContent/d; /todays_look/d; /add_custom_command/,+1d; s/ panelkit::panelkit//' CMakeLists.txt >alone.txt
mkdir alone && mv alone.txt alone/CMakeLists.txt && cp main.cpp alone/
export CMAKE_TOOLCHAIN_FILE="$toolchain" CMAKE_EXPORT_COMPILE_COMMANDS=1
ccache=$(command -v ccache || true)
for project in alone .; do
  cmake -S "$project" -B "$project/build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 \
    ${ccache:+-DCMAKE_CXX_COMPILER_LAUNCHER="$ccache"} -DPANELKIT_SOURCES="$sources" >log 2>&1 || { cat log; exit 1; }
done

# The same cache but for what FetchContent and the library name after themselves, the same flags of others.
cached() { grep -vE '^(FETCHCONTENT_|PANELKIT_|panelkit_)|_(BINARY|SOURCE)_DIR=|^CMAKE_(HOME|CACHEFILE)' "$1/build/cache" | sed "s|$PWD/alone|$PWD|" | sort; }
diff <(cached alone) <(cached .) || fail "left: the cache of a project alone, right: with the library"
flags() { sed -n 's/^ *"command": "\(.*bystander.*\)",$/\1/p' "$1/build/compile_commands.json" | sed "s|$PWD/alone|$PWD|g"; }
[ -n "$(flags .)" ] || fail "no command for the bystander"
diff <(flags alone) <(flags .) || fail "left: flags of a program alone, right: with the library"
# No other target, no test, no file to install.
targets() { ninja -C "$1/build" -t targets all | sed -n 's/^\([A-Za-z_.]*\): phony$/\1/p' | grep -vE '(^|_)panelkit(_description|_winmain)?(\.dll)?$' | sort; }
targets . | grep -qx app || fail "no targets"
diff <(targets alone) <(targets .) || fail "left: targets of a project alone, right: with the library"
[ "$(ctest --test-dir build -N | sed -n 's/^Total Tests: //p')" = 0 ] || fail "it brought tests"

cmake --build build -j 2 >log 2>&1 || { cat log; exit 1; }
cmake --install build --prefix "$folder/installed" >log
[ "$(cd installed && find . -type f)" = ./bin/app.exe ] || { find installed; fail "more was installed than the project's own"; }
application build/app.exe "$build/bin/panelkit.exe"
