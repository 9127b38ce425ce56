#!/usr/bin/env python3
"""A food of one's own, as a person makes it from a package, eats it and corrects it.

Types the values of a package and the weight of a portion, adds the food, eats a portion by the
keyboard, then changes a value per 100 grams: the own list and the next portion have the new value,
the eaten portion keeps the old one. The own list and the day are read from outside. The argument is the built
program.
"""
import struct
import sys
from pathlib import Path

from day_file_reader import LINE_END, pieces, read_day_file
from desktop import Desktop
from one_day import end, make_user_and_day

OWN_LIST, FIRST_OWN_ROW = (137, 150), (80, 237)
EDIT = (581, 591)
NEW_FOOD, DETAILS, ERROR = "^Add new food item$", "^Food item details$", "^Error"
MAIN = "^Kelvora FOOD$"

# On the package, per 100 grams: kilojoules, kilocalories, saturated and unsaturated fat, protein,
# carbohydrates, sodium.
PACKAGE = ["1500", "357", "2.5", "5.5", "10", "60", "0.2"]
# A portion of 40 grams has two fifths of it; 142.8 kilocalories print as 143. In the order of a
# line: weight, kilojoules, kilocalories, protein, unsaturated, saturated fat, carbohydrates, sodium.
EATEN = "Muesli½1 bowl½40½600½143½4.00½2.20½1.00½24.00½0.080½0½½"
# With 20 grams of protein in 100 the portion has 8. Its other values per 100 grams come from the
# portion as it stands: 143 kilocalories in 40 grams are 357.5, printed as 358, and back 143.2.
CHANGED = "Muesli½1 bowl½40½600½143½8.00½2.20½1.00½24.00½0.080½0½½"


def own_list(home):
    data = Path(home, "Documents", "Kelvora FOOD", "My Users", "Anna", "Databases",
                "Custom.dat").read_bytes()
    assert struct.unpack_from("<i", data)[0] == 1
    (length,) = struct.unpack_from("<H", data, 4)
    assert len(data) == 6 + length, "bytes behind the record"
    return [line.decode("cp1252") for line in pieces(data[6:], LINE_END)]


def saved_morning(desktop):
    desktop.keys("ctrl+s")
    (day,) = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users", "Anna",
                  "Files").glob("*.kvf")
    return [line.decode("cp1252") for line in pieces(read_day_file(day)[3], LINE_END)]


def boxes(desktop):
    """How many boxes stand over the main window, whose title they share."""
    return len(desktop.output("xdotool", "search", "--onlyvisible", "--name", MAIN).split()) - 1


def enter_new_food(desktop, name):
    """Opens the dialog, copies the package, and adds a portion of 40 grams."""
    desktop.keys("alt+o", "Down", "Return")
    desktop.window(NEW_FOOD)
    desktop.settle()
    desktop.keys("Tab", "Tab")  # past both weights: the values are for 100 grams
    for place, value in enumerate(PACKAGE):
        desktop.type(value)
        desktop.keys("Tab")
        if place == 1:
            desktop.keys("Tab")  # past the link of the two energies
    for text in (name, "1 bowl", "40"):
        desktop.type(text)
        desktop.keys("Tab")
    desktop.keys("Return")


def make_food(desktop):
    enter_new_food(desktop, "Muesli")
    # No food server is known, so nothing is sent: one box tells that the food is saved.
    desktop.wait_for("the box that tells of it", lambda: boxes(desktop) == 1)
    assert not desktop.shows(ERROR), "a connection error for a server that isn't there"
    desktop.keys("Return")
    desktop.wait_for("the end of the box", lambda: boxes(desktop) == 0)
    assert not desktop.shows(ERROR), "a connection error behind the box"
    desktop.keys("Escape")
    desktop.no_window(NEW_FOOD)


def eat_a_portion(desktop):
    desktop.click(OWN_LIST)
    desktop.click(FIRST_OWN_ROW)
    desktop.keys("Return")  # the morning is the active part of a new day


def change_protein(desktop):
    desktop.click(FIRST_OWN_ROW)
    desktop.output("xdotool", "click", "--repeat", "2", "--delay", "60", "1")
    desktop.window(DETAILS)
    desktop.settle()
    desktop.keys("ctrl+Tab")
    desktop.click(EDIT)  # the first value is selected then, five before the protein
    desktop.keys("Tab", "Tab", "Tab", "Tab", "Tab")
    desktop.type("20")
    desktop.keys("Return")
    desktop.no_window(DETAILS)
    desktop.settle()


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        process = desktop.start(program, first_run=True)
        make_user_and_day(desktop)
        make_food(desktop)
        assert own_list(desktop.home.name) == [EATEN], own_list(desktop.home.name)
        eat_a_portion(desktop)
        assert saved_morning(desktop) == [EATEN]
        change_protein(desktop)
        assert own_list(desktop.home.name) == [CHANGED], own_list(desktop.home.name)
        eat_a_portion(desktop)
        assert saved_morning(desktop) == [EATEN, CHANGED], "the eaten portion has changed"
        end(desktop, process)
    print("a food of one's own: as it must be")


if __name__ == "__main__":
    main()
