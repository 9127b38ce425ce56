#!/usr/bin/env python3
"""Checks the arrows between the rooms of src/: which folder and which layer may include which.

A file is of the logic, of platform/qt, or a window (its name ends in _window, _dialog or _panel).
Logic and platform interfaces include no Qt and nothing of the two other layers; platform/qt
includes no window; and between the folders arrows go one way, as RANK tells. Prints every arrow
that goes wrong, and every type whose name two headers give away: the linker would take the inline
functions of either for both. Ends with status 1 if there is one.
"""
import re
import sys
from collections import defaultdict
from pathlib import Path

SRC = Path(__file__).resolve().parent.parent / "src"
INCLUDE = re.compile(r'^\s*#\s*include\s+([<"])([^>"]+)[>"]', re.MULTILINE)
TYPE = re.compile(r"^(?:struct|class|union|enum class) (\w+)[^;{]*\{", re.MULTILINE)
WINDOW = re.compile(r"_(window|dialog|panel)\.(h|cpp)$")

# A file may include files of its own rank or a lower one. What holds nothing but data lies lowest:
# text, the store, records, and the text tables with the names of their entries. The frame is on top,
# and nobody but main.cpp and itself includes it.
DATA_OF_CORE = {"text", "text_list", "text_search", "store", "records", "geometry", "key_filter",
                "command", "keys"}
RANK_OF_FOLDER = {
    "platform": 1, "core": 2, "nutrition": 3, "storage": 3,
    "food": 4, "days": 4, "analysis": 4, "output": 4, "language": 4, "internet": 4,
    "keeping": 4,
}
FRAME = "core/frame/"
TOP = 5


def rank(path: str) -> int:
    folder, _, name = path.partition("/")
    stem = Path(name).stem
    if path.startswith(FRAME) or path == "main.cpp":
        return TOP
    if folder == "core" and stem in DATA_OF_CORE:
        return 0
    if folder == "language" and (stem == "tables" or stem.endswith("_texts")):
        return 0
    if path.startswith("platform/qt/"):
        return 2
    return RANK_OF_FOLDER.get(folder, 99)


def layer(path: str) -> str:
    if path == "main.cpp":
        return "program"
    if path.startswith("platform/qt/"):
        return "platform/qt"
    return "window" if WINDOW.search(path) else "logic"


MAY_INCLUDE = {
    "logic": {"logic"},
    "platform/qt": {"logic", "platform/qt"},
    "window": {"logic", "platform/qt", "window"},
    "program": {"logic", "platform/qt", "window"},
}


def wrong_arrows(path: str, text: str) -> list[str]:
    found = []
    for bracket, target in INCLUDE.findall(text):
        if bracket == "<":
            if re.match(r"Q[A-Z]|Qt", target) and layer(path) == "logic":
                found.append(f"{path}: the logic includes Qt: {target}")
            continue
        if layer(target) not in MAY_INCLUDE[layer(path)]:
            found.append(f"{path}: a file of the {layer(path)} includes one of the {layer(target)}: {target}")
        if rank(target) > rank(path):
            found.append(f"{path}: the arrow to {target} goes up")
        folders = {p.partition("/")[0] for p in (path, target)}
        if rank(path) == rank(target) == 4 and len(folders) == 2 and layer(target) == "window":
            found.append(f"{path}: one room includes the window of another: {target}")
    return found


def names_given_twice(texts: dict[str, str]) -> list[str]:
    """Of the headers among these files."""
    given = defaultdict(list)
    for path, text in texts.items():
        for name in TYPE.findall(text) if path.endswith(".h") else ():
            given[name].append(path)
    return [f"{' and '.join(paths)}: two types are called {name}"
            for name, paths in given.items() if len(paths) > 1]


def main() -> int:
    texts = {file.relative_to(SRC).as_posix(): file.read_text(encoding="utf-8")
             for file in sorted(SRC.rglob("*")) if file.suffix in {".h", ".cpp"}}
    wrong = [line for path, text in texts.items() for line in wrong_arrows(path, text)]
    wrong += names_given_twice(texts)
    print("\n".join(wrong + [f"{len(texts)} files, {len(wrong)} faults"]))
    return 1 if wrong or not texts else 0


if __name__ == "__main__":
    sys.exit(main())
