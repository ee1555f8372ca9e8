# Sourced by the other scripts: packages, builds, and the Wine prefix and displays of this checkout.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export CCACHE_BASEDIR="$root"
wine64=/usr/lib/wine/wine64
wineserver=/usr/lib/wine/wineserver

# What building and showing need, and what the tests need besides; the native command needs g++.
packages=(
  cmake ninja-build g++-mingw-w64-x86-64-posix libcli11-dev nlohmann-json3-dev
  wine wine64 fonts-wine xvfb fonts-wqy-zenhei
  # What Wine loads for its windows if it is there: with it, they look and behave the same everywhere.
  libxcomposite1 libxcursor1 libxfixes3 libxi6 libxinerama1 libxrandr2 libxrender1
)
# The library, the command and the sources of examples/idiom are compiled by clang too, the last ones for 32 bit.
test_packages=(g++ googletest clang-format ccache pkgconf clang lld g++-mingw-w64-i686-posix python3 valgrind gettext neovim)
docs_packages=(python3-sphinx python3-myst-parser furo) # For the site of the docs.
reference_packages=(doxygen) # For the reference of the public headers.
packages32=(g++-mingw-w64-i686-posix) # For the 32-bit build alone.

say() { echo "$*" >&2; }

# Runs a command that may take long: on a terminal with a line that tells for how long, else after one plain line.
with_clock() { # what command...
  local what=$1 clock= code=0 began=$SECONDS
  shift
  if [ -t 2 ]; then
    (trap 'exit 0' TERM; while printf '\r%s %d s\e[K' "$what" $((SECONDS - began)) >&2; do sleep 1; done) 7>&- 9>&- &
    clock=$!
  else
    say "$what"
  fi
  "$@" || code=$?
  if [ -n "$clock" ]; then
    kill "$clock" 2>/dev/null || true
    wait "$clock" 2>/dev/null || true
    printf '\r\e[K' >&2
  fi
  return "$code"
}

# Copies ninja's lines to a log. Tells how far it is: a line that moves on a terminal, else one plain line.
show_steps() { # what log
  local line said=
  while IFS= read -r line; do
    printf '%s\n' "$line"
    # Looking for new files is a count of its own.
    [[ $line =~ ^\[([0-9]+)/([0-9]+)\] && $line != *globbed* ]] || continue
    if [ -t 2 ]; then
      printf '\r%s %s/%s\e[K' "$1" "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}" >&2
    elif [ -z "$said" ]; then
      say "$1 (${BASH_REMATCH[2]} steps)"
    fi
    said=1
  done >"$2"
  [ -z "$said" ] || [ ! -t 2 ] || printf '\r\e[K' >&2
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    say "installing packages needs root: run this as root, or install sudo"
    return 1
  fi
}

install_missing() { # packages...
  local package state missing=()
  # One query for all: a warm start must cost next to nothing.
  state=$(dpkg-query -W -f='${Package} ${Status}\n' "$@" 2>/dev/null || true)
  for package in "$@"; do
    grep -q "^$package install ok installed" <<<"$state" || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  say "installing: ${missing[*]}"
  as_root true # A password, if it takes one, is asked for before a line moves.
  with_clock "reading the lists of packages" as_root apt-get -qq -o DPkg::Lock::Timeout=300 update >&2 </dev/null
  with_clock "installing ${#missing[@]} packages" apt_install "${missing[@]}"
}

apt_install() { # packages...
  as_root env DEBIAN_FRONTEND=noninteractive apt-get -y -qq -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 \
    install --no-install-recommends "$@" >"${TMPDIR:-/tmp}/panelkit-apt.$$" 2>&1 </dev/null || {
    cat "${TMPDIR:-/tmp}/panelkit-apt.$$" >&2
    say "installing failed (output above)"
    return 1
  }
  rm -f "${TMPDIR:-/tmp}/panelkit-apt.$$"
}

# Ninja builds only what changed. Two callers in one checkout take turns.
build() { # preset [target...]
  local preset=$1 what="building $1${2:+: ${2#bin/}}" log="$root/build/$1.log" cache="$root/build/$1/CMakeCache.txt"
  shift
  mkdir -p "$root/build"
  (
    flock 7
    cd "$root"
    {
      # Configured before the test library was installed, it has no tests.
      if [ ! -f "build/$preset/build.ninja" ] || [ CMakePresets.json -nt "$cache" ] ||
        { [ -f /usr/src/googletest/CMakeLists.txt ] && [ ! -f "build/$preset/gtest_programs.txt" ]; }; then
        cmake --preset "$preset" || exit 1
        touch "$cache"
      fi
      cmake --build --preset "$preset" ${1:+--target "$@"}
    } 2>&1 </dev/null | show_steps "$what" "$log"
  ) 7>"$root/build/$preset.lock" || {
    # The errors alone when ninja marks them; everything otherwise.
    if grep -q '^FAILED: ' "$log"; then sed -n '/^FAILED: /,$p' "$log" >&2; else cat "$log" >&2; fi
    say "the $preset build failed (whole log: build/$preset.log)"
    return 1
  }
}

