#!/usr/bin/env bash
# install_test.sh BUILD COMPILER: installs a Windows build into an empty folder and builds an application there.
set -euo pipefail
build=$1 compiler=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cmake --install "$build" --prefix "$folder/installed" >"$folder/log" || { cat "$folder/log"; exit 1; }
cd "$folder/installed"

for file in bin/panelkit.dll bin/panelkit.exe lib/libpanelkit.dll.a share/doc/panelkit/description-file.md; do
  [ -f "$file" ] || { echo "not installed: $file"; exit 1; }
done
# Of the headers, those that an application reads, itself or by way of others, and no more.
cat >"$folder/application.cpp" <<'EOF'
#include "panelkit.h"

int main()
{
    DuBasicDialogCL dialog;
    return dialog.SetConfigFileM("panel.dlg") == 1 ? 0 : 1;
}
EOF
"$compiler" -std=c++17 -Wall -Wextra -Werror -Iinclude/panelkit "$folder/application.cpp" -o "$folder/application.exe" \
  -Llib -lpanelkit -lgdi32 -lcomctl32 -MD -MF "$folder/read"
tr -s ' \\' '\n\n' <"$folder/read" | sed -n 's|^.*include/panelkit/||p' | sort >"$folder/headers_read"
find include/panelkit -type f -printf '%P\n' | sort >"$folder/headers_installed"
diff "$folder/headers_read" "$folder/headers_installed" || { echo "left: read, right: installed"; exit 1; }
echo "$(wc -l <"$folder/headers_installed") headers installed, each of use"
