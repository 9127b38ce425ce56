"""What the sources of the program say: its texts in both languages, and which of them boxes show.

Read from the C++ files by patterns, and so independent of what makes the help.
"""
import re
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SRC = ROOT / "src"
LITERALS = r'(?:"(?:[^"\\]|\\.)*"\s*)+'
DAY_PARTS = ("morning", "afternoon", "evening")
# Whatever shows a box, and what says its words: the checks of a form give theirs to others.
SHOWS_A_BOX = re.compile(r"\bTell\(|\bTellOf\w*\(|boxes\.Show\(|\bAskYesNo\(|\bBox\{|\bBox box\{|"
                         r"\bShowError\(|\bRefuse\(")
# Texts beside those of a box in the same function, or with places for them: captions, columns, the
# words of a status bar.
NO_BOX = {
    "new_food": {"kName", "kUnit", "kOriginalWeight", "kGram", "kOz", "kPortionWeight", "kKilojoules",
                 "kKilocalories", "kSaturatedFat", "kUnsaturatedFat", "kProtein", "kCarbohydrates",
                 "kSodium"},
    "food_details": {"kFinishEditing", "kEdit"},
    "compare": {"kCarbohydrates", "kEnergy", "kFatS", "kFatU", "kProtein", "kSodium", "kUnit",
                "kUnitGram", "kUnitKcal", "kUnitKj", "kWeight"},
    "export_form": {"kFolderPrompt"},
    "file_info": {"kLanguageVersion"},
    "update": {"kReceiving", "kAnalysing", "kServerVersion", "kNoConnection"},
}


def text_of(literals):
    """The text of string literals that stand one behind the other."""
    joined = "".join(re.findall(r'"((?:[^"\\]|\\.)*)"', literals))
    return re.sub(r"\\(.)", lambda found: {"n": "\n"}.get(found[1], found[1]), joined)


def plain(text):
    """As a reader compares texts: one blank between words, a place of a name or number an ellipsis."""
    return " ".join(text.replace("%1", "…").split())


def table_texts():
    """The texts of the numbered tables: (table, name) -> (English, Dutch)."""
    texts = {}
    row = re.compile(r"TextRow\{\s*(?:\{kTable,\s*(\w+)\}|(\w+)),\s*(%s)_w,\s*(%s)_w" % (LITERALS,
                                                                                       LITERALS))
    for file in (SRC / "language").glob("*_texts.cpp"):
        table = file.stem.removesuffix("_texts")
        for found in row.finditer(file.read_text(encoding="utf-8")):
            texts[table, found[1] or found[2]] = text_of(found[3]), text_of(found[4])
    return texts


def own_texts():
    """The program's own texts: name -> (English, Dutch)."""
    row = re.compile(r"OwnTextRow\{\s*OwnText::(\w+),\s*(%s)_w,\s*(%s)_w" % (LITERALS, LITERALS))
    source = (SRC / "language" / "own_texts.cpp").read_text(encoding="utf-8")
    return {found[1]: (text_of(found[2]), text_of(found[3])) for found in row.finditer(source)}


def pieces_of(source):
    """The functions and tables of a file by their names, each with its text."""
    pieces = re.split(r"(?m)^(?=[A-Za-z].*[{(]$|[A-Za-z][^;\n]*\) \{$|[A-Za-z][^;\n]*= \{)", source)
    named = []
    for piece in pieces:
        name = re.search(r"(\w+)(?:\(| = \{|\s*\{|;)", piece)
        named.append((name[1] if name else "", piece))
    return named


def with_what_they_use(pieces, chosen):
    """The chosen pieces and those of the same file that they name, to the last."""
    while True:
        words = set(re.findall(r"\w+", "".join(pieces[i][1] for i in chosen)))
        more = {i for i, (name, _) in enumerate(pieces) if name in words} - chosen
        if not more:
            return chosen
        chosen = chosen | more


def names_in(source, headers, texts):
    """The texts that a piece of source names, as (table, name)."""
    found = set()
    for scope, name in re.findall(r"(?:(\w+)::)?\b(k[A-Z]\w+)", source):
        if scope and not (scope == "ct" or scope.endswith("_text") or scope.islower()):
            continue
        tables = DAY_PARTS if "consumption" in headers and scope == "ct" else headers
        if scope.endswith("_text"):
            tables = [scope.removesuffix("_text")]
        found |= {(table, name) for table in tables if (table, name) in texts}
    return found


def box_texts():
    """What boxes show: (table, name), or ("own", name); and the fixed words, which no table has."""
    texts = table_texts()
    found, fixed = set(), set()
    for file in sorted(SRC.rglob("*.cpp")):
        if "qt" in file.parts or re.search(r"(_window|_dialog|_panel|_texts)\.cpp$", file.name):
            continue
        source = re.sub(r"//.*", "", file.read_text(encoding="utf-8"))
        headers = set(re.findall(r'#include "language/(\w+)_texts\.h"', source))
        own_header = file.with_suffix(".h")
        if own_header.exists():
            headers |= set(re.findall(r'#include "language/(\w+)_texts\.h"',
                                      own_header.read_text(encoding="utf-8")))
        pieces = pieces_of(source)
        chosen = {i for i, (_, piece) in enumerate(pieces)
                  if SHOWS_A_BOX.search(piece) or file.stem.endswith("_check")}
        for i in with_what_they_use(pieces, chosen) if chosen else ():
            piece = pieces[i][1]
            found |= names_in(piece, headers, texts)
            found |= {("own", name) for name in re.findall(r"OwnText::(\w+)", piece)}
            fixed |= {text_of(words) for words in re.findall(
                r"ShowError\(program, (?:AppTitle|\"[^\"]*\"),\s*(%s)" % LITERALS, piece)}
    return {(table, name) for table, name in found if name not in NO_BOX.get(table, ())}, fixed
