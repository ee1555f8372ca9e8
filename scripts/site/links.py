"""Looks whether links lead somewhere.

links.py pages         those of every Markdown page of the repository, as plain files: targets and headings
links.py site FOLDER   those of the built site; and that it loads nothing from the network
"""
import html.parser
import pathlib
import re
import sys
import urllib.parse

import blocks

ROOT = blocks.ROOT
LINK = re.compile(r"!?\[(?:[^\]\[]|\[[^\]]*\])*\]\(<?([^)\s>]+)>?\)")
# By these elements a page loads something without being asked.
OUTSIDE = re.compile(r"<(?:script|img|link|iframe|source)\b[^>]*\s(?:src|href)=[\"']((?:https?:)?//[^\"']*)")
LOADING = {"script": "src", "img": "src", "link": "href", "iframe": "src", "source": "src"}


def prose_of(path):
    """The lines of a page without its blocks and code."""
    fence = None
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        match = blocks.FENCE.match(line)
        if fence is None and match:
            fence = match[2]
        elif fence is not None and match and match[2].startswith(fence):
            fence = None
        elif fence is None and not line.startswith("    "):
            yield number, line


def headings_of(path):
    found = set()
    for _, line in prose_of(path):
        if line.startswith("#"):
            words = re.sub(r"[^\w\- ]", "", line.lstrip("#").strip().lower())
            found.add(words.replace(" ", "-"))
    return found


def check_pages():
    pages = [*ROOT.glob("*.md"), *(ROOT / "docs").rglob("*.md"), *(ROOT / "examples").rglob("*.md")]
    links = 0
    for page in sorted(pages):
        name = page.relative_to(ROOT)
        for number, line in prose_of(page):
            for target in LINK.findall(re.sub(r"`[^`]*`(?!\]\()", "", line)):
                if re.match(r"[a-z]+:", target):
                    continue
                links += 1
                path, _, heading = target.partition("#")
                to = (page.parent / urllib.parse.unquote(path)).resolve() if path else page
                if not to.exists():
                    yield f"{name}:{number}: no such file: {target}"
                elif heading and heading not in headings_of(to):
                    yield f"{name}:{number}: no such heading: {target}"
    if links == 0:
        yield "no link was found"


class PageReader(html.parser.HTMLParser):
    def __init__(self):
        super().__init__()
        self.anchors, self.links, self.loaded = set(), [], []

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        self.anchors.update(value for key, value in attributes if key in ("id", "name") and value)
        if LOADING.get(tag) in values:
            self.loaded.append(values[LOADING[tag]] or "")
            self.links.append(self.loaded[-1])
        elif tag == "a" and "href" in values:
            self.links.append(values["href"] or "")


def read(path):
    reader = PageReader()
    reader.feed(path.read_text(encoding="utf-8", errors="replace"))
    return reader


def check_site(folder):
    files = sorted(folder.rglob("*.html"))
    if folder / "index.html" not in files:
        yield "the site has no first page"
    pages = {}
    for path in files:
        name = path.relative_to(folder)
        if name.parts[0] == "reference":  # Many pages, whose links within themselves are doxygen's.
            for address in OUTSIDE.findall(path.read_text(encoding="utf-8", errors="replace")):
                yield f"{name} loads {address}"
        else:
            pages[path] = read(path)
    for path, page in pages.items():
        name = path.relative_to(folder)
        for target in page.loaded:
            if re.match(r"([a-z]+:)?//", target):
                yield f"{name} loads {target}"
        for target in page.links:
            if re.match(r"([a-z]+:|//)", target):
                continue
            file, _, anchor = urllib.parse.unquote(target).partition("#")
            to = (path.parent / file.partition("?")[0]).resolve() if file else path
            if not to.exists():
                yield f"{name}: no such file: {target}"
            elif anchor and to in pages and anchor not in pages[to].anchors:
                yield f"{name}: no such place: {target}"
    for sheet in folder.rglob("*.css"):
        for address in re.findall(r"(?:url\(|@import)\s*[\"']?((?:https?:)?//[^\"')\s]+)", sheet.read_text(errors="replace")):
            yield f"{sheet.relative_to(folder)} loads {address}"


def main(arguments):
    if arguments == ["pages"]:
        faults = list(check_pages())
    elif len(arguments) == 2 and arguments[0] == "site":
        faults = list(check_site(pathlib.Path(arguments[1]).resolve()))
    else:
        raise SystemExit(__doc__)
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
