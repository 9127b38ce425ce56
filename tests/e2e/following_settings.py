#!/usr/bin/env python3
"""Settings that change while the food lists and the parts of the day are open, with the real mouse.

Another unit of food weight and another priority nutrient are chosen; the headings and the cells of
all open windows must look at once as they look when the windows are opened anew. The argument is
the built program.
"""
import sys
from pathlib import Path

from desktop import SETTINGS_TITLE, Desktop, region
from one_day import DEFAULT_SCREENS, MORNING, end, make_user_and_day, row

# Places on a screen of 1024 x 768 with the main window maximised and the default screens open.
SETTINGS_BUTTON, PROFILE_BUTTON = (688, 60), (215, 60)
OUNCES, KILOJOULES = (222, 536), (215, 254)
DAY_SETTINGS = "^Change settings for this day$"
WEIGHT_HEADING, NUTRIENT_HEADING = (250, 281, 314, 298), (315, 281, 382, 298)
EATEN_WEIGHT, EATEN_NUTRIENT = (891, 148, 932, 163), (934, 148, 994, 163)
STATUS = (700, 276, 980, 293)
# The list below its selected row, and the three parts of the day without their frames.
SHOWN = [(14, 281, 382, 298), (14, 319, 382, 640), (640, 148, 994, 293), (640, 351, 994, 496),
         (640, 555, 994, 700)]


def choose_ounces(desktop):
    desktop.click(SETTINGS_BUTTON)
    desktop.window(SETTINGS_TITLE)
    desktop.settle()
    desktop.keys("ctrl+Tab")
    desktop.click(OUNCES)
    desktop.keys("Return")
    desktop.no_window(SETTINGS_TITLE)


def choose_kilojoules(desktop):
    desktop.click(PROFILE_BUTTON)
    desktop.window(DAY_SETTINGS)
    desktop.settle()
    desktop.keys("ctrl+Tab", "ctrl+Tab")
    desktop.click(KILOJOULES)
    desktop.keys("Return")
    desktop.no_window(DAY_SETTINGS)


def expect_followed(desktop, choose, changed):
    """The choice shows at once in the `changed` regions, and everywhere as in new windows."""
    before = desktop.picture()
    choose(desktop)
    desktop.settle()
    at_once = desktop.picture()
    for place in changed:
        assert region(at_once, *place) != region(before, *place), f"{place} has not changed"
    desktop.click(DEFAULT_SCREENS)
    anew = desktop.picture()
    for place in SHOWN:
        assert region(at_once, *place) == region(anew, *place), f"{place} shows what was before"
    print(choose.__name__ + ": as it must be")


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        process = desktop.start(program, first_run=True)
        make_user_and_day(desktop)
        desktop.click(row(0))
        desktop.drag(row(0), MORNING)
        desktop.keys("ctrl+s")
        desktop.click(DEFAULT_SCREENS)
        expect_followed(desktop, choose_ounces, [WEIGHT_HEADING, EATEN_WEIGHT])
        expect_followed(desktop, choose_kilojoules, [NUTRIENT_HEADING, EATEN_NUTRIENT, STATUS])
        desktop.keys("ctrl+s")
        end(desktop, process)


if __name__ == "__main__":
    main()
