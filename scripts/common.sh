# Sourced by the other scripts: packages, builds, and the private display and Wine session of this checkout.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

packages=(
  cmake ninja-build g++ g++-mingw-w64-x86-64-posix googletest libcli11-dev nlohmann-json3-dev ccache
  wine wine64 xvfb xauth fonts-wqy-zenhei imagemagick
)

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

install_missing() { # packages...
  local package missing=()
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "installing: ${missing[*]}" >&2
  as_root apt-get update -qq >&2
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

build() { # preset
  local log="$root/build/$1.log"
  mkdir -p "$root/build"
  (cd "$root" && { [ -f "build/$1/build.ninja" ] || cmake --preset "$1"; } && cmake --build --preset "$1") >"$log" 2>&1 || {
    cat "$log" >&2
    echo "the $1 build failed (log above)" >&2
    return 1
  }
}

# A display of our own: tests press keys and move the mouse, which must never reach somebody's desktop.
start_display() {
  local pipe number
  pipe=$(mktemp -u)
  mkfifo "$pipe"
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$pipe" >/dev/null 2>&1 &
  display_pid=$!
  read -r -t 30 number <"$pipe" || { echo "Xvfb did not start" >&2; return 1; }
  rm -f "$pipe"
  export DISPLAY=":$number"
}