# Sets display_pid and DISPLAY: a display of our own, whose number the server itself chooses.
start_display() {
  local pipe number
  pipe=$(mktemp -u "${TMPDIR:-/tmp}/panelkit-display.XXXXXX")
  mkfifo "$pipe"
  exec 8<>"$pipe"
  rm -f "$pipe"
  # -noreset keeps the server alive when its last program leaves; setsid keeps Ctrl-C from it, as we stop it;
  # the signal ends it when the caller was killed.
  setsid setpriv --pdeathsig TERM Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset \
    3>&8 8<&- >/dev/null 2>&1 </dev/null &
  display_pid=$!
  read -r -t 60 number <&8 || number=
  exec 8<&-
  [ -n "$number" ] || { say "Xvfb did not start"; return 1; }
  export DISPLAY=":$number"
  unset XAUTHORITY WAYLAND_DISPLAY
}

wine_environment() { # prefix
  export WINEPREFIX=$1 WINEDEBUG="${WINEDEBUG:--all}" WINEARCH=win64
  # No downloads of runtimes that nobody here needs, no entries in the user's menus.
  export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
}

# The fonts that dialogs name are not on this system: one that has both Chinese and Latin letters stands for
# them. Wine finds the symbols of its window frames only among the prefix's own fonts.
set_fonts() { # prefix, its server stopped
  local font
  cp /usr/share/wine/fonts/marlett.ttf "$1/drive_c/windows/Fonts/"
  {
    printf '\n[Software\\\\Wine\\\\Fonts\\\\Replacements] 1\n'
    for font in '\x5b8b\x4f53' SimSun Tahoma 'MS Shell Dlg' System; do
      printf '"%s"="WenQuanYi Zen Hei"\n' "$font"
    done
  } >>"$1/user.reg"
}

wine_boot() { timeout -k 5 150 "$wine64" wineboot --init >"$root/build/wineboot.log" 2>&1 </dev/null; }

# Makes build/wine once. Now and then a first start of Wine hangs: then it says so and begins anew, once.
make_prefix() {
  local prefix="$root/build/wine" attempt
  [ -f "$prefix/.ready" ] && return 0
  mkdir -p "$root/build"
  (
    flock 7
    [ -f "$prefix/.ready" ] && exit 0
    wine_environment "$prefix"
    unset DISPLAY
    export LC_ALL=C.UTF-8
    for attempt in 1 2; do
      mkdir -p "$prefix"
      # Stopping the server in order makes it write the registry, whoever had started it.
      if with_clock "making the Wine prefix" wine_boot 7>&- &&
        { timeout -k 5 60 "$wineserver" -k 7>&- || true; } && timeout 30 "$wineserver" -w 7>&- &&
        [ -f "$prefix/system.reg" ]; then
        set_fonts "$prefix"
        : >"$prefix/.ready"
        exit 0
      fi
      say "Wine did not finish making $prefix (attempt $attempt of 2, log: build/wineboot.log)"
      "$wineserver" -k9 7>&- || true
      rm -rf "$prefix"
    done
    exit 1
  ) 7>"$root/build/wine.lock"
}

# A fresh copy (links) of build/wine for a private display. No window manager is there, and Wine would wait 2 s
# for its answer whenever a window appears: windows there are unmanaged.
make_private_prefix() { # prefix
  make_prefix
  rm -rf "$1" "$1.new"
  cp -al "$root/build/wine" "$1.new"
  rm -f "$1.new"/*.reg
  cp -p "$root"/build/wine/*.reg "$1.new"
  printf '\n[Software\\\\Wine\\\\X11 Driver] 1\n"Managed"="N"\n' >>"$1.new/user.reg"
  mv "$1.new" "$1"
}

# A copy of another commit's sources with its native command and library built; prints the folder.
build_other() { # commit
  local commit folder
  commit=$(git -C "$root" rev-parse --verify --short "$1^{commit}")
  folder="$root/build/other/$commit"
  if [ ! -x "$folder/build/host/bin/panelkit" ]; then
    mkdir -p "$folder"
    git -C "$root" archive "$commit" | tar x -C "$folder"
    (cd "$folder" && cmake --preset host && CCACHE_BASEDIR=$folder cmake --build --preset host --target panelkit_command) \
      >"$folder.log" 2>&1 </dev/null || { say "building $commit failed (log: $folder.log)"; return 1; }
  fi
  echo "$folder"
}
