#!/usr/bin/env python3
"""Ten foods with their amounts, entered by the keyboard alone, and one by the mouse.

Every key is counted: beyond the letters of the words that are searched for, four a word at the most,
the ten foods and the saving of their day take 60 keys at the most. What a first start and a new user
ask for is counted by itself. The day file is compared with lines that are worked out here from the
tables of the foods. The argument is the built program.
"""
import csv
import sys
from fractions import Fraction
from pathlib import Path

from day_file_reader import LINE_END, pieces, read_day_file
from desktop import Desktop
from one_day import end, make_user_and_day, row

TABLES = Path(__file__).resolve().parents[2] / "data" / "foods"
MOST_KEYS, MOST_LETTERS = 60, 4

# The headings of the evening window, on a screen of 1024 x 768 with the default screens open.
EVENING_HEADING = (800, 562)

# A food, the word that finds it, how many rows down it stands, its amount as it is typed, the keys
# that add it, and the part of the day where it then is. A digit on a row begins its amount; Tab goes
# to the box as well.
FOODS = [
    ("Brown bread", "brow", 1, "2", ["Return"], 0),
    ("Margarine, tub", "marg", 2, "12g", ["Return"], 0),
    ("Honey", "hone", 1, "\t1/2", ["Return"], 0),
    ("Tea", "tea", 1, "2x", ["Return"], 0),
    ("Banana", "bana", 2, "", ["Return"], 0),
    ("Wholemeal bread", "whol", 1, "70g", ["ctrl", "2"], 1),
    ("Salmon, smoked", "salm", 2, "30g", ["Return"], 1),
    ("Orange juice", "oran", 1, "1.5", ["Return"], 1),
    ("Spaghetti bolognese", "spag", 1, "350g", ["ctrl", "3"], 2),
    ("Yoghurt drink with fruit", "yogh", 1, "1/3", ["Return"], 2),
]

# The decimals of the amounts of a food, in the order of its fields behind the weight.
DECIMALS = {"kj": 0, "kcal": 0, "protein": 2, "fat_u": 2, "fat_s": 2, "carbs": 2, "sodium": 3}


class CountingDesktop(Desktop):
    """Counts the keys that somebody presses, those held down too, and doesn't wait between them."""

    def __init__(self):
        super().__init__()
        self.pressed = 0

    def keys(self, *keys):
        self.pressed += sum(len(key.split("+")) for key in keys)
        super().keys(*keys)

    def type(self, text):
        self.pressed += len(text)
        super().type(text)

    def hit(self, *keys):
        self.pressed += sum(len(key.split("+")) for key in keys)
        self.output("xdotool", "key", "--delay", "40", *keys)

    def write(self, text):
        self.pressed += len(text)
        self.output("xdotool", "type", "--delay", "40", "--", text)


def read_tables():
    """All foods by name, each with the name of its category's file."""
    foods = {}
    for table in TABLES.glob("*.tsv"):
        with open(table, encoding="utf-8", newline="") as rows:
            for food in csv.DictReader(rows, delimiter="\t", quoting=csv.QUOTE_NONE):
                foods[food["name"]] = food | {"db": table.stem + ".dat"}
    return foods


def rounded(number, decimals):
    """A positive number with that many decimals, halves upwards."""
    steps = int(number * 10 ** decimals + Fraction(1, 2))
    whole, rest = divmod(steps, 10 ** decimals)
    return f"{whole}.{rest:0{decimals}}" if decimals else str(whole)


def line_of(food):
    return "".join(field + "½" for field in food.values()).encode("cp1252")


def lines_of(food, amount):
    """What a day holds of an amount."""
    said = amount.strip()
    if said.rstrip("x").isdigit() or not said:
        return [line_of(food)] * int(said.rstrip("x") or 1)
    scaled = dict(food)
    if said.endswith("g"):
        factor = Fraction(said[:-1]) / Fraction(food["gram"])
        scaled["name"], gram = f"{food['name']}, {said[:-1]} g", said[:-1]
    else:
        factor = Fraction(said)
        told = said if factor.denominator % 3 == 0 else f"{float(factor):g}"
        scaled["name"] = f"{food['name']}, {told} x"
        gram = rounded(Fraction(food["gram"]) * factor, 0)
    scaled["gram"], scaled["unit"] = gram, f"{gram} gram"
    for name, decimals in DECIMALS.items():
        scaled[name] = rounded(Fraction(food[name]) * factor, decimals)
    return [line_of(scaled)]


def enter(desktop, word, rows, amount, adding):
    """One food: the word, down to its row, the amount, and what adds it."""
    assert len(word) <= MOST_LETTERS, word
    desktop.write(word)
    if amount.startswith("\t"):
        desktop.hit(*["Tab"] * (rows + 1))
        amount = amount[1:]
    else:
        desktop.hit(*["Down"] * rows)
    if amount:
        desktop.write(amount)
    desktop.pressed += len(adding)
    desktop.output("xdotool", "key", "+".join(adding))


def day_parts(day):
    return [pieces(part, LINE_END) for part in read_day_file(day)[3:]]


def main():
    program = Path(sys.argv[1]).resolve()
    tables = read_tables()
    with CountingDesktop() as desktop:
        user = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users", "Anna")
        process = desktop.start(program, first_run=True)
        make_user_and_day(desktop)
        print(f"from the first start to the open day of a new user: {desktop.pressed} keys")

        before = desktop.pressed
        expected = [[], [], []]
        for name, word, rows, amount, adding, part in FOODS:
            enter(desktop, word, rows, amount, adding)
            expected[part] += lines_of(tables[name], amount)
        desktop.hit("ctrl+s")
        desktop.settle()
        letters = sum(len(food[1]) for food in FOODS)
        keys = desktop.pressed - before - letters
        print(f"ten foods and their saving: {keys} keys and {letters} letters of words")
        assert keys <= MOST_KEYS, f"{keys} keys"
        (day,) = (user / "Files").glob("*.kvf")
        assert day_parts(day) == expected, f"{day_parts(day)} is not {expected}"

        # One by the mouse, dropped on the headings of a window; the list shows the last search.
        desktop.click(row(0))
        desktop.drag(row(0), EVENING_HEADING)
        desktop.hit("ctrl+s")
        desktop.settle()
        expected[2] += lines_of(tables["Yoghurt drink with fruit"], "")
        assert day_parts(day) == expected, f"{day_parts(day)} is not {expected}"
        end(desktop, process)

        # The only user is chosen, and Enter opens the newest day; it takes words at once.
        process = desktop.start(program)
        desktop.keys("ctrl+o")
        desktop.window("^Open file$")
        desktop.settle()
        desktop.keys("Return")
        desktop.no_window("^Open file$")
        desktop.settle()
        enter(desktop, "tea", 1, "", ["Return"])
        desktop.hit("ctrl+s")
        desktop.settle()
        expected[0] += lines_of(tables["Tea"], "")
        assert day_parts(day) == expected, f"{day_parts(day)} is not {expected}"
        end(desktop, process)
    print("ten foods by the keyboard and one by the mouse: as it must be")


if __name__ == "__main__":
    main()
