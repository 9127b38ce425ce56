#!/usr/bin/env python3
"""Makes code_page.tsv, the 256 characters of Windows-1252.

    make_code_page.py TABLE

Columns: the byte; its code point, by Python's cp1252; the same character in
UTF-8; the byte of its lower case letter; and "open" for the five bytes that
the code page assigns to nothing (81, 8D, 8F, 90, 9D).  Python refuses those.
In this program they stand for the control characters of the same number, so
that every byte comes back from a way through Unicode as it was.

Lower case is that of Python's str.lower(); where its result is no single
character of the code page, the byte stays.  All numbers are hexadecimal.
"""

import argparse
from pathlib import Path


def lower_byte(character, byte):
    try:
        lower = character.lower().encode("cp1252")
    except UnicodeEncodeError:
        return byte
    return lower[0] if len(lower) == 1 else byte


def row(byte):
    note = ""
    try:
        character = bytes([byte]).decode("cp1252")
    except UnicodeDecodeError:
        character, note = chr(byte), "open"
    utf8 = character.encode("utf-8").hex().upper()
    return f"{byte:02X}\t{ord(character):04X}\t{utf8}\t{lower_byte(character, byte):02X}\t{note}"


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("table", type=Path)
    table = ["byte\tcode_point\tutf8\tlower\tnote", *map(row, range(256))]
    parser.parse_args().table.write_text("\n".join(table) + "\n", "ascii")


if __name__ == "__main__":
    main()
