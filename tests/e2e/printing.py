#!/usr/bin/env python3
"""A day and a travel form on paper, with the real mouse and a real printing system.

The printer is chosen in the settings, the day printed from the menu of the Print button, the form
from the main menu; both are read from the PDFs that come out. Then what can go wrong: paper that is
too small, a queue that refuses, a printing system that gives no answer and one that is gone. The
argument is the built program.
"""
import datetime
import re
import signal
import sys
from pathlib import Path

from desktop import SETTINGS_TITLE, Desktop
from one_day import drag_foods, end, make_user_and_day
from print_server import PrintServer, fonts_of, words_of

# Places on a screen of 1024 x 768 with the main window maximised.
SETTINGS_BUTTON, PRINT_BUTTON, PRINT_ARROW = (688, 60), (150, 60), (177, 66)
DROPPED_DAY = (230, 101)
FILE, FILE_PRINT, FORM_ENTRY = (20, 28), (47, 211), (300, 233)
# Within the settings.
PRINTERS, SAVE = (560, 344), (661, 587)
LIST_ROW = 22  # with nothing chosen the list opens over its box

QUEUES = ["A3", "A4", "A6", "Broken", "Letter", "Plain", "Rejecting", "Stopped"]
HALF_A_MILLIMETRE = 0.5 / 25.4 * 1440
# The sheet is 595 points wide, which is 11900 twips: the columns are fractions of 11200, the right
# edge stands at 11600.
COLUMN = 11200
DAY = [("Kelvora", 200, 600), ("05-03-04", 10700, 600), ("Personal", 200, 900),
       ("Anna", 0.4 * COLUMN, 900), ("1,80", None, 1300), ("80,50", None, 1500),
       ("Bagel", 400, 3200), ("piece", None, 3200), ("1", 0.55 * COLUMN, 3200),
       ("85", 0.58 * COLUMN, 3200), ("Baguette,", 400, 3500), ("Bread", 400, 3800),
       # 85 + 50 + 50 grams below three rows
       ("Total", 200, 4400), ("185", 0.58 * COLUMN, 4400), ("Printed", 200, 6850)]
FORM = [("Kelvora", 200, 600), ("Anna", 3000, 900), ("Reference", 3000, 1100), ("Day:", 7000, 900),
        ("Morning:", 200, 1700), ("______", 3000, 2000), ("_" * 59, 4000, 6200),
        ("Afternoon:", 200, 6750), ("Evening:", 200, 11700), ("______", 3000, 16100),
        ("Kelvora", 200, 16600)]


def expect_words(pdf, expected):
    words = words_of(pdf)
    for text, x, y in expected:
        assert any(word == text and (x is None or abs(left - x) <= HALF_A_MILLIMETRE)
                   and abs(top - y) <= HALF_A_MILLIMETRE for word, left, top in words), \
            f"{text} isn't at {x}, {y}: {words}"
    fonts = fonts_of(pdf)
    assert fonts == {"LiberationSans", "LiberationSans-Bold", "LiberationSans-BoldItalic"}, fonts


def expect_moment(pdf, days):
    """The date of printing as the system writes it at the left of the foot, the time at the right."""
    foot = {word: left for word, left, top in words_of(pdf)
            if abs(top - 6850) <= HALF_A_MILLIMETRE}
    assert any(day.strftime("%d-%m-%Y") in foot for day in days), foot
    times = [left for word, left in foot.items() if re.fullmatch(r"[0-2]\d:[0-5]\d", word)]
    assert len(times) == 1 and abs(times[0] - 11100) <= HALF_A_MILLIMETRE, foot


def boxes(desktop):
    """How many windows bear the program's name, the main window apart."""
    return len(desktop.output("xdotool", "search", "--onlyvisible", "--name",
                              "^Kelvora FOOD$").split()) - 1


def expect_box(desktop, answer):
    """Waits for a box and answers it; it shows only when the program has given up waiting."""
    desktop.wait_for("a box", lambda: boxes(desktop) == 1)
    desktop.settle()
    desktop.keys(answer)
    desktop.wait_for("the end of the box", lambda: boxes(desktop) == 0)


def choose_printer(desktop, name):
    desktop.click(SETTINGS_BUTTON)
    desktop.window(SETTINGS_TITLE)
    desktop.settle()
    desktop.click(PRINTERS)
    desktop.keys("Home")
    desktop.keys(*["Down"] * QUEUES.index(name), "Return")
    desktop.click(SAVE)
    desktop.no_window(SETTINGS_TITLE)


def choose_printer_by_mouse(desktop, name):
    desktop.click(SETTINGS_BUTTON)
    desktop.window(SETTINGS_TITLE)
    desktop.settle()
    desktop.click(PRINTERS)
    desktop.click((PRINTERS[0], PRINTERS[1] + QUEUES.index(name) * LIST_ROW))
    desktop.click(SAVE)
    desktop.no_window(SETTINGS_TITLE)


def print_day(desktop):
    desktop.click(PRINT_ARROW)
    desktop.click(DROPPED_DAY)


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop, PrintServer(desktop) as server:
        process = desktop.start(program, "nl_NL.UTF-8", first_run=True)
        make_user_and_day(desktop)
        drag_foods(desktop)
        desktop.keys("ctrl+s")

        print_day(desktop)
        expect_box(desktop, "Return")  # no printer has been chosen yet
        choose_printer_by_mouse(desktop, "A4")
        before = datetime.date.today()
        print_day(desktop)
        expect_words(server.wait_for("A4", 1), DAY)
        expect_moment(server.wait_for("A4", 1), [before, datetime.date.today()])
        desktop.click(FILE)
        desktop.click(FILE_PRINT)
        desktop.click(FORM_ENTRY)
        expect_words(server.wait_for("A4", 2), FORM)
        desktop.click(PRINT_BUTTON)
        expect_box(desktop, "Return")  # the button itself only points to its menu
        desktop.keys("ctrl+p")
        server.wait_for("A4", 3)
        print("on paper: as it must be")

        choose_printer(desktop, "A6")
        desktop.keys("ctrl+p")
        expect_box(desktop, "Escape")
        assert not server.printed("A6"), "printed without a yes"
        desktop.keys("ctrl+p")
        expect_box(desktop, "alt+y")
        server.wait_for("A6", 1)
        choose_printer(desktop, "Rejecting")
        desktop.keys("ctrl+p")
        expect_box(desktop, "Return")
        choose_printer(desktop, "A4")

        server.process.send_signal(signal.SIGSTOP)
        desktop.output("xdotool", "key", "ctrl+p")
        expect_box(desktop, "Return")
        server.process.send_signal(signal.SIGCONT)
        desktop.keys("ctrl+p")
        server.wait_for("A4", 4)
        server.process.terminate()
        server.process.wait(timeout=30)
        desktop.keys("ctrl+p")
        expect_box(desktop, "Return")
        end(desktop, process)
        print("what goes wrong: as it must be")


if __name__ == "__main__":
    main()
