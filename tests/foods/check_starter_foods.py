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
import re
import sys
import unicodedata
from collections import namedtuple
from decimal import Decimal
from pathlib import Path

COLUMNS = ["name", "unit", "gram", "kj", "kcal", "protein", "fat_u", "fat_s",
           "carbs", "sodium", "group", "remark"]
EXCEPTION_COLUMNS = ["category", "name", "reason"]
RANGE_COLUMNS = ["category", "name", "nutrient", "least", "most"]
ENERGY_REASONS = {"alcohol", "fibre", "polyols"}
PLAIN_REASONS = {"dish", "ready to eat"}
EXPECTED_CATEGORIES = [
    "Bread", "Breakfast cereals", "Cakes and biscuits", "Cheese", "Dairy",
    "Dishes", "Drinks", "Eggs", "Fats and oils", "Fish", "Fruit", "Meat",
    "Nuts and seeds", "Potatoes, rice and pasta", "Pulses",
    "Sandwich fillings", "Sauces", "Snacks", "Soups", "Sweets", "Vegetables",
    "Wine, beer and spirits"]

MIN_FOODS = 350
MIN_CATEGORIES = 12
MAX_NAME = 40
MAX_UNIT = 14

WHOLE = re.compile(r"0|[1-9][0-9]*")
ONE_DECIMAL = re.compile(r"(0|[1-9][0-9]*)(\.[1-9])?")
THREE_DECIMALS = re.compile(r"(0|[1-9][0-9]*)(\.[0-9]{0,2}[1-9])?")
NUMBER_FORMS = {
    "gram": WHOLE, "kj": WHOLE, "kcal": WHOLE, "protein": ONE_DECIMAL,
    "fat_u": ONE_DECIMAL, "fat_s": ONE_DECIMAL, "carbs": ONE_DECIMAL,
    "sodium": THREE_DECIMALS}
# What a range may be given for, as columns that are added.
NUTRIENTS = {"kcal": ["kcal"], "protein": ["protein"],
             "fat": ["fat_u", "fat_s"], "carbs": ["carbs"],
             "sodium": ["sodium"]}
FORM_NAMES = {
    WHOLE: "a whole number", ONE_DECIMAL: "a number with at most one decimal",
    THREE_DECIMALS: "a number with at most three decimals"}

# The categories whose foods say their state, and the words that say it.
STATED_CATEGORIES = {"Fish", "Meat", "Pulses"}
STATES = {"baked", "boiled", "braised", "cooked", "fried", "grilled",
          "pickled", "poached", "raw", "roast", "roasted", "salted", "smoked",
          "steamed", "stewed", "tinned"}

# Words in a name that tell how much sodium there is, in grams per 100 grams.
PULSES = {"beans", "chickpeas", "lentils", "peas"}
AT_HOME = {"boiled", "cooked", "raw", "steamed"}
MOST_SODIUM_AT_HOME = Decimal("0.03")
LEAST_SODIUM_TINNED = Decimal("0.1")
SALTED = {"pickled", "salted", "smoked"}
LEAST_SODIUM_SALTED = Decimal("0.2")
MOST_SODIUM_UNSALTED = Decimal("0.05")

# The plants whose drinks are called milk at home, English and Dutch.
PLANT_MILKS = {"almond": "amandel", "coconut": "kokos", "oat": "haver",
               "rice": "rijst", "soya": "soja"}

# Slips that were made before, with what is right.  Dutch writes a compound as
# one word, and an English habit parts it.
MISSPELT = {
    "boerenkool stamppot": "boerenkoolstamppot",
    "jong belegen": "jongbelegen",
    "kalkoenfilet plakjes": "plakjes kalkoenfilet",
    "kipfilet plakjes": "plakjes kipfilet",
    "shaslik": "shashlik",
}

# One name per rule; the self-test demands a failing case for each of them.
RULES = {
    "encoding", "line ends", "header", "columns", "empty", "spaces",
    "characters", "number form", "name length", "name capital", "spelling",
    "search words", "unit length", "group", "name twice", "order", "weight",
    "zero energy", "energy ratio", "nutrient weight", "energy sum", "sodium",
    "sodium of pulses", "sodium of salted", "state",
    "category missing", "category ending", "category characters",
    "food count", "category count", "exception form", "exception twice",
    "exception unknown", "exception unneeded", "range", "range form",
    "range unknown"}

