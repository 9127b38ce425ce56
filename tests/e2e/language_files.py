#!/usr/bin/env python3
"""Starts the program on an empty home and reads the language files that it makes, with a reader of
its own: their form, and that every text of tests/language/quoted_texts.tsv stands in the English
one, letter for letter, at its index where one is given.

    language_files.py <program>
"""
import csv
import struct
import sys
from pathlib import Path

from desktop import Desktop

QUOTED = Path(__file__).resolve().parents[1] / "language" / "quoted_texts.tsv"
LINE_END = b"\xbe"
TABLES = [
    "taal_sections", "taal_properties", "taal_main", "taal_new_food", "taal_export_form",
    "taal_popup", "taal_day_settings", "taal_browse", "taal_day_summary", "taal_food_details",
    "taal_update", "taal_lists", "taal_diary", "taal_trend", "taal_compare", "taal_wizard",
    "taal_evening", "taal_afternoon", "taal_morning", "taal_common", "taal_print", "taal_export",
    "taal_reserved", "taal_messages", "taal_empty", "taal_file_info"]


def read_language_file(path):
    """The 26 tables of a language file, each a list of its entries; checks the form to the byte."""
    data = path.read_bytes()
    (count,) = struct.unpack_from("<i", data)
    assert count == 1, f"{path.name}: {count} records"
    tables, at = {}, 4
    for place, name in enumerate(TABLES):
        (length,) = struct.unpack_from("<H", data, at)
        assert length < 0xFFFF, f"{path.name}: {name} is too long for a plain length"
        field = data[at + 2:at + 2 + length]
        assert len(field) == length, f"{path.name} ends inside {name}"
        at += 2 + length
        terminators = field.count(LINE_END)
        assert terminators == (25 if place == 0 else 201), f"{path.name}: {terminators} in {name}"
        assert field.endswith(LINE_END), f"{path.name}: text behind the last entry of {name}"
        # The sections are counted from 1, all others from 0.
        tables[name] = [""] * (place == 0)
        tables[name] += [entry.decode("cp1252") for entry in field.split(LINE_END)[:-1]]
    assert at == len(data), f"{path.name}: {len(data) - at} bytes behind the record"
    return tables


def quoted_rows():
    with open(QUOTED, encoding="utf-8", newline="") as table:
        return list(csv.DictReader(table, delimiter="\t", quoting=csv.QUOTE_NONE))


def missing_texts(rows, tables):
    """The quoted texts that do not stand where they should."""
    missing = []
    for row in rows:
        entries = tables[row["table"]]
        if row["index"]:
            found = entries[int(row["index"])] == row["english"]
        else:
            found = row["english"] in entries
        if not found:
            missing.append((row["table"], row["index"], row["window"], row["english"]))
    return missing


def main():
    with Desktop() as desktop:
        process = desktop.start(Path(sys.argv[1]).resolve(), first_run=True)
        desktop.keys("ctrl+q")
        assert process.wait(timeout=20) == 0, f"the program ended with {process.returncode}"
        folder = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Language")
        names = sorted(path.name for path in folder.iterdir())
        assert names == [
            "English.lsf", "English.own", "Nederlands.lsf", "Nederlands.own", "default.lsf",
            "default.own"], names
        english, dutch, default = (read_language_file(folder / name) for name in
                                   ("English.lsf", "Nederlands.lsf", "default.lsf"))
    # The files are made one after the other, each set over the one before. So the entry that the
    # English set leaves alone still holds what the Dutch set put there when default.lsf is made.
    assert default["taal_main"][113] == "Computer diagnose"
    default["taal_main"][113] = ""
    assert default == english, "default.lsf is not English"
    assert english["taal_file_info"][1] == dutch["taal_file_info"][1] == "2.24"
    assert dutch["taal_main"][0] == "Bestand" and dutch["taal_main"][113] == "Computer diagnose"
    assert english["taal_main"][113] == "" and english["taal_properties"][113] == "System diagnose"
    rows = quoted_rows()
    assert len(rows) > 600, f"only {len(rows)} quoted texts"
    assert missing_texts([rows[0] | {"english": "not in any table"}], english), "finds anything"
    missing = missing_texts(rows, english)
    for row in missing:
        print("missing:", *map(repr, row))
    assert not missing, f"{len(missing)} quoted texts do not stand where they should"
    print(f"{len(rows)} quoted texts stand where they should")


if __name__ == "__main__":
    main()
