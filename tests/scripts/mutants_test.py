"""mutants_test.py COMPILER: what scripts/mutate makes of a small source, and that each mutant is its own fault."""
import os
import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts/mutants"))
import points  # noqa: E402
import schemata  # noqa: E402

SOURCE = r"""#include <vector>
#define LIMIT 1 < 2
// a < b; /* if (x == 0) */
constexpr int Most = 3;
static_assert(Most == 3, "0 == 1");
enum class KindCL { First = 0, Last = 1 };
template <class T, int n = 1> struct PairCL
{
    T values[2];
    int size { 1 };
};
namespace {
constexpr bool isSmall(int value)
{
    return value < 3;
}
int count(const std::vector<int>& values, int most)
{
    int found = 0;
    for (const int value : values) {
        if (value > most || value == 7) {
            continue;
        }
        ++found;
    }
    return found;
}
const char* name(KindCL kind)
{
    switch (kind) {
    case KindCL::First: return "a == b";
    default: break;
    }
    PairCL<int, 1> pair { { 1, 1 } };
    const auto first = [&pair](int) -> int { return pair.values[0]; };
    return first(0) == 1 && isSmall(1) ? "one" : "other";
}
}
int main()
{
    const bool isRight = count({ 1, 2, 3, 7, 8 }, 2) == 2 && *name(KindCL::Last) == 'o' && name(KindCL::First)[2] == '=';
    return isRight ? 0 : 1;
}
"""
# Each point with whether the program notices it.
EXPECTED = [
    (19, "`0` -> `1`", True),
    (21, "negate the condition", True),
    (21, "`>` -> `>=`", True),
    (21, "without `|| value == 7`", False),
    (21, "`==` -> `!=`", True),
    (21, "`7` -> `7 + 1`", False),
    (22, "delete `continue;`", True),
    (24, "delete `++found;`", True),
    (32, "delete `break;`", False),
    (34, "`1` -> `0`", False),
    (34, "`1` -> `0`", False),
    (35, "`0` -> `1`", False),
    (36, "`0` -> `1`", False),
    (36, "`==` -> `!=`", False),
    (36, "`1` -> `0`", False),
    (36, "without `&& isSmall(1)`", False),
    (36, "`1` -> `0`", False),
]

found = points.points_of("sample.cpp", SOURCE)
in_front = [point for point in found if point.line < 39]
told = [(point.line, point.what) for point in in_front]
faults = []
if told != [(line, what) for line, what, _ in EXPECTED]:
    faults.append("points:\n  " + "\n  ".join(map(str, told)))
with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    (folder / "sample.cpp").write_text(schemata.mutated(SOURCE, list(enumerate(found, 1))))
    program = folder / "sample"
    hook = ROOT / "scripts/mutants"
    subprocess.run([sys.argv[1], "-std=c++17", "-w", "-DPANELKIT_STATIC", f"-I{hook}", f"-I{ROOT / 'src'}",
                    folder / "sample.cpp", hook / "mutants.cpp", "-o", program], check=True)

    def passes(mutant, **more):
        environment = {**os.environ, "PANELKIT_MUTANT": str(mutant), **more}
        return subprocess.run([program], env=environment, check=False).returncode == 0

    if not passes(0):
        faults.append("with all mutants asleep the program fails")
    for number, (line, what, is_noticed) in enumerate(EXPECTED, 1):
        if passes(number) == is_noticed:
            faults.append(f"{line}: {what}: {'not ' if is_noticed else ''}noticed")
    notes = folder / "notes"
    passes(-1, PANELKIT_MUTANT_NOTES=str(notes))
    reached = {int(line.split()[1]) for line in notes.read_text().splitlines()}
    if reached != set(range(1, len(found))):  # All but what main returns for a fault.
        faults.append(f"reached: {sorted(reached)} of {len(found)}")
print("\n".join(faults) or f"{len(found)} mutants are as they should be")
sys.exit(bool(faults))