Violation = namedtuple("Violation", "file line rule what")
Food = namedtuple("Food", "file line category fields numbers")


class Report:
    """Collects violations; a rule name that is not in RULES is a bug here."""

    def __init__(self):
        self.violations = []

    def add(self, file, line, rule, what):
        if rule not in RULES:
            raise ValueError(f"unknown rule {rule!r}")
        self.violations.append(Violation(file, line, rule, what))


# ---------------------------------------------------------------- reading

def split_lines(report, file, data):
    """The lines of a file, or None when it is not readable as text."""
    if data.startswith(b"\xef\xbb\xbf"):
        report.add(file, 1, "encoding", "starts with a byte order mark")
        data = data[3:]
    try:
        text = data.decode("utf-8")
    except UnicodeDecodeError as error:
        line = data.count(b"\n", 0, error.start) + 1
        report.add(file, line, "encoding", "not valid UTF-8")
        return None
    lines = text.split("\n")
    if lines[-1]:
        report.add(file, len(lines), "line ends", "last line does not end")
    else:
        lines.pop()
    for number, line in enumerate(lines, 1):
        if "\r" in line:
            report.add(file, number, "line ends", "carriage return in line")
    return [line.replace("\r", "") for line in lines]


def read_foods(report, file, data):
    """The foods of one category file, with its numbers where well formed."""
    lines = split_lines(report, file, data)
    if lines is None:
        return []
    if not lines or lines[0] != "\t".join(COLUMNS):
        report.add(file, 1, "header", "header is not the twelve column names")
    category = category_of(file)
    foods = []
    for number, line in enumerate(lines[1:], 2):
        values = line.split("\t")
        if len(values) != len(COLUMNS):
            report.add(file, number, "columns",
                       f"{len(values)} fields, {len(COLUMNS)} expected")
            continue
        fields = dict(zip(COLUMNS, values))
        numbers = read_numbers(report, file, number, fields)
        foods.append(Food(file, number, category, fields, numbers))
    return foods


def read_numbers(report, file, line, fields):
    """The numbers of a food as decimals, or None if one is malformed."""
    numbers = {}
    for column, form in NUMBER_FORMS.items():
        value = fields[column]
        if form.fullmatch(value):
            numbers[column] = Decimal(value)
        elif value:
            report.add(file, line, "number form",
                       f"{column} {value!r} is not {FORM_NAMES[form]}")
    return numbers if len(numbers) == len(NUMBER_FORMS) else None


def read_exceptions(report, file, data, reasons):
    """The exceptions of one rule as {(category, name): line}."""
    if data is None:
        report.add(file, 1, "exception form", "the file is missing")
        return {}
    lines = split_lines(report, file, data) or []
    if not lines or lines[0] != "\t".join(EXCEPTION_COLUMNS):
        report.add(file, 1, "exception form",
                   "header is not category, name, reason")
    exceptions = {}
    for number, line in enumerate(lines[1:], 2):
        values = line.split("\t")
        if len(values) != len(EXCEPTION_COLUMNS):
            report.add(file, number, "exception form",
                       f"{len(values)} fields, 3 expected")
            continue
        category, name, reason = values
        if reason not in reasons:
            report.add(file, number, "exception form",
                       f"reason {reason!r} is none of "
                       + ", ".join(sorted(reasons)))
        if (category, name) in exceptions:
            report.add(file, number, "exception twice",
                       f"{category}, {name} is listed twice")
        exceptions.setdefault((category, name), number)
    return exceptions


def read_ranges(report, file, data):
    """The ranges as rows of RANGE_COLUMNS and the line."""
    if data is None:
        report.add(file, 1, "range form", "the file is missing")
        return []
    lines = split_lines(report, file, data) or []
    if not lines or lines[0] != "\t".join(RANGE_COLUMNS):
        report.add(file, 1, "range form",
                   "header is not " + ", ".join(RANGE_COLUMNS))
    ranges = []
    for number, line in enumerate(lines[1:], 2):
        values = line.split("\t")
        if len(values) != len(RANGE_COLUMNS):
            report.add(file, number, "range form",
                       f"{len(values)} fields, {len(RANGE_COLUMNS)} expected")
            continue
        category, name, nutrient, *bounds = values
        if (nutrient not in NUTRIENTS
                or not all(THREE_DECIMALS.fullmatch(b) for b in bounds)
                or Decimal(bounds[0]) > Decimal(bounds[1])):
            report.add(file, number, "range form",
                       f"{nutrient} from {bounds[0]} to {bounds[1]}")
            continue
        ranges.append((category, name, nutrient, *map(Decimal, bounds),
                       number))
    return ranges


