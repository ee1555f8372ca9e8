#!/usr/bin/env bash
# exports_test.sh BUILD SOURCES COMPILER: panelkit.dll exports what the installed headers mark, and nothing else.
set -euo pipefail
build=$1 sources=$2 CXX=$3
tools=${CXX%g++*}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
fail() { # what, with lines on standard input; at the end of a pipe, where a variable would be lost
  local lines
  lines=$(head -20)
  [ -z "$lines" ] || { printf '%s:\n%s\n' "$1" "$lines"; touch "$folder/failed"; }
}

"${tools}objdump" -p "$build/bin/panelkit.dll" | sed -n '/Name Pointer\] Table/,/^$/s/^\t\[ *[0-9]*\].* //p' |
  sed 's/@[0-9]*$//' | c++filt | sort -u >"$folder/exports"
"$CXX" -std=c++17 -I"$sources/src" -MM "$sources/src/panelkit.h" | tr -s ' \\' '\n\n' | grep '\.h$' |
  xargs cat | sed 's|//.*||; /^ *#/d' >"$folder/headers"

# What is marked: classes, instantiations of templates, functions; with the class, what is marked of it alone.
tr '\n' ' ' <"$folder/headers" | grep -oE 'PANELKIT_API [^;{(]*[;{(]' | sed -nE '
  s/^PANELKIT_API ([A-Za-z0-9_]+(<[A-Za-z0-9_]+>)?) *( : .*)?[;{]$/\1/p
  s/^PANELKIT_API ([A-Za-z0-9_]+ )+([A-Za-z0-9_]+);$/\2/p
  s/^PANELKIT_API (.*[ *&])?([A-Za-z0-9_]+) *\($/\2/p' >"$folder/seen"
# A macro marks more than itself; CSingleLock is all in its header, so nothing of it is exported.
grep -oE '^AFX_SIMPLE_EXCEPTION\([A-Za-z]+' "$folder/headers" | sed 's/.*(//' >>"$folder/seen"
grep -vxE 'class_name|CSingleLock' "$folder/seen" | sort -u >"$folder/marked"
# Each export by what it is part of: "class function", "function".
awk '{
  gsub(/\[abi:[a-z0-9]*\]/, "")
  is_type = sub(/^(typeinfo|vtable) for /, "")
  sub(/^(non-)?virtual thunk to /, "")
  list = match($0, /^(TaggedArr|Arr)<[A-Za-z0-9_]+>/) ? substr($0, 1, RLENGTH) : ""
  sub(/ const$/, "")
  while (gsub(/<[^<>]*>/, "")) { }
  while (gsub(/\([^()]*\)/, "")) { }
  if (is_type) { sub(/::\{.*/, ""); print "type", $0; if (list) print "of", list; next }
  sub(/::operator .*/, "::operator") # To a type of one word or more.
  sub(/^.* /, "")
  if (list) { print "of", list; next }
  gsub(/::~?/, " ")
  print "of", $0
}' "$folder/exports" | sort -u >"$folder/parts"
sed -n 's/^of //p' "$folder/parts" | awk 'NR == FNR { marked[$1]; next }
  { for (i = 1; i <= NF; ++i) if ($i in marked) next; print }' "$folder/marked" - |
  fail "exported, but marked in no installed header"
tr ' ' '\n' <"$folder/parts" | sed 's/^.*:://' | sort -u | comm -13 - "$folder/marked" | fail "marked in an installed header, but not exported"

# Types: also those of the bases, which are templates, and of what the standard library's pointers keep. The
# compiler exports those of classes derived from exported ones: HostedDialogCL stays inside all the same. Whether the
# system's interfaces are among them depends on what is compiled as one.
sed -n 's/^type //p' "$folder/parts" | grep -v '^std::' | sed 's/^.*:://' | sort -u |
  comm -23 - <({ grep -oE '[A-Za-z0-9_]+' "$folder/headers"; echo HostedDialogCL IAccessible IDispatch IUnknown | tr ' ' '\n'; } | sort -u) | fail "types of no installed header"

# Of the arrays, every type exports the same members, the private ones not among them.
for list in Arr TaggedArr; do
  header=$sources/src/containers/$(sed 's/TaggedArr/tagged_arr/; s/^Arr/arr/' <<<"$list").h
  sed -nE "s/^$list<([A-Za-z0-9_]+)>::(.*)$/\1 \2/p" "$folder/exports" | sed -E "s/$list<[A-Za-z0-9_]+>/$list<T>/g" >"$folder/members"
  while read -r type; do
    sed -n "s/^$type //p" "$folder/members" | sed -E "s/\b$type\b/T/g" | sort >"$folder/members_of"
    [ -f "$folder/members_of_first" ] || cp "$folder/members_of" "$folder/members_of_first"
    diff "$folder/members_of_first" "$folder/members_of" | fail "members of $list<$type> that others have not, or the other way"
  done < <(cut -d' ' -f1 "$folder/members" | sort -u)
  rm "$folder/members_of_first"
  sed -nE '/^private:/,/^};/s/^[^(]*[ *&]([A-Za-z]*M)\(.*$/\1/p' "$header" | sort -u >"$folder/private"
  [ -s "$folder/private" ] || echo "$header" | fail "no private members found"
  sed -E 's/^[^ ]+ //; s/\(.*//' "$folder/members" | sort -u | comm -12 - "$folder/private" | fail "private members of $list"
done

echo "$(wc -l <"$folder/exports") exports of $(wc -l <"$folder/marked") classes and functions"
[ ! -e "$folder/failed" ]
