"""Finds the places of a C++ source where a mutant can stand.

No parser: tokens, and what kind of braces they are in, tell enough in sources that clang-format has laid out (blanks
around binary operators and none inside template brackets). What slips through doesn't compile, and is dropped.
"""
import dataclasses
import re

TOKEN = re.compile(
    r"""(?P<space>\s+|//[^\n]*|/\*.*?\*/|(?<=\n)[ \t]*\#(?:\\\n|[^\n])*|\A\#[^\n]*)
    |(?P<text>(?:L|u8|u|U)?R"(?P<delimiter>[^(]*)\(.*?\)(?P=delimiter)"|(?:L|u8|u|U)?"(?:\\.|[^"\\])*")
    |(?P<char>(?:L|u8|u|U)?'(?:\\.|[^'\\])+')
    |(?P<number>\.?\d(?:[eE][+-]|[\w.'])*)
    |(?P<word>[A-Za-z_]\w*)
    |(?P<sign>->\*|<<=|>>=|<=|>=|==|!=|&&|\|\||\+\+|--|->|::|<<|[-+*/%&|^]=|.)""",
    re.VERBOSE | re.DOTALL)

NO_EXPRESSION = set("""if for while do switch return case default break continue goto using typedef static const
    constexpr auto struct class enum union template static_assert throw delete else try catch public private protected
    unsigned signed int bool char float double long short void extern thread_local volatile namespace friend""".split())
DECLARATION = re.compile(r"[\w:]+(<.*>)?(::\w+)*(\s*[*&]+\s*|\s+)\w+\s*([;=({\[]|$)", re.DOTALL)
FLIPPED = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
NAMES = {"<": "Less", "<=": "LessEqual", ">": "Greater", ">=": "GreaterEqual", "==": "Equal", "!=": "NotEqual"}
PAIRS = {"(": ")", "[": "]", "{": "}"}


@dataclasses.dataclass
class Token:
    kind: str
    text: str
    begin: int
    end: int
    blank: bool  # Something stands between it and the token before.
    block: str = ""
    statement: int = 0  # The index of its statement's first token, of the innermost one.


@dataclasses.dataclass
class Point:
    """A mutant: what stands around the part [begin, end) of the source, or in its place when inside is no None."""
    file: str
    line: int
    column: int
    what: str
    begin: int
    end: int
    before: str
    after: str
    inside: str = None

    def key(self, source):
        line = source.splitlines()[self.line - 1].strip()
        return f"{self.file}|{self.what}|{self.column}|{line}"


def tokens_of(source):
    found, blank = [], False
    for match in TOKEN.finditer(source):
        if match.lastgroup == "space":
            blank = True
            continue
        kind = "text" if match.lastgroup == "delimiter" else match.lastgroup
        found.append(Token(kind, match.group(), match.start(), match.end(), blank))
        blank = False
    return found


def opened_block(tokens, at, first, outer):
    """The kind of the brace at that place; first: where its statement begins."""
    head = [token.text for token in tokens[first:at]]
    before = tokens[at - 1].text if at > 0 else ";"
    words = [text for text in head if text not in ("inline", "template")]
    if outer in ("outside", "class"):
        if words and words[0] in ("namespace", "extern"):
            return "outside"
        if "(" not in head and any(word in words for word in ("class", "struct", "union")):
            return "class"
        if "enum" in words:
            return "fixed"
        if "=" in head and "operator" not in head or "constexpr" in head:
            return "fixed"
        is_body = before in (")", "const", "override", "noexcept", "}", "try") or "->" in head
        # A member that the constructor sets with braces: the body comes after the last one.
        if is_body or "(" in head:
            return "body" if is_body or not re.match(r"\w+$", before) or before == "final" else "fixed"
        return "fixed"
    if outer == "fixed":
        return "fixed"
    if outer in ("body", "list") and before in (")", "]", "else", "do", "try", "mutable", ";", "{", "}", ":"):
        return "list" if before == "{" and outer == "list" else "body"
    if re.match(r"(struct|class|enum|union)$", head[0] if head else ""):
        return "fixed"
    return "body" if "->" in head and "[" in head and before != "return" and "(" in head and \
        re.match(r"[\w>*&]+$", before) and outer == "body" and head[-2:-1] in (["->"], ["::"]) else "list"


def mark(tokens):
    """Tells each token its kind of block and its statement; matching brackets are returned by their index."""
    blocks, starts, open_at, partner = ["outside"], [0], [], {}
    for at, token in enumerate(tokens):
        token.block, token.statement = blocks[-1], starts[-1]
        if token.text in PAIRS:
            open_at.append(at)
            if token.text == "{":
                blocks.append(opened_block(tokens, at, starts[-1], blocks[-1]))
                starts.append(at + 1)
        elif token.text in PAIRS.values():
            if not open_at:
                continue
            opener = open_at.pop()
            partner[opener], partner[at] = at, opener
            if token.text == "}":
                closed = blocks.pop()
                starts.pop()
                token.block, token.statement = blocks[-1], starts[-1]
                following = tokens[at + 1].text if at + 1 < len(tokens) else ""
                in_brackets = open_at and tokens[open_at[-1]].text != "{"
                if closed != "list" and not in_brackets and following not in (")", ",", ";", "(", "."):
                    if blocks[-1] in ("outside", "class", "body") and not (closed == "fixed" and following == "{"):
                        starts[-1] = at + 1
        elif token.text == ";" and (not open_at or tokens[open_at[-1]].text == "{"):
            starts[-1] = at + 1
        elif token.text == ":" and tokens[token.statement].text in ("case", "default", "public", "private", "protected"):
            if not open_at or tokens[open_at[-1]].text == "{":
                starts[-1] = at + 1
    return partner