def category_of(file):
    return Path(file).name[:-len(".tsv")]


# ----------------------------------------------------------- rules of a food

def character_faults(text):
    """What is wrong with the characters of a text, as a list of words."""
    faults = []
    for char in sorted(set(text)):
        if char in "\u00bc\u00bd\u00be":
            faults.append(f"fraction sign {char!r}")
        elif char == '"':
            faults.append("double quote")
        elif char.isspace() and char != " ":
            faults.append(f"unusual space {char!r}")
        elif unicodedata.category(char).startswith("C"):
            faults.append(f"control character {char!r}")
        else:
            try:
                char.encode("cp1252")
            except UnicodeEncodeError:
                faults.append(f"{char!r} is not in Windows-1252")
    return faults


def check_text(report, food):
    for column, value in food.fields.items():
        if not value.strip():
            report.add(food.file, food.line, "empty", f"{column} is empty")
        elif value != value.strip() or "  " in value:
            report.add(food.file, food.line, "spaces",
                       f"{column} {value!r} has a space too many")
        for fault in character_faults(value):
            report.add(food.file, food.line, "characters",
                       f"{column}: {fault}")
    for column in ("name", "remark"):
        for slip, right in MISSPELT.items():
            if slip in food.fields[column].casefold():
                report.add(food.file, food.line, "spelling",
                           f"{column}: {slip!r} is spelt {right!r}")
    name, unit = food.fields["name"], food.fields["unit"]
    if len(name) > MAX_NAME:
        report.add(food.file, food.line, "name length",
                   f"name has {len(name)} characters, at most {MAX_NAME}")
    if name.strip() and not name.strip()[0].isupper():
        report.add(food.file, food.line, "name capital",
                   f"name {name!r} does not begin with a capital")
    if len(unit) > MAX_UNIT:
        report.add(food.file, food.line, "unit length",
                   f"unit has {len(unit)} characters, at most {MAX_UNIT}")


def check_search_words(report, food):
    name = food.fields["name"].casefold()
    remark = food.fields["remark"].casefold()
    words = remark.split(", ")
    if len(set(words)) < len(words) or any("," in word for word in words):
        report.add(food.file, food.line, "search words",
                   f"remark {remark!r} is no list of different words")
    for english, dutch in PLANT_MILKS.items():
        if name.startswith(f"{english} drink"):
            for word in (f"{dutch}drink", f"{dutch}melk", f"{english} milk"):
                if word not in remark:
                    report.add(food.file, food.line, "search words",
                               f"remark of {name} lacks {word!r}")


def check_weight(report, food):
    n = food.numbers
    if n["gram"] <= 0:
        report.add(food.file, food.line, "weight", "gram must be above 0")
    nutrients = n["protein"] + n["fat_u"] + n["fat_s"] + n["carbs"]
    if nutrients > n["gram"]:
        report.add(food.file, food.line, "nutrient weight",
                   f"nutrients weigh {nutrients} g, portion {n['gram']} g")
    if n["sodium"] > n["gram"] * Decimal("0.4"):
        report.add(food.file, food.line, "sodium",
                   f"{n['sodium']} g sodium in {n['gram']} g")


def words_of(food):
    """The words of the name, in small letters."""
    return set(re.findall(r"\w+", food.fields["name"].casefold()))


def is_pulse(food):
    """Whether the food is a pulse, eaten as such or as a vegetable."""
    return (food.category == "Pulses"
            or food.category == "Vegetables" and bool(words_of(food) & PULSES))


def check_salt(report, food):
    n, words = food.numbers, words_of(food)
    if n["gram"] <= 0:
        return
    sodium = 100 * n["sodium"] / n["gram"]

    def demand(holds, rule, what):
        if not holds:
            report.add(food.file, food.line, rule,
                       f"{sodium:.3f} g sodium in 100 g, but it is {what}")

    if is_pulse(food) and "tinned" in words:
        demand(sodium >= LEAST_SODIUM_TINNED, "sodium of pulses", "tinned")
    elif is_pulse(food) and words & AT_HOME:
        demand(sodium <= MOST_SODIUM_AT_HOME, "sodium of pulses",
               "not out of a tin")
    if words & SALTED:
        demand(sodium >= LEAST_SODIUM_SALTED, "sodium of salted", "salted")
    if "unsalted" in words:
        demand(sodium <= MOST_SODIUM_UNSALTED, "sodium of salted", "unsalted")


