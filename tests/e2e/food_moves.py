#!/usr/bin/env python3
"""Food on its way through a day, with the real mouse and the real keyboard.

Drags foods from the list into the morning and from there into the afternoon, cuts and pastes one
into the evening and moves it back, counts portions up and removes them, and makes one food of a
whole morning. Foods go back to the food lists, which takes them out of the day, and onto the
favourites. After each step the day is saved and its file read from outside, and so is the own
list. The argument is the built program.
"""
import csv
import struct
import sys
from decimal import ROUND_HALF_UP, Decimal
from pathlib import Path

from day_file_reader import FIELD_END, LINE_END, pieces, read_day_file
from desktop import Desktop
from one_day import FOODS, end, line_of, make_user_and_day, row, single

# Places on a screen of 1024 x 768 with the main window maximised and the default screens open.
MORNING, AFTERNOON, EVENING = (800, 220), (800, 430), (800, 640)
FIRST_ROWS = {"morning": (760, 175), "afternoon": (760, 378), "evening": (760, 582)}
ROW_HEIGHT = 20
COMBINE_MORNING = (671, 134)
FOOD_LIST, STANDARD_LIST, FAVOURITES_LIST = (200, 500), (57, 150), (239, 150)

# The amounts of a new food in the order of its fields, each with the decimals that are shown.
AMOUNTS = [("gram", "1"), ("kj", "1"), ("kcal", "1"), ("protein", "1"), ("fat_u", "1"),
           ("fat_s", "1"), ("carbs", "1"), ("sodium", "0.001")]


def consumption(part, index):
    left, top = FIRST_ROWS[part]
    return left, top + index * ROW_HEIGHT


def read_food_file(path):
    """The lines of a food file, which holds one record of one string."""
    data = path.read_bytes()
    count, length = struct.unpack_from("<iH", data)
    assert count == 1 and len(data) == 6 + length, f"{path.name}: {data[:6]}, {len(data)} bytes"
    return pieces(data[6:], LINE_END)


def shown_total(foods, column, step):
    """The sum in single precision, printed with halves away from zero."""
    total = 0.0
    for food in foods:
        total = single(total + float(food[column]))
    return str(Decimal(f"{total:.15g}").quantize(Decimal(step), rounding=ROUND_HALF_UP))


def combined_line(name, unit, foods, counts):
    fields = [name, unit] + [shown_total(foods, *amount) for amount in AMOUNTS]
    fields += ["0", "".join(f"{count}x {food}\r\n" for food, count in counts)]
    return "".join(field + "½" for field in fields).encode("cp1252")


class Day:
    """The one saved day of a user."""

    def __init__(self, desktop, user):
        self.desktop, self.user = desktop, user

    def path(self):
        (day,) = (self.user / "Files").glob("*.kvf")
        return day

    def saved(self):
        self.desktop.keys("ctrl+s")
        return [pieces(part, LINE_END) for part in read_day_file(self.path())[3:]]

    def expect(self, *parts):
        found, expected = self.saved(), [[line_of(food) for food in part] for part in parts]
        assert found == expected, f"{found} is not {expected}"


def move_by_mouse(desktop, day, foods):
    desktop.click(row(0))
    desktop.click(row(2), "shift")
    desktop.drag(row(2), MORNING)
    day.expect(foods[:3], [], [])
    # Two rows at once from one part of the day to another.
    desktop.click(consumption("morning", 0))
    desktop.click(consumption("morning", 2), "ctrl")
    desktop.drag(consumption("morning", 2), AFTERNOON)
    day.expect([foods[1]], [foods[0], foods[2]], [])
    # On its own list a food goes to the end.
    desktop.click(consumption("afternoon", 0))
    desktop.drag(consumption("afternoon", 0), AFTERNOON)
    day.expect([foods[1]], [foods[2], foods[0]], [])


def move_by_keyboard(desktop, day, foods):
    desktop.click(consumption("afternoon", 0))
    desktop.keys("ctrl+x")
    desktop.click(EVENING)
    desktop.keys("ctrl+v")
    day.expect([foods[1]], [foods[0]], [foods[2]])
    desktop.keys("ctrl+v")  # what was cut is pasted once
    day.expect([foods[1]], [foods[0]], [foods[2]])
    desktop.click(consumption("evening", 0))
    desktop.keys("ctrl+1")
    day.expect([foods[1], foods[2]], [foods[0]], [])


def count_portions(desktop, day, foods):
    desktop.click(consumption("afternoon", 0))
    desktop.keys("KP_Add", "KP_Add", "KP_Subtract")
    day.expect([foods[1], foods[2]], [foods[0], foods[0]], [])
    desktop.keys("shift+Delete")
    day.expect([foods[1], foods[2]], [foods[0]], [])
    desktop.keys("Delete")
    day.expect([foods[1], foods[2]], [], [])


def combine(desktop, day, foods):
    desktop.click(consumption("morning", 1))
    desktop.keys("KP_Add")
    day.expect([foods[1], foods[2], foods[2]], [], [])
    before = day.path().read_bytes()
    desktop.click(COMBINE_MORNING)
    desktop.type(" Two breads")
    desktop.keys("Tab")
    desktop.type("1 basket")
    desktop.keys("Return")
    desktop.window("^Kelvora FOOD$")
    desktop.keys("Return")  # the box that tells of it
    line = combined_line("Two breads", "1 basket", [foods[1], foods[2], foods[2]],
                         [(foods[1]["name"], 1), (foods[2]["name"], 2)])
    own = read_food_file(day.user / "Databases" / "Custom.dat")
    assert own == [line], f"{own} is not {[line]}"
    assert day.path().read_bytes() == before, "combining wrote the day"
    found = day.saved()
    assert found == [[line], [], []], f"{found} is not {line}"
    assert len(pieces(line, FIELD_END)) == 12


def drop_on_food_lists(desktop, day, foods):
    desktop.click(row(1))
    desktop.click(row(2), "shift")
    desktop.drag(row(2), EVENING)
    desktop.click(consumption("evening", 0))
    desktop.drag(consumption("evening", 0), FOOD_LIST)
    assert day.saved()[2] == [line_of(foods[2])], "the food is still in the day"
    desktop.click(FAVOURITES_LIST)
    desktop.click(consumption("evening", 0))
    desktop.drag(consumption("evening", 0), FOOD_LIST)
    desktop.keys("Return")  # the box that tells of it
    favourites = read_food_file(day.user / "Databases" / "Favorites.dat")
    assert favourites == [line_of(foods[2])], favourites
    assert day.saved()[2] == [line_of(foods[2])], "a favourite leaves the day"
    desktop.click(STANDARD_LIST)


def main():
    program = Path(sys.argv[1]).resolve()
    with open(FOODS, encoding="utf-8", newline="") as table:
        foods = list(csv.DictReader(table, delimiter="\t", quoting=csv.QUOTE_NONE))
    with Desktop() as desktop:
        day = Day(desktop, Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users", "Anna"))
        process = desktop.start(program, first_run=True)
        make_user_and_day(desktop)
        for step in (move_by_mouse, move_by_keyboard, count_portions, combine,
                     drop_on_food_lists):
            step(desktop, day, foods)
            print(step.__name__ + ": as it must be")
        end(desktop, process)


if __name__ == "__main__":
    main()
