"""How a line of C++ is broken: the places in it that can be, and what each becomes.

Nothing here knows the language whole; lines are as clang-format leaves them, and what does not
compile is drawn again by break_lines.py. Texts and comments are never touched.
"""
import re
from dataclasses import dataclass

CALL = "a call dropped"
CONDITION = "a condition turned"
COMPARISON = "a comparison moved"
LOGIC = "a logical operator changed"
CONSTANT = "a constant shifted"
ARITHMETIC = "an arithmetical operator changed"


@dataclass(frozen=True)
class Break:
    kind: str
    line: str  # the whole line as it stands when broken


OPERATORS = (
    (COMPARISON, {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ",
                  " != ": " == "}),
    (LOGIC, {" && ": " || ", " || ": " && "}),
    (ARITHMETIC, {" + ": " - ", " - ": " + ", " * ": " / ", " / ": " * ", " += ": " -= ",
                  " -= ": " += "}),
)
TURNED_WORDS = {"true": "false", "false": "true"}
NUMBER = re.compile(r"(?<![\w.'])(\d+(?:\.\d+)?)(?![\w.'])")
HEAD = re.compile(r"\b(if|while) \(")
DECLARED = re.compile(r"^[\w:<>,*& ]+ [*&]*\w+ = ")
# A chain of names, then a call or a value.
STATEMENT = re.compile(
    r"^(\(void\))?[*]?[A-Za-z_][\w:.\[\]]*(->[\w:.\[\]]+)*(\(.*\)| [-+*/|&]?= .*);$")
NO_STATEMENT = re.compile(r"^(return|throw|case|default|delete|else|if|for|while|do|switch)\b")


def masked(line: str) -> str:
    """The line with texts, comments and includes blotted out, each letter in its place."""
    if line.lstrip().startswith("#"):
        return " " * len(line)
    blot = lambda found: "_" * len(found.group())  # noqa: E731
    line = re.sub(r'"(?:[^"\\]|\\.)*"|(?<![\w])\'(?:[^\'\\]|\\.)+\'', blot, line)
    return re.sub(r"//.*", lambda found: " " * len(found.group()), line)


def closing(text: str, opening: int) -> int:
    """Where the bracket at `opening` closes, or -1."""
    depth = 0
    for place in range(opening, len(text)):
        depth += (text[place] in "([{") - (text[place] in ")]}")
        if depth == 0:
            return place
    return -1


def is_statement(body: str) -> bool:
    """Whether a line is a statement of its own, no declaration, and does more than save time."""
    if not STATEMENT.match(body) or NO_STATEMENT.match(body) or ".reserve(" in body:
        return False
    depth = 0
    for letter in body:
        depth += (letter in "([{") - (letter in ")]}")
        if depth < 0:
            return False
    return depth == 0


def breaks_of(line: str) -> list[Break]:
    """Every way to break this line."""
    clean = masked(line)
    body = clean.strip()
    if not body or body.startswith(("template", "using ", "namespace ", "static_assert")):
        return []
    found = []

    def replaced(kind: str, start: int, end: int, new: str):
        found.append(Break(kind, line[:start] + new + line[end:]))

    for head in HEAD.finditer(clean):
        start = head.end()
        end = closing(clean, start - 1)
        condition = clean[start:end]
        if end > 0 and ";" not in condition and not DECLARED.match(condition):
            replaced(CONDITION, start, end, f"!({line[start:end]})")
    for kind, pairs in OPERATORS:
        for old, new in pairs.items():
            for place in re.finditer(re.escape(old), clean):
                replaced(kind, place.start(), place.end(), new)
    for word in re.finditer(r"(?<![\w.>])(true|false)\b", clean):
        replaced(CONSTANT, word.start(), word.end(), TURNED_WORDS[word.group()])
    for sign in re.finditer(r"!(?=[\w(])", clean):
        replaced(CONDITION, sign.start(), sign.end(), "")
    for number in NUMBER.finditer(clean):
        whole, dot, part = number.group().partition(".")
        replaced(CONSTANT, number.start(), number.end(), str(int(whole) + 1) + dot + part)
    if is_statement(body):
        indent = len(line) - len(line.lstrip())
        found.append(Break(CALL, line[:indent] + ";"))
    return found


def switched(line: str, broken: str, test: str) -> str | None:
    """A line that is `broken` where `test` holds and as it was otherwise, or None where one line
    can't say that. Saves a build for each break."""
    clean, indent = masked(line), line[:len(line) - len(line.lstrip())]
    body = clean.strip()
    old, new = line.strip(), broken.strip()
    if old != line[len(indent):] or "//" in line:
        return None
    head = re.match(r"^(\} else if|else if|if|while) \(", body)
    if head:
        start = head.end()
        end, new_clean = closing(body, start - 1), masked(new)
        new_end = closing(new_clean, start - 1)
        if end < 0 or new_end < 0 or ";" in body[start:end] or DECLARED.match(body[start:end]):
            return None
        rest, new_rest = old[end + 1:], new[new_end + 1:]
        if rest == new_rest:
            return (f"{indent}{old[:start]}{test} ? static_cast<bool>({new[start:new_end]})"
                    f" : static_cast<bool>({old[start:end]})){rest}")
        if old[start:end] != new[start:new_end] or not rest.endswith(";"):
            return None
        return f"{indent}{old[:end + 1]} {{ if ({test}) {{ {new_rest} }} else {{ {rest} }} }}"
    if body.startswith("return ") and body.endswith(";"):
        return f"{indent}{{ if ({test}) {new} {old} }}"
    declared = DECLARED.match(body)
    if declared and "constexpr" not in body and body.endswith(";"):
        value, new_value = old[declared.end():-1], new[declared.end():-1]
        if old[:declared.end()] != new[:declared.end()] or value[:1] in "{[":
            return None
        return f"{indent}{old[:declared.end()]}{test} ? ({new_value}) : ({value});"
    if is_statement(body) or re.match(r"^(\+\+|--)", body):
        return f"{indent}{{ if ({test}) {{ {new} }} else {{ {old} }} }}"
    return None
