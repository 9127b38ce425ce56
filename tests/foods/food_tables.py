"""Reads the tables of the starter foods, and the lists beside them.

A file is given by its name and its bytes; what isn't well formed goes into a
Report.
"""

import re
from collections import namedtuple
from decimal import Decimal
from pathlib import Path

COLUMNS = ["name", "unit", "gram", "kj", "kcal", "protein", "fat_u", "fat_s",
           "carbs", "sodium", "group", "remark"]
EXCEPTION_COLUMNS = ["category", "name", "reason"]
RANGE_COLUMNS = ["category", "name", "nutrient", "least", "most"]
ENERGY_REASONS = {"alcohol", "fibre", "polyols"}
PLAIN_REASONS = {"dish", "ready to eat"}

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