def check_ratio(report, food):
    kj, kcal = food.numbers["kj"], food.numbers["kcal"]
    if kcal == 0:
        if kj != 0:
            report.add(food.file, food.line, "zero energy",
                       f"{kj} kJ with 0 kcal")
    elif not Decimal("4.1") * kcal <= kj <= Decimal("4.3") * kcal:
        report.add(food.file, food.line, "energy ratio",
                   f"{kj} kJ / {kcal} kcal = {kj / kcal:.2f}, "
                   "4.1 to 4.3 expected")


def energy_from_nutrients(numbers):
    return (4 * numbers["protein"] + 9 * (numbers["fat_u"] + numbers["fat_s"])
            + 4 * numbers["carbs"])


def meets_energy_sum(numbers):
    kcal = numbers["kcal"]
    allowed = max(Decimal(15), kcal / 5)
    return abs(kcal - energy_from_nutrients(numbers)) <= allowed


def adds_up(food):
    return food.numbers is not None and meets_energy_sum(food.numbers)


def check_energy_sum(report, food, exceptions):
    excepted = (food.category, food.fields["name"]) in exceptions
    if not excepted and not meets_energy_sum(food.numbers):
        report.add(food.file, food.line, "energy sum",
                   f"{food.numbers['kcal']} kcal, but the nutrients give "
                   f"{energy_from_nutrients(food.numbers)}")


def says_state(food):
    """Whether the name tells what was done to the food, where it has to."""
    return (food.category not in STATED_CATEGORIES and not is_pulse(food)
            or bool(words_of(food) & STATES))


def check_state(report, food, plain):
    name = food.fields["name"]
    if (food.category, name) not in plain and not says_state(food):
        report.add(food.file, food.line, "state",
                   f"{name} does not say whether it is raw, cooked or else")


def check_food(report, food, exceptions, plain):
    check_text(report, food)
    check_search_words(report, food)
    check_state(report, food, plain)
    if food.numbers is not None:
        check_weight(report, food)
        check_salt(report, food)
        check_ratio(report, food)
        check_energy_sum(report, food, exceptions)


# ------------------------------------------------------- rules of many foods

def sort_key(name):
    """Alphabetical order without regard to capitals and accents."""
    decomposed = unicodedata.normalize("NFD", name.casefold())
    return "".join(c for c in decomposed if not unicodedata.combining(c))


def check_names(report, foods):
    """No two foods, of whatever category, have the same name."""
    seen = {}
    for food in foods:
        name = food.fields["name"]
        first = seen.setdefault(name.strip().casefold(), food)
        if first is not food:
            report.add(food.file, food.line, "name twice",
                       f"{name} is also on {first.file}:{first.line}")


def check_file(report, foods):
    """The rules that compare the foods of one file with each other."""
    for previous, food in zip([None] + foods, foods):
        name = food.fields["name"]
        if food.fields["group"] != foods[0].fields["group"]:
            report.add(food.file, food.line, "group",
                       f"group {food.fields['group']!r} differs from "
                       f"{foods[0].fields['group']!r}")
        if previous and sort_key(name) < sort_key(previous.fields["name"]):
            report.add(food.file, food.line, "order",
                       f"{name} belongs before {previous.fields['name']}")


def check_categories(report, files, folder):
    categories = {category_of(file): file for file in files}
    for expected in EXPECTED_CATEGORIES:
        if expected not in categories:
            report.add(folder, 0, "category missing",
                       f"category {expected} is missing")
    if len(categories) < MIN_CATEGORIES:
        report.add(folder, 0, "category count",
                   f"{len(categories)} categories, "
                   f"at least {MIN_CATEGORIES} expected")
    for name, file in categories.items():
        for fault in character_faults(name):
            report.add(file, 0, "category characters", f"file name: {fault}")
        for other in categories:
            if (other != name
                    and name.casefold().endswith(other.casefold())):
                report.add(file, 0, "category ending",
                           f"category name ends with category {other}")


