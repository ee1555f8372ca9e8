"""The fenced code blocks of the pages: README*.md and all of docs.

blocks.py list              a line each: page, language, number of the block among those of the page and language
blocks.py text PAGE LANGUAGE NUMBER
blocks.py descriptions FOLDER   writes the description files among them, GBK, with the pictures of the examples beside
blocks.py sources FOLDER PIECE...   writes the programs among them, and the files PIECE, in which a line
                                //@ PAGE LANGUAGE NUMBER stands for a block that is part of a program
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
FENCE = re.compile(r"^(\s*)(`{3,}|~{3,})([^`]*)$")


class Block:
    def __init__(self, page, language, argument, line):
        self.page = page  # Relative to the root, as "docs/using.md".
        self.language = language  # The first word behind the fence; "" is a description file, or sections of one.
        self.argument = argument  # The rest: the name of the file that holds the block, if it is one.
        self.line = line
        self.number = 0  # From 1, among those of its page and language.
        self.text = ""

    def __str__(self):
        return f"{self.page}:{self.line}: {self.language or 'untagged'} {self.number}"


def pages():
    found = sorted(ROOT.glob("README*.md")) + sorted((ROOT / "docs").rglob("*.md"))
    return [path.relative_to(ROOT).as_posix() for path in found]


def blocks_of(page):
    found, block, fence = [], None, None
    for line_number, line in enumerate((ROOT / page).read_text(encoding="utf-8").splitlines(), 1):
        match = FENCE.match(line)
        if block is None and match:
            fence = match[2]
            words = match[3].split()
            block = Block(page, words[0] if words else "", " ".join(words[1:]), line_number)
            block.number = 1 + sum(other.language == block.language for other in found)
        elif block is not None and match and match[2].startswith(fence) and not match[3].strip():
            found.append(block)
            block = None
        elif block is not None:
            block.text += line + "\n"
    if block is not None:
        raise SystemExit(f"{block}: the block has no end")
    return found


def all_blocks():
    return [block for page in pages() for block in blocks_of(page)]


def is_description(block):
    return block.language in ("", "dlg")


def head_for(page):
    """The head of descriptions that are sections alone: that of the folder's README, else that of check.md."""
    readme = f"{page.rpartition('/')[0]}/README.md"
    heads = [block for block in blocks_of(readme) if is_description(block)] if (ROOT / readme).exists() else []
    heads += [block for block in blocks_of("docs/check.md") if block.language == "head"]
    return heads[0].text


def write_descriptions(folder):
    """FOLDER/kinds/label.dlg is the first one of docs/kinds/label.md, label_2.dlg the second."""
    pictures = list((ROOT / "examples").glob("*/*.bmp"))
    written = []
    for block in filter(is_description, all_blocks()):
        page = pathlib.PurePosixPath(block.page)
        place = folder / page.parent.relative_to("docs") if page.parts[0] == "docs" else folder
        place.mkdir(parents=True, exist_ok=True)
        for picture in pictures:
            if not (place / picture.name).exists():
                (place / picture.name).symlink_to(picture)
        text = block.text if block.text.lstrip().startswith("[版本号]") else head_for(block.page) + block.text
        name = page.stem + (f"_{block.language}" if block.language else "")
        name += "" if block.number == 1 else f"_{block.number}"
        (place / f"{name}.dlg").write_bytes(text.encode("gbk"))
        written.append((block, place / f"{name}.dlg"))
    return written


def write(file, text):
    """What is as it was keeps its time, and isn't built anew."""
    if not file.exists() or file.read_text(encoding="utf-8") != text:
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, encoding="utf-8")


def write_sources(folder, piece_files):
    """FOLDER/form_1.cpp is the first block of docs/form.md; FOLDER/pieces/NAME is the file with its pieces."""
    wanted = {(block.page, block.language, str(block.number)): block
              for block in all_blocks() if block.language in ("c", "cpp")}
    written = set()
    for piece_file in piece_files:
        text = ""
        for line in piece_file.read_text(encoding="utf-8").splitlines():
            if line.strip().startswith("//@ "):
                name = tuple(line.split()[1:])
                if name not in wanted:
                    raise SystemExit(f"{piece_file}: no such block, or it is there twice: {' '.join(name)}")
                block = wanted.pop(name)
                line = f'#line {block.line + 1} "{block.page}"\n{block.text}'
            text += line + "\n"
        written.add(folder / "pieces" / piece_file.name)
        write(folder / "pieces" / piece_file.name, text)
    for block in wanted.values():
        if "#include" not in block.text and "namespace" not in block.text:
            raise SystemExit(f"{block}: part of a program; tests/docs/pieces has to say of what")
        page = pathlib.PurePosixPath(block.page)
        name = "_".join([*(part for part in page.parent.parts if part != "docs"), page.stem])
        written.add(folder / f"{name}_{block.number}.{block.language}")
        write(folder / f"{name}_{block.number}.{block.language}", block.text)
    for old in set(folder.rglob("*.c*")) - written:
        old.unlink()


def main(arguments):
    if arguments == ["list"]:
        for block in all_blocks():
            print(block, block.argument)
    elif len(arguments) == 4 and arguments[0] == "text":
        for block in blocks_of(arguments[1]):
            if (block.language, str(block.number)) == (arguments[2], arguments[3]):
                sys.stdout.write(block.text)
                return 0
        raise SystemExit(f"no such block: {' '.join(arguments[1:])}")
    elif len(arguments) == 2 and arguments[0] == "descriptions":
        for _, file in write_descriptions(pathlib.Path(arguments[1])):
            print(file)
    elif len(arguments) >= 2 and arguments[0] == "sources":
        write_sources(pathlib.Path(arguments[1]), [pathlib.Path(file) for file in arguments[2:]])
    else:
        raise SystemExit(__doc__)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
