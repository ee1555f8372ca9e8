# Sourced by the tests of what users get: tools is the prefix of the binutils, run starts a Windows program.
fail() { echo "$*"; exit 1; }

# The Nth fenced block of a language on a page.
block() { # page language number
  awk -v open="\`\`\`$2" -v wanted="$3" '
    $0 == "```" { inside = 0 }
    inside { print; printed = 1 }
    $0 == open { inside = ++seen == wanted }
    END { exit !printed }' "$1" || { echo "no block $3 of $2 in $1" >&2; return 1; }
}

# Fails if a program needs another DLL than the system's, or beside its own panelkit.dll.
needs_no_runtime() { # program
  local dlls
  dlls=$("${tools}objdump" -p "$1" | sed -n 's/^.*DLL Name: //p')
  [ -n "$dlls" ] || { echo "no DLLs in $1"; return 1; }
  if grep -ivxE 'panelkit|(advapi32|comctl32|comdlg32|gdi32|imm32|kernel32|msvcrt|ole32|oleaut32|panelkit|shell32|user32|uuid|windowscodecs|winspool)\.(dll|drv)' \
    <<<"$dlls"; then
    echo "$1 needs these"
    return 1
  fi
}

# The application of docs/using.md prints what the first edit holds.
application() { # program command
  local said
  needs_no_runtime "$1"
  "$run" "$2" new --force panel.dlg >/dev/null
  said=$("$run" "$1" | tr -d '\r')
  [ "$said" = 未命名 ] || fail "$1 said: $said"
}