def check_exceptions(report, file, exceptions, foods, meets):
    by_key = {(food.category, food.fields["name"]): food for food in foods}
    for key, line in exceptions.items():
        food = by_key.get(key)
        if food is None:
            report.add(file, line, "exception unknown",
                       f"there is no food {key[1]} in {key[0]}")
        elif meets(food):
            report.add(file, line, "exception unneeded",
                       f"{key[1]} in {key[0]} meets the rule")


def check_ranges(report, file, ranges, foods):
    by_key = {(food.category, food.fields["name"]): food for food in foods}
    for category, name, nutrient, least, most, line in ranges:
        food = by_key.get((category, name))
        if food is None:
            report.add(file, line, "range unknown",
                       f"there is no food {name} in {category}")
        elif food.numbers is not None and food.numbers["gram"] > 0:
            amount = (100 * sum(food.numbers[c] for c in NUTRIENTS[nutrient])
                      / food.numbers["gram"])
            if not least <= amount <= most:
                report.add(food.file, food.line, "range",
                           f"{amount:.4g} {nutrient} in 100 g of {name}, "
                           f"{least} to {most} expected")


Result = namedtuple("Result", "violations foods categories exceptions ranges")


def check(files, energy_data, plain_data, range_data, folder="foods",
          energy_file="energy_exceptions.tsv", plain_file="plain_foods.tsv",
          range_file="known_ranges.tsv"):
    """Checks {file name: bytes} and the bytes of the three lists."""
    report = Report()
    exceptions = read_exceptions(report, energy_file, energy_data,
                                 ENERGY_REASONS)
    plain = read_exceptions(report, plain_file, plain_data, PLAIN_REASONS)
    all_foods = []
    for file, data in files.items():
        foods = read_foods(report, file, data)
        for food in foods:
            check_food(report, food, exceptions, plain)
        check_file(report, foods)
        all_foods += foods
    check_names(report, all_foods)
    check_categories(report, files, folder)
    if len(all_foods) < MIN_FOODS:
        report.add(folder, 0, "food count",
                   f"{len(all_foods)} foods, at least {MIN_FOODS} expected")
    check_exceptions(report, energy_file, exceptions, all_foods, adds_up)
    check_exceptions(report, plain_file, plain, all_foods, says_state)
    ranges = read_ranges(report, range_file, range_data)
    check_ranges(report, range_file, ranges, all_foods)
    return Result(report.violations, len(all_foods), len(files),
                  len(exceptions) + len(plain), len(ranges))


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


# ------------------------------------------------------------------ self-test

class Sample:
    """A small set of foods that meets all rules, for the cases to break."""

    CATEGORY = "Cheese"
    WINE = "Wine, beer and spirits"
    PLAIN = "Food 06, of meat"

    def __init__(self):
        self.rows = {}
        for category in EXPECTED_CATEGORIES:
            self.rows[category] = [COLUMNS[:]] + [
                [self.name(i, category), "1 slice", "100", "418", "100", "5",
                 "3", "2", "9", "0.1", category, f"voedsel {i:02}"]
                for i in range(1, 17)]
        self.set("carbs", "0", category=self.WINE)
        self.set("fat_u", "0", category=self.WINE)
        self.exceptions = [EXCEPTION_COLUMNS[:],
                           [self.WINE, self.name(5, self.WINE), "alcohol"]]
        self.plain = [EXCEPTION_COLUMNS[:],
                      ["Meat", self.PLAIN, "ready to eat"]]
        self.set("name", self.PLAIN, row=6, category="Meat")
        self.ranges = [RANGE_COLUMNS[:],
                       ["Meat", self.name(4, "Meat"), "fat", "5", "5"]]
        self.rewrite = lambda data: data

    @classmethod
    def name(cls, number, category):
        tail = "" if category == cls.CATEGORY else f" {category}"
        state = ", fried" if category in STATED_CATEGORIES else ""
        return f"Food {number:02}{tail}{state}"

    def set(self, column, value, row=5, category=CATEGORY):
        self.rows[category][row][COLUMNS.index(column)] = value

    def check(self):
        files = {f"{category}.tsv": self.encode(rows)
                 for category, rows in self.rows.items()}
        broken = f"{self.CATEGORY}.tsv"
        if broken in files:
            files[broken] = self.rewrite(files[broken])
        return check(files, *(rows and self.encode(rows)
                              for rows in (self.exceptions, self.plain,
                                           self.ranges)))

    @staticmethod
    def encode(rows):
        return "".join("\t".join(r) + "\n" for r in rows).encode("utf-8")


