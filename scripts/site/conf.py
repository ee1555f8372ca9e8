# Sphinx builds the pages of docs into a site: scripts/docs.
import re

from docutils import nodes
from pygments.lexers.special import TextLexer

project = "Panelkit"
extensions = ["myst_parser"]
root_doc = "README"
exclude_patterns = ["doxygen"]
html_theme = "furo"
html_title = project
html_show_copyright = False
html_show_sourcelink = False
html_copy_source = False
html_show_search_summary = False  # Summaries would be fetched, which a site opened from the disk can not.
highlight_language = "text"
smartquotes = False
html_use_index = False
myst_heading_anchors = 3
suppress_warnings = ["myst.header"]  # Pages whose first block is no heading of the first level have one all the same.

# The navigation is the lists and tables of links on these pages, which are what a reader of the plain files has.
# A page that none of them links to is an error: sphinx-build warns, and warnings are errors.
CONTENTS = ["README", "kinds/README"]
LINK = re.compile(r"\]\(([^)#:]+)\.md\)")


def toctree(caption, pages):
    lines = ["```{toctree}", ":hidden:"] + ([f":caption: {caption}"] if caption else [])
    return "\n".join(lines + pages + ["```", ""])


def add_contents(app, page, source):
    if page not in CONTENTS:
        return
    trees, caption, pages, seen = [], "", [], set()
    for line in source[0].splitlines() + ["## "]:
        if line.startswith("## "):
            if pages:
                trees.append(toctree(caption, pages))
            caption, pages = line[3:].strip(), []
        elif line.startswith(("- ", "| [")):
            for target in LINK.findall(line):
                if target not in seen and not target.startswith(".."):
                    seen.add(target)
                    pages.append(target)
    source[0] += "\n" + "\n".join(trees)


# Blocks of these languages are text: sections of description files, wrong and right.
def name_languages(app):
    for name in ("dlg", "head", "wrong", "right", "output", "rc"):
        app.add_lexer(name, TextLexer)


# What check.md says of its examples behind the fence shows here as a line above the block.
def name_examples(app, doctree):
    for block in list(doctree.findall(nodes.literal_block)):
        if block.get("language") in ("head", "wrong", "right"):
            block.parent.insert(block.parent.index(block), nodes.paragraph("", block["language"].capitalize() + ":"))


def setup(app):
    app.connect("source-read", add_contents)
    app.connect("builder-inited", name_languages)
    app.connect("doctree-read", name_examples)