def operand_end(tokens, at, partner, stops):
    """The index of the token behind the operand that begins at that index."""
    while at < len(tokens):
        text = tokens[at].text
        if text in stops or text in (")", "]", "}", ",", ";", "?", ":"):
            return at
        at = partner.get(at, at) + 1
    return at


def constant_change(token, before, following):
    text = token.text
    if token.kind == "word":
        return {"true": "false", "false": "true"}.get(text)
    if token.kind == "char":
        return "'\\0'" if text[0] == "'" and text != "'\\0'" else "'a'" if text == "'\\0'" else None
    # A template's argument has no blanks around its brackets.
    if token.kind != "number" or before.text == "<" and not token.blank or following.text == ">" and not following.blank:
        return None
    if text == "0":
        return "1"
    return "0" if text == "1" else f"{text} + 1"


def points_of(file, source):
    """Every point of a source, in its order."""
    tokens = tokens_of(source)
    partner = mark(tokens)
    points = []

    def add(what, begin, end, before, after, inside=None):
        line = source.count("\n", 0, begin) + 1
        column = begin - (source.rfind("\n", 0, begin) + 1) + 1
        points.append(Point(file, line, column, what, begin, end, before, after, inside))

    fixed_until = -1
    for at, token in enumerate(tokens):
        if token.block not in ("body", "list") or at < 2 or at + 2 >= len(tokens):
            continue
        before, following = tokens[at - 1], tokens[at + 1]
        first = tokens[token.statement].text
        if first == "if" and tokens[token.statement + 1].text == "constexpr" and at == token.statement:
            fixed_until = max(fixed_until, partner[at + 2])
        if first in ("static_assert", "using", "typedef", "case", "constexpr", "template", "struct", "enum"):
            continue
        if at <= fixed_until:
            continue
        if token.text == "constexpr" or (token.text == "static" and following.text in ("constexpr", "const")):
            fixed_until = operand_end(tokens, at, partner, (";",))
            continue
        if token.block == "body" and at == token.statement:
            end = operand_end_of_statement(tokens, at, partner)
            if end is not None and is_expression(tokens, at, end, source):
                text = " ".join(source[token.begin:tokens[end].end].split())
                add(f"delete `{text[:90]}`", token.begin, tokens[end].end, "if (!::slMutant({n})) {{ ", " }}")
        is_spaced = token.blank and following.blank
        if token.text in FLIPPED and is_spaced and before.text not in ("template", "operator"):
            sign = "==" if token.text in ("==", "!=") else "<"
            flip = f"{sign} ::SlFlip<{{n}}, SlComparison::{NAMES[token.text]}>() {sign}"
            add(f"`{token.text}` -> `{FLIPPED[token.text]}`", token.begin, token.end, "", "", flip)
        if token.text in ("&&", "||") and is_spaced and following.text not in (")", "...") and before.text != "...":
            end = operand_end(tokens, at + 1, partner, ("&&", "||") if token.text == "&&" else ("||",))
            text = " ".join(source[following.begin:tokens[end - 1].end].split())
            pair = ("(::slMutant({n}) || (", "))") if token.text == "&&" else ("(!::slMutant({n}) && (", "))")
            add(f"without `{token.text} {text[:90]}`", following.begin, tokens[end - 1].end, *pair)
        if token.text == "if" and following.text == "(":
            end = partner[at + 1]
            inner = [inside.text for inside in tokens[at + 2:end]]
            if ";" not in inner:
                add("negate the condition", tokens[at + 2].begin, tokens[end - 1].end,
                    "static_cast<bool>(", ") != ::slMutant({n})")
        # An array's bound.
        is_bound = before.text == "[" and following.text == "]" and tokens[at - 2].kind == "word" \
            and (tokens[at - 3].kind == "word" or tokens[at - 3].text in "*&>") and tokens[at - 3].text != "return"
        change = None if is_bound else constant_change(token, before, following)
        if change is not None:
            add(f"`{token.text}` -> `{change}`", token.begin, token.end, "", "",
                f"(::slMutant({{n}}) ? {change} : {token.text})")
    return points


def operand_end_of_statement(tokens, at, partner):
    """The index of the semicolon that ends the statement; None: a block or the end comes first."""
    while at < len(tokens):
        text = tokens[at].text
        if text == ";":
            return at
        if text in (")", "]", "}"):
            return None
        at = partner.get(at, at) + 1
    return None


def is_expression(tokens, at, end, source):
    first = tokens[at]
    if first.text in ("break", "continue", "delete"):
        return True
    if first.text == "return":
        return end == at + 1
    if first.kind != "word" and first.text not in ("++", "--", "*", "::", "("):
        return False
    if first.text in NO_EXPRESSION or end == at:
        return False
    if tokens[at - 1].text == ")" or first.text == "(":  # What a condition without braces rules.
        return False
    return DECLARATION.match(source[first.begin:tokens[end].end]) is None
