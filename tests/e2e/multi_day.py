#!/usr/bin/env python3
"""A year of days at a glance, with the real mouse.

The days are written from outside, with values that put known lines into the chart. The trend is
opened with its button; ticks take lines away and bring others, both time lines are chosen from the
menu, the list is sorted, the pie shows the nutrient of its menu. Pictures are compared by the
colours of the lines. The argument is the built program.
"""
import datetime
import sys
from collections import Counter
from pathlib import Path

from day_file_writer import food, write_days
from desktop import Desktop, region
from one_day import end, make_user_and_day

# Places on a screen of 1024 x 768 with the main window maximised.
TREND_BUTTON = (510, 60)
# Within the window, which stands where the defaults put it.
CHART = (356, 268, 908, 506)
VIEWS = (312, 262, 916, 614)
TREND, TREND_MENU, PIE, PIE_MENU, LIST = (350, 246), (405, 246), (590, 246), (652, 246), (725, 246)
ENERGY_TICK, SATURATED_TICK, DAY_LINES_TICK = (333, 571), (496, 571), (489, 603)
FOOD_HEADING = (380, 265)
ROWS = (312, 294, 500, 612)  # below the first, which may have the focus
GROUND = bytes((182, 202, 202))
LARGEST_KJ, LARGEST_SODIUM = bytes((0, 56, 140)), bytes((120, 137, 43))

DAYS = 366
FIRST = datetime.date(2003, 1, 1)


def a_year():
    """The first half of the days has 10000 kilojoules, the other 5000; the weight doubles, so that
    its line never lies on that of the energy; saturated fat is 10 grams always. Ten foods a day, the
    later in the alphabet the more of everything."""
    foods = [food(f"{letter} food", kj=100 * place, sodium=place / 10)
             for place, letter in enumerate("ABCDEFGHIJ", start=1)]
    for day in range(DAYS):
        kj, weight = (10000, 45) if day < DAYS // 2 else (5000, 90)
        yield [1500, kj, round(kj / 4.2), 40, 10, 250, 80, 2, weight], foods


# The lines are smooth, so that most of their pixels have something of the ground.
def is_energy(pixel):
    return pixel[2] - pixel[0] > 100


def is_saturated_fat(pixel):
    return pixel[0] - pixel[1] > 100


def colours(picture, place):
    counted = Counter()
    for line in region(picture, *place):
        counted.update(line[x:x + 3] for x in range(0, len(line), 3))
    return counted


def count(shown, is_of_line):
    return sum(number for pixel, number in shown.items() if is_of_line(pixel))


def rows_of_energy(picture, x):
    """The rows of the chart in which the line of the energy crosses the column, from the top."""
    lines = region(picture, x, CHART[1], x + 1, CHART[3])
    return [y for y, line in enumerate(lines) if is_energy(line)]


def expect_energy(picture, falls, ends):
    """At the top until it falls, on half height once it has; both as parts of the width."""
    left, width = CHART[0], CHART[2] - CHART[0]
    before, behind = left + int(width * falls) - 15, left + int(width * ends) + 15
    half = (CHART[3] - CHART[1]) / 2
    assert min(rows_of_energy(picture, before), default=99) <= 2, "the line begins lower"
    rows = rows_of_energy(picture, behind)
    assert rows and all(abs(row - half) <= 3 for row in rows), f"the line stands at {rows}"


def expect_lines(shown, there, gone):
    assert count(shown, there) > 300 and not count(shown, gone), f"{shown.most_common(8)}"


def choose(desktop, menu, *keys):
    desktop.click(menu)
    desktop.keys(*keys)
    desktop.settle()


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        process = desktop.start(program, first_run=True)
        make_user_and_day(desktop)
        desktop.keys("ctrl+s")
        files = next(Path(desktop.home.name).rglob("Files"))
        for day in files.glob("*.kvf"):
            day.unlink()
        # Half a year lies between the two halves: per date each of the three takes a third.
        days = list(a_year())
        write_days(files, days[:DAYS // 2], FIRST)
        write_days(files, days[DAYS // 2:], FIRST + datetime.timedelta(days=DAYS))

        desktop.click(TREND_BUTTON)
        desktop.settle()
        chart = desktop.picture()
        shown = colours(chart, CHART)
        expect_lines(shown, is_energy, is_saturated_fat)
        desktop.click(DAY_LINES_TICK)
        per_file = desktop.picture()
        assert colours(per_file, CHART)[GROUND] > 2 * shown[GROUND], "the day lines stay"
        expect_energy(per_file, 1 / 2, 1 / 2)

        desktop.click(TREND)  # its menu is disabled until then
        choose(desktop, TREND_MENU, "Down", "Down", "Return")
        per_date = desktop.picture()
        expect_energy(per_date, 1 / 3, 2 / 3)

        desktop.click(SATURATED_TICK)
        desktop.click(ENERGY_TICK)
        expect_lines(colours(desktop.picture(), CHART), is_saturated_fat, is_energy)

        desktop.click(LIST)
        listed = desktop.picture()
        desktop.click(FOOD_HEADING)
        descending = desktop.picture()
        assert region(listed, *ROWS) != region(descending, *ROWS), "nothing is sorted"
        desktop.click(FOOD_HEADING)
        ascending = desktop.picture()
        # From A to J they stood already.
        assert region(listed, *ROWS) == region(ascending, *ROWS), "A is not the first"

        desktop.click(PIE)
        assert colours(desktop.picture(), VIEWS)[LARGEST_KJ] > 1000, "no pie of kilojoules"
        choose(desktop, PIE_MENU, "Up", "Up", "Return")
        assert colours(desktop.picture(), VIEWS)[LARGEST_SODIUM] > 1000, "no pie of sodium"

        desktop.click(TREND_BUTTON)
        desktop.no_window("^Trend$")
        end(desktop, process)


if __name__ == "__main__":
    main()
