#!/usr/bin/env python3
"""Makes docs/failure_codes.md from the codes that stand in the source.

Every routine with a failure path has one code of its own, a literal where it is used. Prints the
page; with --check compares it with the file and ends with status 1 if they differ. A code that two
routines share without being meant to ends with status 1 as well.
"""
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
PAGE = ROOT / "docs" / "failure_codes.md"
CODE = re.compile(r'"#(FF?)(\d+)-(\d+)"')
FUNCTION = re.compile(r"^[A-Za-z].*?\b([A-Za-z_]\w*)\($|^[A-Za-z].*?\b([A-Za-z_]\w*)\(")

FORMS = {
    1: "KV_add_voedingsmiddel", 2: "KV_bestand", 3: "KV_browsefiles", 4: "KV_Core",
    5: "KV_export_html", 6: "KV_foodpopup", 8: "KV_properties", 9: "KV_tb_daguittreksel",
    10: "KV_tb_internet_update", 11: "KV_tb_lijsten", 12: "KV_tb_meerdaags", 13: "KV_tb_notities",
    14: "KV_tb_vmiddag, KV_tb_vavond", 15: "KV_tb_vochtend", 16: "KV_tb_weegschaal",
    17: "KV_backup", 18: "KV_restore", 20: "KV_take_over", 28: "KV_import_foods",
}
MODULES = {
    1: "Declarations_Bestanden", 2: "Declarations_Controle", 3: "Declarations_DatumFix",
    4: "Declarations_Decimaalsettings", 5: "Declarations_Export_DTA",
    6: "Declarations_Export_HTML", 7: "Declarations_Export_XML", 8: "Declarations_Functies",
    9: "Declarations_Interface", 10: "Declarations_printen", 11: "Declarations_Rekenfuncties",
    12: "Declarations_language_files",
}
# Routines that share a code, as they are meant to.
SHARED = {("FF", 1, 8): {"LoadDay", "LoadDayFromCopy"},
          ("FF", 11, 1): {"Lbs_To_Kg", "Kg_To_Lbs"},
          ("FF", 6, 2): {"Export_HTML_Index_Head", "Export_HTML_Index_Row"}}

HEAD = """# Failure codes

What a failure box shows behind "Brelux CODE:". `#F` counts windows, `#FF` modules; the number behind
the dash is the routine's. This page is made by `tools/make_failure_codes.py`, and a test compares it
with the source.

| code | window or module | routine | file |
|---|---|---|---|
"""


def codes_in(text):
    """Each code of one source file with the function it stands in: ((series, number, n), name)."""
    found, function = [], None
    for line in text.splitlines():
        opening = FUNCTION.match(line)
        if opening:
            function = opening.group(1) or opening.group(2)
        for series, number, running in CODE.findall(line.partition("//")[0]):
            found.append(((series, int(number), int(running)), function))
    return found


def wrongly_shared(rows):
    """The codes that more than one routine uses without being meant to."""
    users = {}
    for code, function, _ in rows:
        users.setdefault(code, set()).add(function)
    return sorted(code for code, names in users.items()
                  if len(names) > 1 and names != SHARED.get(code))


def owner(code):
    series, number, _ = code
    return (FORMS if series == "F" else MODULES)[number]


def page(rows):
    lines = [f"| `#{series}{number}-{running}` | {owner((series, number, running))} | "
             f"`{function}` | `{file}` |"
             for (series, number, running), function, file in sorted(rows)]
    return HEAD + "\n".join(lines) + "\n"


def all_rows():
    rows = set()
    for file in sorted((ROOT / "src").rglob("*.cpp")):
        name = file.relative_to(ROOT).as_posix()
        rows |= {(code, function, name)
                 for code, function in codes_in(file.read_text(encoding="utf-8"))}
    return rows


def main():
    rows = all_rows()
    shared = wrongly_shared(rows)
    for code in shared:
        print("used by two routines:", code, file=sys.stderr)
    if "--check" in sys.argv[1:]:
        same = PAGE.read_text(encoding="utf-8") == page(rows)
        print("as the source says" if same else "docs/failure_codes.md is not what the source says")
        return 0 if same and not shared else 1
    sys.stdout.write(page(rows))
    return 1 if shared else 0


if __name__ == "__main__":
    sys.exit(main())
