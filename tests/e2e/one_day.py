#!/usr/bin/env python3
"""One day from end to end, as a person lives it.

Makes a user and a day, drags two foods into the morning and one into the evening, saves, ends the
program, starts it again and opens the day: the same rows and totals are on the screen, and the file
holds what it must, byte by byte. The arguments are the built program and the locale under which the
day is written; it is always opened under one with a decimal point.
"""
import csv
import struct
import sys
from pathlib import Path

from day_file_reader import FIELD_END, LINE_END, pieces, read_day_file
from desktop import Desktop, region

FOODS = Path(__file__).resolve().parents[2] / "data" / "foods" / "Bread.tsv"

# Places on a screen of 1024 x 768 with the main window maximised and the default screens open.
FIRST_ROW, ROW_HEIGHT = (80, 306), 20
MORNING, EVENING = (800, 220), (800, 625)
DEFAULT_SCREENS = (85, 731)
CONSUMPTION_WINDOWS = (631, 100, 1002, 706)
USERS_FIRST, DAYS_FIRST = (150, 132), (400, 153)

# The order of the series in the trend text, as columns of the food table.
TREND_COLUMNS = ["gram", "kj", "kcal", "fat_u", "fat_s", "carbs", "protein", "sodium"]


def single(number):
    """The number as a 32-bit float holds it."""
    return struct.unpack("f", struct.pack("f", number))[0]


def written(number, separator):
    """Seven significant digits, without trailing zeros."""
    return f"{number:.7g}".replace(".", separator)


def trend_of(morning, evening, weight, separator):
    fields = []
    for column in TREND_COLUMNS:
        totals = []
        for period in (morning, evening):
            total = 0.0
            for food in period:
                total = single(total + float(food[column]))
            totals.append(total)
        fields.append(written(single(totals[0] + totals[1]), separator))
    return "".join(field + "½" for field in fields + [weight]).encode("cp1252")


def line_of(food):
    fields = list(food.values()) + ["Bread.dat"]
    return "".join(field + "½" for field in fields).encode("cp1252")


def row(index):
    return FIRST_ROW[0], FIRST_ROW[1] + index * ROW_HEIGHT


def make_user_and_day(desktop, title="Start a new day", weekday="Friday"):
    desktop.keys("ctrl+n")
    fill_in_day(desktop, title, weekday)


def fill_in_day(desktop, title, weekday="Friday"):
    """Fills in the dialog for a new day, which is opening, and starts the day."""
    desktop.window(f"^{title}$")
    desktop.settle()
    desktop.type("Anna")
    # The list of genders takes no letters; its second entry is Female.
    desktop.keys("Tab", "Down", "Down", "Tab")
    desktop.type("42")
    desktop.keys("Tab")
    desktop.type("1.80")
    desktop.keys("Tab")
    desktop.type("75")
    desktop.keys("Tab")
    for part in ("05", "03", "04"):
        desktop.type(part)
        desktop.keys("Tab")
    desktop.keys("ctrl+a")
    desktop.type(weekday)
    desktop.keys("Tab")
    desktop.type("80.5")
    desktop.keys("Return")
    desktop.no_window(f"^{title}$")
    desktop.settle()


def open_first_day(desktop):
    desktop.keys("ctrl+o")
    desktop.window("^Open file$")
    desktop.click(USERS_FIRST)
    desktop.click(DAYS_FIRST)
    desktop.keys("Return")
    desktop.no_window("^Open file$")


def drag_foods(desktop):
    desktop.click(row(0))
    desktop.click(row(1), "shift")
    desktop.drag(row(1), MORNING)
    desktop.click(row(3))
    desktop.drag(row(3), EVENING)
    # The default screens anew: no row selected, as after opening.
    desktop.click(DEFAULT_SCREENS)


def check_file(path, foods, separator):
    height, weight = (number.encode() for number in (f"1{separator}80", f"80{separator}5"))
    trend, notes, header, morning, afternoon, evening = read_day_file(path)
    assert pieces(header, LINE_END) == [
        b"Anna", b"", b"", b"", b"", height, weight, b"Female", b"42", b"05-03-04", b"75",
        b"Friday", b"", b"", b""], header
    assert notes == b""
    assert pieces(morning, LINE_END) == [line_of(foods[0]), line_of(foods[1])], morning
    assert afternoon == b""
    assert pieces(evening, LINE_END) == [line_of(foods[3])], evening
    assert all(len(pieces(line, FIELD_END)) == 13 for line in pieces(morning, LINE_END))
    expected = trend_of(foods[:2], foods[3:4], weight.decode(), separator)
    assert trend == expected, f"{trend} is not {expected}"


def end(desktop, process):
    desktop.keys("ctrl+q")
    assert process.wait(timeout=20) == 0, f"the program ended with {process.returncode}"


def main():
    program, locale = Path(sys.argv[1]).resolve(), sys.argv[2]
    separator = "," if locale.startswith("nl") else "."
    with open(FOODS, encoding="utf-8", newline="") as table:
        foods = list(csv.DictReader(table, delimiter="\t", quoting=csv.QUOTE_NONE))
    with Desktop() as desktop:
        user = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users", "Anna")

        process = desktop.start(program, locale, first_run=True)
        make_user_and_day(desktop)
        assert (user / "Profile" / "Profile.usr").is_file(), "no profile"
        assert not list((user / "Files").iterdir()), "a new day is on disk before it is saved"
        empty = region(desktop.picture(), *CONSUMPTION_WINDOWS)
        drag_foods(desktop)
        desktop.keys("ctrl+s")
        (day,) = (user / "Files").glob("*.kvf")
        check_file(day, foods, separator)
        saved_bytes = day.read_bytes()
        saved_screen = region(desktop.picture(), *CONSUMPTION_WINDOWS)
        assert saved_screen != empty, "the rows do not show"
        end(desktop, process)

        process = desktop.start(program)
        open_first_day(desktop)
        desktop.click(DEFAULT_SCREENS)
        opened_screen = region(desktop.picture(), *CONSUMPTION_WINDOWS)
        assert opened_screen == saved_screen, "the opened day looks different"
        assert day.read_bytes() == saved_bytes, "opening changed the file"
        end(desktop, process)
    print("one day from end to end: as it must be")


if __name__ == "__main__":
    main()
