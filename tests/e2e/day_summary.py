#!/usr/bin/env python3
"""The day summary stays open while foods are dropped with the real mouse.

In the small size its bars must follow every drop: the two bars of a row are as long as the amounts
of the food table say. In the normal size the pie shows its wedges, and pie and list follow a drop.
The argument is the built program.
"""
import csv
import sys
from collections import Counter
from pathlib import Path

from desktop import WIDTH, Desktop, region
from one_day import FOODS, MORNING, end, make_user_and_day, row

EVENING = (900, 640)
# Places on a screen of 1024 x 768 with the main window maximised.
SCREENS_WITH_SUMMARY, SUMMARY_BUTTON = (250, 731), (452, 60)
STRIP = (8, 560, 512, 706)
# The normal size stands where the command puts it.
WINDOW = (257, 280, 822, 640)
REQUIRED, USED = bytes((63, 131, 196)), bytes((240, 138, 60))
LARGEST, REST = bytes((0, 56, 140)), bytes((185, 213, 255))
# Of a new user, in the order of the bars.
TARGETS = {"kj": 9000, "kcal": 2143, "fat_u": 80, "fat_s": 27, "sodium": 1, "protein": 60,
           "carbs": 300}


def pixels(picture, place):
    for line in region(picture, *place):
        yield [line[x:x + 3] for x in range(0, len(line), 3)]


def bars(picture, colour):
    """The lengths of the bars of that colour, from top to bottom; one without length is not seen."""
    lengths, inside = [], False
    for line in pixels(picture, STRIP):
        length = line.count(colour)
        if length and not inside:
            lengths.append(length)
        inside = bool(length)
    return lengths


def expect_bars(picture, eaten):
    required, used = bars(picture, REQUIRED), bars(picture, USED)
    totals = {name: sum(float(food[name]) for food in eaten) for name in TARGETS}
    assert len(required) == 7, f"{len(required)} bars of requirements"
    # What both bars of a row fill together, with a pixel more or less at the end of either.
    rooms = [length * (TARGETS[name] + totals[name]) / TARGETS[name]
             for name, length in zip(TARGETS, required)]
    assert max(rooms) - min(rooms) <= 4, f"rows differ in width: {rooms}"
    room = sum(rooms) / len(rooms)
    expected = [room * totals[name] / (TARGETS[name] + totals[name]) for name in TARGETS]
    assert len(used) == (7 if eaten else 0), f"{len(used)} bars of use"
    for name, length, wanted in zip(TARGETS, used, expected):
        assert abs(length - wanted) <= 2, f"{name}: {length} is not {wanted:.1f}"
    print(f"{len(eaten)} foods: bars {required} and {used}")


def main():
    program = Path(sys.argv[1]).resolve()
    with open(FOODS, encoding="utf-8", newline="") as table:
        foods = list(csv.DictReader(table, delimiter="\t", quoting=csv.QUOTE_NONE))
    with Desktop() as desktop:
        process = desktop.start(program, first_run=True)
        make_user_and_day(desktop)
        desktop.click(SCREENS_WITH_SUMMARY)
        expect_bars(desktop.picture(), [])
        for count in range(1, 7):
            desktop.click(row(count - 1))
            desktop.drag(row(count - 1), MORNING)
            expect_bars(desktop.picture(), foods[:count])

        desktop.click(SUMMARY_BUTTON)  # from the small size to the normal one
        desktop.keys("Right", "space")
        pie = desktop.picture()
        colours = Counter(pixel for line in pixels(pie, WINDOW) for pixel in line)
        shares = sorted((float(food["kcal"]) for food in foods[:6]), reverse=True)
        wedge = colours[LARGEST] / max(colours[REST], 1)
        total = sum(shares)
        rest = 100 - sum(99.999 * share / total for share in shares[:5]) - 0.4
        expected = 99.999 * shares[0] / total / rest
        assert abs(wedge - expected) < 0.1 * expected, f"wedges stand as {wedge}, not as {expected}"
        desktop.click(row(6))
        desktop.drag(row(6), EVENING)
        assert region(desktop.picture(), *WINDOW) != region(pie, *WINDOW), "the pie stays"

        desktop.click(SUMMARY_BUTTON)
        desktop.click(SUMMARY_BUTTON)
        desktop.keys("Right", "Right", "space")
        listed = desktop.picture()
        desktop.click(row(7))
        desktop.drag(row(7), EVENING)
        assert region(desktop.picture(), *WINDOW) != region(listed, *WINDOW), "the list stays"
        desktop.keys("ctrl+s")
        end(desktop, process)


if __name__ == "__main__":
    main()