def setting(category=Sample.CATEGORY, row=5, **values):
    """A case that gives one food other values."""
    def change(sample):
        for column, value in values.items():
            sample.set(column, value, row, category)
    return change


def rewriting(old, new, count=1):
    """A case that replaces bytes of one file."""
    def change(sample):
        def rewrite(data):
            assert old in data, f"{old!r} is not in the sample"
            return data.replace(old, new, count)
        sample.rewrite = rewrite
    return change


def add_category(name):
    def change(sample):
        header, *rows = sample.rows["Fish"]
        sample.rows[name] = [header] + [[f"Other {row[0]}"] + row[1:]
                                        for row in rows]
    return change


def keep_categories(count):
    def change(sample):
        for category in EXPECTED_CATEGORIES[:-count]:
            del sample.rows[category]
    return change


def shorten_files(sample):
    for rows in sample.rows.values():
        del rows[16:]


def drop_category(sample):
    del sample.rows[Sample.CATEGORY]
    sample.rows["Fish"] += [
        [f"Food {i}, fried"] + sample.rows["Fish"][1][1:]
        for i in range(17, 33)]


def drop_last_line_end(sample):
    sample.rewrite = lambda data: data[:-1]


def add_exception(*fields):
    return lambda sample: sample.exceptions.append(list(fields))


def add_plain(*fields):
    return lambda sample: sample.plain.append(list(fields))


def add_range(*fields):
    return lambda sample: sample.ranges.append(list(fields))


def drop_ranges(sample):
    sample.ranges = None


def rename_range_header(sample):
    sample.ranges[0][2] = "column"


def drop_exceptions(sample):
    sample.exceptions = None


def drop_plain(sample):
    sample.plain = None


def rename_exception_header(sample):
    sample.exceptions[0][2] = "why"


