"""blocks_test.py COMMAND: every fenced block of the pages is looked at by a test, here or elsewhere.

What is compiled (c, cpp) tests/docs/CMakeLists.txt takes all of; head, wrong and right are those of check.md, which
tests/tools/check_test.cpp reads. Here: description files are checked, JSON and what commands print are compared, and
the blocks that scripts run are named in them. Also what is told twice, in two languages.
"""
import json
import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts/site"))
import blocks  # noqa: E402

COMMAND = sys.argv[1]
SCRIPTS = "".join(path.read_text() for path in sorted((ROOT / "tests/scripts").glob("*.sh")))
faults = []


def run(*arguments):
    done = subprocess.run([COMMAND, *map(str, arguments)], capture_output=True, text=True, check=False)
    return done.returncode, done.stdout + done.stderr


def expect(is_true, block, what):
    if not is_true:
        faults.append(f"{block}: {what}")


def check_descriptions(folder):
    written = blocks.write_descriptions(folder)
    for block, file in written:
        # How wide texts are only a window system can tell: that the pictures show.
        code, said = run("check", "--strict", "--lang", "en", file)
        expect(code == 0, block, said)
        if block.page == "docs/author-tools.md":
            code, said = run("format", "--check", file)
            expect(code == 0, block, said)
    return len(written)


def is_scripted(block):
    name = f'{block.page.removeprefix("docs/")}" {block.language} {block.number}'
    return name + " " in SCRIPTS or f'"{block.page}"' in SCRIPTS.partition("guide_pages=(")[2].partition(")")[0]


def commands_of(block):
    return [line for line in block.text.splitlines() if not line.startswith("#")]


def check_scripted(block, all_blocks):
    """A block is run by a script, or is the same as one that is."""
    expect(any(is_scripted(other) and commands_of(other) == commands_of(block) for other in all_blocks
               if other.language == block.language), block, "no script of tests/scripts runs it")


def check_json(block):
    shown = json.loads((ROOT / "tests/samples/two_kinds_inspect.json").read_text())
    keys = [list(document) for document in json.loads(block.text)]
    expect(keys == [["file", *shown]] * len(keys), block, "other keys than those of inspect")
    sample = ROOT / "tests/samples/two_kinds.dlg"
    dumped = json.loads(run("dump", sample, sample)[1])
    expect([document["file"] for document in dumped] == [str(sample)] * 2, block, "dump names no files")


def check_ids(block):
    printed = run("ids", ROOT / "examples/plotter/plotter.dlg")[1].splitlines()
    for line in filter(None, block.text.splitlines()):
        expect(line in printed, block, f"ids does not print {line}")


def messages_of(page):
    ways = {"sent": "发送", "posted": "投递"}
    rows = []
    for line in (ROOT / page).read_text(encoding="utf-8").splitlines():
        cells = [cell.strip() for cell in line.split("|")[1:4]]
        if len(cells) == 3 and cells[0].endswith("Msg`"):
            rows.append((*cells[:2], *(way in cells[2] or ways[way] in cells[2] for way in ways)))
    return rows


def check_messages():
    """The table in Chinese tells what that in English does, which tests/tools/live compares with the code."""
    page = "docs/zh-CN/developer-guide.md"
    expect(messages_of(page) == messages_of("docs/messages.md") != [], page, "another table of messages")


def main():
    all_blocks = blocks.all_blocks()
    with tempfile.TemporaryDirectory() as folder:
        descriptions = check_descriptions(pathlib.Path(folder))
    check_messages()
    for block in all_blocks:
        language = block.language
        if language in ("sh", "cmake", "rc", "output"):
            check_scripted(block, all_blocks)
        elif language == "json":
            check_json(block)
        elif language == "xml":
            expect(block.text == (ROOT / "cmake/todays_look.manifest").read_text(), block, "another manifest")
        elif language in ("head", "wrong", "right"):
            expect(block.page == "docs/check.md", block, "nobody tests it on this page")
        else:
            expect(language in ("", "dlg", "c", "cpp"), block, "a language that nobody tests")
        if language == "cpp" and block.page == "docs/author-tools.md":
            check_ids(block)
    print("\n".join(faults))
    print(f"{len(all_blocks)} blocks, {descriptions} of them descriptions; {len(faults)} faults")
    return 1 if faults or not all_blocks else 0


sys.exit(main())
