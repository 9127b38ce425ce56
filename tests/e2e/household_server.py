#!/usr/bin/env python3
"""The desktop program with the food server that comes with it.

Searches for a food of the server in the internet view and drags it into the morning; offers a new food,
which the server keeps; accepts it in the review; and finds it with the next search. What was kept is
read from outside. The arguments are the built program and the built server.
"""
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "food_server"))

from desktop import Desktop
from internet import FIRST_FOUND, INTERNET_LIST, TERM, expect_box
from one_day import MORNING, end, make_user_and_day
from own_food import ERROR, NEW_FOOD, enter_new_food, saved_morning
from running_server import FoodServer
from with_servers import ProgramWithServers

TABLE = ("name\tunit\tgram\tkj\tkcal\tprotein\tfat_u\tfat_s\tcarbs\tsodium\tgroup\tremark\n"
         "Apple pie\t1 piece\t100\t1050\t251\t2.5\t6\t4.5\t34\t0.15\tCakes\tappeltaart, vlaai\n"
         "Crème brûlée\t1 bowl\t110\t1427\t341\t4.4\t8.8\t17.6\t20.9\t0.055\tDairy\tcrème brûlée\n")
PIE = "Apple pie½1 piece½100½1050½251½2.5½6½4.5½34½0.15½Cakes½appeltaart, vlaai½"
# Of 100 grams, as on the package.
SUBMITTED = "Mueslimix½100 gram½100½1500½357½10.00½5.50½2.50½60.00½0.200½0½½"


def search(desktop, server, term, searches):
    desktop.click(TERM)
    desktop.type(term)
    desktop.keys("Return")
    desktop.wait_for("the search", lambda: server.metric(
        'requests_total{kind="search",status="200"}') >= searches)
    desktop.settle()


def drag_first(desktop):
    desktop.click(FIRST_FOUND)
    desktop.drag(FIRST_FOUND, MORNING)


def expect_morning(desktop, foods):
    morning = saved_morning(desktop)
    assert morning == foods, morning


def offer(desktop, server):
    enter_new_food(desktop, "Mueslimix")
    desktop.wait_for("the submission", lambda: server.review("list"))
    expect_box(desktop)
    assert not desktop.shows(ERROR), "an error for a food that was taken"
    desktop.keys("Escape")
    desktop.no_window(NEW_FOOD)


def main():
    program, server_program = (Path(argument).resolve() for argument in sys.argv[1:3])
    with tempfile.TemporaryDirectory() as folder:
        foods = Path(folder, "foods")
        foods.mkdir()
        (foods / "Test.tsv").write_text(TABLE, encoding="utf-8")
        with (FoodServer(server_program, folder, f"sqlite:{folder}/foods.db", [foods]) as server,
              Desktop() as desktop):
            copy = ProgramWithServers(program, folder)
            copy.know(dutch=f"http://127.0.0.1:{server.port}")
            desktop.environment["USERNAME"] = "anna"
            process = desktop.start(copy.program, first_run=True)
            make_user_and_day(desktop)
            desktop.click(INTERNET_LIST)
            search(desktop, server, "VLAAI", 1)
            drag_first(desktop)
            expect_morning(desktop, [PIE])
            offer(desktop, server)
            number, _, _, _, sender, name, *_ = server.review("list").rstrip("\n").split("\t")
            assert (sender, name) == ("anna", "Mueslimix"), (sender, name)
            server.review("accept", number)
            search(desktop, server, "mueslimix", 2)
            drag_first(desktop)
            expect_morning(desktop, [PIE, SUBMITTED])
            end(desktop, process)
    print("the food server, as the desktop program asks it: as it must be")


if __name__ == "__main__":
    main()