# (rule, what is broken, the change, rules that cannot but fire along with it)
CASES = [
    ("encoding", "Latin-1 bytes", rewriting(b"voedsel", b"vo\xebdsel"),
     {"food count"}),
    ("encoding", "byte order mark", rewriting(b"name", b"\xef\xbb\xbfname"),
     set()),
    ("line ends", "carriage return", rewriting(b"\n", b"\r\n"), set()),
    ("line ends", "no last line end", drop_last_line_end, set()),
    ("header", "other column name", rewriting(b"kj", b"kJ"), set()),
    ("columns", "field too many", setting(remark="a\tb"), set()),
    ("columns", "blank line", rewriting(b"\n", b"\n\n"), set()),
    ("empty", "no remark", setting(remark=""), set()),
    ("empty", "no number", setting(kcal=""), set()),
    ("spaces", "space at the end", setting(remark="kaas "), set()),
    ("spaces", "two spaces", setting(remark="oude  kaas"), set()),
    ("characters", "not in Windows-1252", setting(remark="ka\u0101s"), set()),
    ("characters", "fraction sign", setting(unit="\u00bd slice"), set()),
    ("characters", "double quote", setting(remark='"kaas"'), set()),
    ("characters", "no-break space", setting(remark="oude\u00a0kaas"), set()),
    ("characters", "control character", setting(remark="ka\x01as"), set()),
    ("number form", "decimal comma", setting(protein="5,1"), set()),
    ("number form", "trailing zero", setting(protein="5.0"), set()),
    ("number form", "leading zero", setting(protein="05"), set()),
    ("number form", "exponent", setting(gram="1e2"), set()),
    ("number form", "thousands mark", setting(gram="1,000"), set()),
    ("number form", "negative", setting(carbs="-9"), set()),
    ("number form", "decimals in gram", setting(gram="100.5"), set()),
    ("number form", "decimals in kj", setting(kj="418.4"), set()),
    ("number form", "decimals in kcal", setting(kcal="100.1"), set()),
    ("number form", "two decimals in fat_u", setting(fat_u="3.05"), set()),
    ("number form", "two decimals in fat_s", setting(fat_s="2.05"), set()),
    ("number form", "two decimals in carbs", setting(carbs="9.05"), set()),
    ("number form", "four decimals", setting(sodium="0.1234"), set()),
    ("name length", "41 characters",
     setting(name="Food 05 " + 33 * "x"), set()),
    ("name capital", "small first letter", setting(name="food 05"), set()),
    ("spelling", "English slip", setting(name="Food 05, Shaslik"), set()),
    ("spelling", "Dutch compound apart",
     setting(remark="Jong belegen kaas"), set()),
    ("search words", "plant drink without its Dutch milk",
     setting(row=16, name="Oat drink", remark="haverdrink, oat milk"), set()),
    ("search words", "plant drink without its English milk",
     setting(row=16, name="Oat drink", remark="haverdrink, havermelk"),
     set()),
    ("search words", "plant drink without its name in the shop",
     setting(row=16, name="Oat drink", remark="havermelk, oat milk"), set()),
    ("search words", "same word twice",
     setting(remark="haverdrank, Haverdrank"), set()),
    ("search words", "comma without a blank",
     setting(remark="haverdrank,havermelk"), set()),
    ("unit length", "15 characters", setting(unit="1 serving spoon"), set()),
    ("group", "other group", setting(group="Dairy"), set()),
    ("name twice", "same name", setting(name="Food 04"), set()),
    ("name twice", "same name but for capitals", setting(name="FOOD 04"),
     set()),
    ("name twice", "same name in another category",
     setting(name=Sample.name(5, "Fish")), set()),
    ("order", "name too early", setting(name="Food 03b"), set()),
    ("weight", "portion of 0 g",
     setting(gram="0", kj="0", kcal="0", protein="0", fat_u="0", fat_s="0",
             carbs="0", sodium="0"), set()),
    ("zero energy", "kJ without kcal",
     setting(kj="4", kcal="0", protein="0", fat_u="0", fat_s="0",
             carbs="0"), set()),
    ("energy ratio", "too low", setting(kj="409"), set()),
    ("energy ratio", "too high", setting(kj="431"), set()),
    ("nutrient weight", "more than the portion", setting(gram="18"), set()),
    ("energy sum", "nutrients too high", setting(carbs="14"), set()),
    ("energy sum", "nutrients too low", setting(carbs="3.7"), set()),
    ("energy sum", "16 kcal from nothing",
     setting(kj="67", kcal="16", protein="0", fat_u="0", fat_s="0",
             carbs="0"), set()),
    ("sodium", "more than salt holds", setting(sodium="40.001"), set()),
    ("sodium of pulses", "boiled beans with a tin's sodium",
     setting("Pulses", name="Food 05, cooked", sodium="0.031"), set()),
    ("sodium of pulses", "beans of a tin without sodium",
     setting("Pulses", name="Food 05, tinned", sodium="0.099"), set()),
    ("sodium of pulses", "boiled peas among the vegetables",
     setting("Vegetables", name="Food 05, peas, boiled"), set()),
    ("sodium of salted", "smoked without sodium",
     setting(name="Food 05, smoked", sodium="0.199"), set()),
    ("sodium of salted", "unsalted with sodium",
     setting(name="Food 05, unsalted", sodium="0.051"), set()),
    ("state", "fish without a state",
     setting("Fish", name="Food 05, of fish"), set()),
    ("state", "a word that only ends like a state",
     setting("Meat", name="Food 05, overcooked"), set()),
    ("state", "beans among the vegetables",
     setting("Vegetables", name="Food 05, beans"), set()),
    ("category missing", "one file less", drop_category, set()),
    ("category ending", "ends with another", add_category("Smoked fish"),
     set()),
    ("category ending", "differs in capitals only", add_category("FISH"),
     set()),
    ("category characters", "not in Windows-1252",
     add_category("Kluski \u015bl"), set()),
    ("food count", "330 foods", shorten_files, set()),
    ("category count", "11 files", keep_categories(11),
     {"category missing", "food count"}),
    ("exception form", "no such file", drop_exceptions, {"energy sum"}),
    ("exception form", "no list of plain foods", drop_plain, {"state"}),
    ("exception form", "reason of the other list",
     lambda sample: sample.plain[1].__setitem__(2, "alcohol"), set()),
    ("exception form", "other header", rename_exception_header, set()),
    ("exception form", "two fields",
     add_exception("Cheese", "Food 05"), set()),
    ("exception form", "unknown reason",
     lambda sample: sample.exceptions[1].__setitem__(2, "guess"), set()),
    ("exception twice", "same food",
     add_exception(Sample.WINE, Sample.name(5, Sample.WINE), "alcohol"),
     set()),
    ("exception unknown", "no such food",
     add_exception("Cheese", "Food 99", "fibre"), set()),
    ("exception unneeded", "meets the rule",
     add_exception("Cheese", "Food 05", "fibre"), set()),
    ("exception unknown", "no such plain food",
     add_plain("Fish", "Food 99", "dish"), set()),
    ("exception unneeded", "plain food that says its state",
     add_plain("Fish", Sample.name(5, "Fish"), "dish"), set()),
    ("exception unneeded", "plain food that need not say its state",
     add_plain("Cheese", "Food 05", "dish"), set()),
    ("range", "too little",
     add_range("Cheese", "Food 05", "kcal", "100.1", "110"), set()),
    ("range", "too much", add_range("Cheese", "Food 05", "carbs", "8", "8.9"),
     set()),
    ("range", "more in a smaller portion",
     setting("Meat", 4, gram="50"), set()),
    ("range form", "no such file", drop_ranges, set()),
    ("range form", "other header", rename_range_header, set()),
    ("range form", "four fields", add_range("Cheese", "Food 05", "fat", "5"),
     set()),
    ("range form", "unknown nutrient",
     add_range("Cheese", "Food 05", "fibre", "0", "100"), set()),
    ("range form", "decimal comma",
     add_range("Cheese", "Food 05", "fat", "4,9", "5"), set()),
    ("range form", "bounds in the wrong order",
     add_range("Cheese", "Food 05", "fat", "6", "4"), set()),
    ("range unknown", "no such food",
     add_range("Cheese", "Food 99", "fat", "0", "100"), set()),
]

