#!/usr/bin/env bash
# reference_test.sh DOXYGEN: proves, with a header of its own, that DOXYGEN/filter gives each comment to the
# declarations that it is about, and that a name without one is told.
set -euo pipefail
settings=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
fail() { echo "$*" >&2; exit 1; }

mkdir -p "$folder/src/dialog"
cat >"$folder/src/dialog/sample.h" <<'END'
#pragma once

// A sample, with < and `code`.
class SampleCL
{
public:
    // Shared by both.
    int FirstM();
    int SecondM(int size = sizeof(int), const char* text = "//; {");
    int ThirdM(); // The third alone.
    int BareM();

    // About one; "quoted".
    int FourthM() const
    {
        return 4; // Not told.
    }

    int AlsoBareM();

    // @param one The first of two.
    int PartlyM(int one, int two);

    // Kinds.
    enum Kind
    {
        A, // Of A.
        B
    };

private:
    int hidden_ { 0 };
};

// A macro,
// in two lines.
#define SAMPLE(x)                                                                                                      \
    ((x) + 1)

#define BARE 2

struct BareCL
{
    int bareNumber;
};
int slBare();
/* For C. */
typedef struct plain
{
    int size; /* In bytes. */
} plain;
END
cd "$folder"
"$settings/filter" src/dialog/sample.h >filtered
[ "$(wc -l <filtered)" -eq $(($(wc -l <src/dialog/sample.h) + 1)) ] || fail "lines have moved"
line() { grep -F "$1" filtered || fail "lost: $1"; }
says() { # what is declared, its comment
  line "$1" | grep -qF "/** $2 */ $1" || fail "$1 should say \"$2\", but: $(line "$1")"
}
says 'class SampleCL' 'A sample, with &lt; and <code>code</code>.'
says 'int FirstM()' 'Shared by both.'
says 'int SecondM(' 'Shared by both.'
says 'int ThirdM()' 'The third alone.'
says 'int FourthM()' 'About one; "quoted".'
says 'A,' 'Of A.'
says 'typedef struct plain' 'For C.'
says 'int size;' 'In bytes.'
line '((x) + 1)' | grep -qF '/**< A macro, in two lines. */' || fail "the macro: $(line '((x) + 1)')"
! grep -q 'Not told.*\*/' filtered || fail "a comment inside a body is told"

{ cat "$settings/Doxyfile"; printf '%s\n' "FILTER_PATTERNS = *.h=$settings/filter" "INPUT = src" "GENERATE_HTML = NO" \
  "GENERATE_XML = YES"; } | doxygen - >log 2>warnings || { cat warnings; fail "doxygen failed"; }
grep -oiE '(Member|Compound) [^ (]*' warnings | cut -d' ' -f2 | sort -u >told
printf '%s\n' AlsoBareM BARE BareCL BareM bareNumber slBare | sort >bare
grep -q 'PartlyM(int one, int two) is not documented' warnings || { cat warnings; fail "one of two parameters is enough"; }
diff told bare || { cat warnings; fail "left: names told, right: names without a comment"; }
