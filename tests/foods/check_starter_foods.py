#!/usr/bin/env python3
"""Holds the starter foods to the rules they have to meet.

    check_starter_foods.py FOLDER       check the *.tsv files in FOLDER
    check_starter_foods.py --self-test  show that every rule is able to fail

The foods are typed by hand, and a slip of the keyboard in a table of numbers
is hard to see.  Each file is one category; what is checked, and why:

* Form: UTF-8 without a byte order mark, "\\n" line ends, the exact header,
  twelve filled and trimmed fields, numbers written in one way only, portions
  of whole grams.  The build reads the files strictly, one spelling keeps
  differences small, and a kitchen scale shows whole grams.
* Characters: everything fits Windows-1252, the character set of the data
  files.  Fraction signs and double quotes are left out although it has them.
* Text: names of at most 40 characters that begin with a capital, units of at
  most 14 characters, one group for a whole file, no name twice in any
  category, foods in alphabetical order, no slip that was made before.
* Search: a remark is a list of what people look for, parted by a comma and a
  blank, nothing in it twice.  Plant drinks may not be sold as milk and are
  looked for as milk all the same, so that their remarks hold both words.
* Sense: kJ and kcal tell the same energy (4.1 to 4.3 kJ per kcal); the
  nutrients do not weigh more than the portion; the energy follows from
  protein, fat and carbohydrate (4, 9 and 4 kcal per gram) within 15 kcal or
  20 %; there is not more sodium than pure salt holds.
* Salt: a pulse that was boiled at home has next to no sodium, one out of a
  tin has; what is called smoked, salted or pickled has, what is called
  unsalted has not.
* State: a fish, a piece of meat or a pulse says in its name whether it is
  raw, cooked, smoked and the like: a third of the weight, and with it the
  figures, depends on it.
* Ranges: known_ranges.tsv tells for staple foods, and for those that were
  wrong once, between which amounts per 100 grams public composition tables
  put them.
* Exceptions: alcohol, fibre and polyols break the energy rule rightly.  Such
  foods are named with the reason in energy_exceptions.tsv; foods that are
  sold in one state only stand in plain_foods.tsv.  An entry for a food that
  does not exist, or that meets the rule, is a violation too, so that the
  lists cannot hide later mistakes.
* The whole: at least 350 foods in at least 12 categories, all the expected
  categories present, and no category name that is the ending of another one.

What it cannot see: whether the Dutch name is the right word, and whether a
number that fits the rules and has no range is the right number.

Each violation is printed as "file:line: what"; the last line gives counts.
The exit status is 1 when there is any violation.
"""

import argparse
import sys
from pathlib import Path

from food_rules import check
from food_rules_self_test import self_test


def print_result(result):
    for violation in result.violations:
        print(f"{violation.file}:{violation.line}: {violation.what}")
    print(f"{result.foods} foods in {result.categories} categories, "
          f"{result.exceptions} exceptions, {result.ranges} ranges, "
          f"{len(result.violations)} violations")
    return 1 if result.violations else 0


def check_folder(folder, lists):
    """Checks the tables in one folder by the lists in another."""
    files = {str(path): path.read_bytes()
             for path in sorted(folder.glob("*.tsv"))}
    paths = [lists / "energy_exceptions.tsv", lists / "plain_foods.tsv",
             lists / "known_ranges.tsv"]
    data = [path.read_bytes() if path.is_file() else None for path in paths]
    return print_result(check(files, *data, str(folder),
                              *(str(path) for path in paths)))


def main():
    parser = argparse.ArgumentParser(
        description="Check the starter foods.")
    parser.add_argument("folder", nargs="?", type=Path,
                        help="the folder of the *.tsv files")
    parser.add_argument("--lists", type=Path, default=Path(__file__).parent,
                        help="the folder of the exceptions and ranges")
    parser.add_argument("--self-test", action="store_true",
                        help="show that every rule is able to fail")
    arguments = parser.parse_args()
    sys.stdout.reconfigure(errors="backslashreplace")
    if arguments.self_test:
        return self_test()
    if arguments.folder is None or not arguments.folder.is_dir():
        parser.error("name the folder of the *.tsv files")
    return check_folder(arguments.folder, arguments.lists)


if __name__ == "__main__":
    sys.exit(main())
