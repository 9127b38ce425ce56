#!/usr/bin/env python3
"""Two foods are dragged into the comparison with the real mouse, and their figures are seen.

The program runs from a copy with one category of foods, which are made so that their figures tell
themselves: half a portion and two portions of one food have the same values per 100 grams, and the
portion of a third food, of 100 grams, is those values. So columns of the window that must show the
same figures are compared as pictures. Then come the drops that are refused, and the details of a
compared food. The argument is the built program.
"""
import shutil
import struct
import sys
from pathlib import Path

from desktop import Desktop, region
from one_day import end, make_user_and_day, row

# Name, unit, weight, kilojoules, kilocalories, protein, unsaturated and saturated fat,
# carbohydrates, sodium, group, remark, category.
FOODS = ["Half|1 piece|50|500|120|4|1|0.25|15|0.1|x||Zz.dat|",
         "Twice|1 piece|200|2000|480|16|4|1|60|0.4|x||Zz.dat|",
         "Whole|1 piece|100|1000|240|8.00|2.00|0.50|30.00|0.200|x||Zz.dat|",
         "Other|1 piece|100|1001|240|8.00|2.00|0.50|30.00|0.200|x||Zz.dat|"]
HALF, TWICE, WHOLE, OTHER = range(4)

# Places on a screen of 1024 x 768 with the main window maximised and the default screens open.
COMPARE_BUTTON, NOWHERE = (618, 60), (470, 640)
WINDOW = (541, 237, 914, 624)
FIELDS = {1: (638, 345), 2: (817, 345)}
PER_UNIT, PER_100 = (580, 276), (668, 277)
MORNING, MORNING_ROW = (720, 200), (700, 175)
# The values with their units, from the energy on: the sides of a box's frame, and where they begin
# and end on a tab. The portion has a line for its unit above them.
SIDES = {1: (644, 721), 2: (823, 900)}
FROM_TO = {PER_UNIT: (471, 606), PER_100: (455, 590)}
DETAILS_TITLE = "^Food item details$"


def copy_with_foods(program, home):
    """The program in a folder of its own; it reads the databases beside itself."""
    copy = Path(home, "program", program.name)
    databases = copy.parent / "Databases"
    databases.mkdir(parents=True)
    shutil.copy2(program, copy)
    lines = "".join(food.replace("|", "½") + "¾" for food in FOODS).encode("cp1252")
    (databases / "Zz.dat").write_bytes(struct.pack("<iH", 1, len(lines)) + lines)
    return copy


def values(picture, tab, box):
    """What is printed in the column of a box, without the ground around it, line by line."""
    (left, right), (top, bottom) = SIDES[box], FROM_TO[tab]
    lines = [[line[x:x + 3] for x in range(0, len(line), 3)]
             for line in region(picture, left, top, right, bottom)]
    ground = lines[0][0]
    rows = [y for y, line in enumerate(lines) if set(line) != {ground}]
    assert rows, f"column {box} is empty"
    columns = [x for x in range(len(lines[0])) if any(line[x] != ground for line in lines)]
    return [line[columns[0]:columns[-1] + 1] for line in lines[rows[0]:rows[-1] + 1]]


class Comparison:
    def __init__(self, desktop):
        self.desktop = desktop

    def seen(self, tab=None):
        """A picture without a tip of what is under the pointer."""
        if tab:
            self.desktop.click(tab)
        self.desktop.output("xdotool", "mousemove", *map(str, NOWHERE))
        self.desktop.settle()
        return self.desktop.picture()

    def drag(self, food, box):
        self.desktop.click(row(food))
        self.desktop.drag(row(food), FIELDS[box])

    def expect_refusal(self, what, drag):
        before = region(self.seen(), *WINDOW)
        drag()
        told = self.seen()
        self.desktop.keys("Return")
        after = self.seen()
        assert told != after, f"{what}: nothing was told"
        assert region(after, *WINDOW) == before, f"{what}: the comparison has changed"
        print(what + ": refused")


def compare(comparison):
    comparison.drag(HALF, 1)
    comparison.drag(TWICE, 2)
    per_unit = comparison.seen()
    assert values(per_unit, PER_UNIT, 1) != values(per_unit, PER_UNIT, 2), "portions look the same"
    per_100 = comparison.seen(PER_100)
    figures = values(per_100, PER_100, 1)
    assert values(per_100, PER_100, 2) == figures, "the values per 100 grams differ"
    # The figures themselves: those of a portion of 100 grams.
    comparison.desktop.click(PER_UNIT)
    for food, same in ((OTHER, False), (WHOLE, True)):
        comparison.drag(food, 2)
        shown = values(comparison.seen(), PER_UNIT, 2)
        assert (shown == figures) == same, f"{FOODS[food]}: it looks otherwise"
    print("figures: as they must be")


def refuse(comparison):
    desktop = comparison.desktop

    def two_foods():
        desktop.click(row(HALF))
        desktop.click(row(TWICE), "shift")
        desktop.drag(row(TWICE), FIELDS[1])

    desktop.click(row(HALF))
    desktop.drag(row(HALF), MORNING)
    comparison.expect_refusal("two foods", two_foods)
    desktop.click(MORNING_ROW)
    comparison.expect_refusal("a consumption", lambda: desktop.drag(MORNING_ROW, FIELDS[2]))


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        copy = copy_with_foods(program, desktop.home.name)
        process = desktop.start(copy, first_run=True)
        make_user_and_day(desktop)
        desktop.click(COMPARE_BUTTON)
        comparison = Comparison(desktop)
        compare(comparison)
        refuse(comparison)
        desktop.click(FIELDS[1])
        desktop.keys("Return")
        desktop.window(DETAILS_TITLE)
        desktop.keys("Escape")
        desktop.no_window(DETAILS_TITLE)
        before = desktop.picture()
        desktop.click(COMPARE_BUTTON)
        assert region(desktop.picture(), *WINDOW) != region(before, *WINDOW), "it stays open"
        desktop.keys("ctrl+s")
        end(desktop, process)


if __name__ == "__main__":
    main()
