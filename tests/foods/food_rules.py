"""The rules that the starter foods have to meet, and the check of all of them.

check_starter_foods.py says what is checked, and why.
"""

import re
import unicodedata
from collections import namedtuple
from decimal import Decimal
from functools import lru_cache

from food_tables import (ENERGY_REASONS, NUTRIENTS, PLAIN_REASONS, Report,
                         category_of, read_exceptions, read_foods, read_ranges)

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


# ----------------------------------------------------------- rules of a food

@lru_cache(maxsize=None)
def character_faults(text):
    """What is wrong with the characters of a text, in words."""
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
    return tuple(faults)


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