# Values on the very edge of a rule, which have to pass.
EDGES = [
    ("lowest ratio", setting(kj="410")),
    ("highest ratio", setting(kj="430")),
    ("nutrients weigh the portion", setting(gram="19")),
    ("energy 20 kcal too high", setting(carbs="16", fat_s="1")),
    ("energy 20 kcal too low", setting(carbs="6", fat_s="1")),
    ("sodium of salt", setting(sodium="40")),
    ("sodium of boiled beans",
     setting("Pulses", name="Food 05, cooked", sodium="0.03")),
    ("sodium of tinned beans",
     setting("Pulses", name="Food 05, tinned", sodium="0.1")),
    ("sodium of a cooked vegetable",
     setting("Vegetables", name="Food 05, cooked")),
    ("sodium of a salted food",
     setting(name="Food 05, salted", sodium="0.2")),
    ("sodium of an unsalted food",
     setting(name="Food 05, unsalted", sodium="0.05")),
    ("no state of a vegetable",
     setting("Vegetables", name="Food 05, of some kind")),
    ("search words of a plant drink",
     setting(row=16, name="Oat drink",
             remark="ongezoete haverdrink, havermelk, oat milk")),
    ("amounts on the bounds",
     add_range("Cheese", "Food 05", "carbs", "9", "9")),
    ("40 characters", setting(name="Food 05 " + 32 * "x")),
    ("14 characters", setting(unit="1 medium glass")),
    ("accents", setting(remark="cr\u00e8me br\u00fbl\u00e9e")),
]


def self_test():
    failures = []
    clean = Sample().check().violations
    if clean:
        failures.append(f"the unbroken sample gives {clean[0]}")
    for what, change in EDGES:
        sample = Sample()
        change(sample)
        for violation in sample.check().violations:
            failures.append(f"edge, {what}: {violation.what}")
    for rule, what, change, along in CASES:
        sample = Sample()
        change(sample)
        fired = {violation.rule for violation in sample.check().violations}
        if rule not in fired:
            failures.append(f"{rule}, {what}: does not fire")
        for other in sorted(fired - along - {rule}):
            failures.append(f"{rule}, {what}: {other} fires as well")
    for rule in sorted(RULES - {case[0] for case in CASES}):
        failures.append(f"{rule}: has no case")
    for failure in failures:
        print(f"self-test: {failure}")
    print(f"self-test: {len(RULES)} rules, {len(CASES)} broken cases, "
          f"{len(EDGES)} edge cases, {len(failures)} failures")
    return 1 if failures else 0


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
