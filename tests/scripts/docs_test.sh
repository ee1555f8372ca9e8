#!/usr/bin/env bash
# docs_test.sh SOURCES COMMAND: in a copy of the docs with faults, each fault is found. COMMAND is the native panelkit.
set -euo pipefail
sources=$1 command=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir -p "$folder/scripts" "$folder/tests"
cp -r "$sources"/{README.md,cmake,docs,examples} "$folder"
cp -r "$sources/scripts/site" "$folder/scripts"
cp -r "$sources/tests"/{docs,scripts,samples} "$folder/tests"
cd "$folder"

failures=0
finds() { # what it says...
  local said
  for said in "$@"; do
    grep -qE -- "$said" found || { echo "not found: $said"; failures=1; }
  done
  [ "$failures" -eq 0 ] || cat found
}

# Links and lists of contents.
echo '# A page of no list' >docs/lonely.md
cat >>docs/using.md <<'EOF'

[a page](nowhere.md), [a heading](form.md#nowhere), ![a picture](pictures/nowhere.png)
EOF
! python3 -B scripts/site/links.py pages 2>found || { echo "links.py is content"; failures=1; }
finds 'using.md:[0-9]+: no such file: nowhere.md' 'no such heading: form.md#nowhere' 'no such file: pictures/nowhere.png'
! sphinx-build -q -W --keep-going -d trees -c scripts/site docs site 2>found || { echo "sphinx-build is content"; failures=1; }
finds 'lonely.md: WARNING: document isn.t included in any toctree' 'nowhere.md' 'form.md#nowhere' 'nowhere.png'
mkdir -p loads/reference
echo '<img alt="" src="http://example.org/b.png">' >loads/reference/index.html
cat >loads/index.html <<'EOF'
<script src="https://example.org/a.js"></script><a href="nowhere.html">a</a><a href="#nowhere">b</a>
EOF
echo '@import "//example.org/a.css";' >loads/a.css
! python3 -B scripts/site/links.py site loads 2>found || { echo "a site that loads is accepted"; failures=1; }
finds 'index.html loads https://example.org/a.js' 'no such file: nowhere.html' 'no such place: #nowhere' 'a.css loads //example.org' \
  'reference/index.html loads http://example.org/b.png'

# Blocks: of a language that nobody tests, a description with a fault, commands that no script runs, another output.
cat >>docs/using.md <<'EOF'

```python
print()
```

```
[标题]
1
0
1 1001 20 20 abc 20 1
最大转速
0 -1 0 0
```

```sh
false
```
EOF
sed -i 's/constexpr int SingleEdit_1050 = 1050;/constexpr int SingleEdit_1050 = 1051;/' docs/author-tools.md
! python3 -B tests/docs/blocks_test.py "$command" >found || { echo "blocks_test.py is content"; failures=1; }
finds 'python 1: a language that nobody tests' "using.dlg:[0-9:]+ error: .*'abc'" \
  'using.md:[0-9]+: sh 4: no script' 'ids does not print constexpr int SingleEdit_1050 = 1051;'
[ "$(grep -c 'using.md:\|author-tools.md:' found)" = 4 ] || { echo "more was found than is wrong"; cat found; failures=1; }

# Parts of programs.
sed -i 's/^```python$/```cpp/' docs/using.md
! python3 -B scripts/site/blocks.py sources out tests/docs/pieces/*.cpp 2>found || { echo "a part is accepted"; failures=1; }
finds 'using.md:[0-9]+: cpp 2: part of a program'
exit "$failures"
