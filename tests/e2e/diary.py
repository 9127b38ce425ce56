#!/usr/bin/env python3
"""The diary with the real program and keyboard.

Makes a day, writes an entry of two lines into its diary, saves the entry and the day, and reads the
file from outside. Then ends the program, starts it again, opens the day, and finds the entry as it
was; types more, and goes back from the end of the program to find it still there. The argument is
the built program.
"""
import sys
from pathlib import Path

from day_file_reader import read_day_file
from desktop import Desktop
from one_day import end, make_user_and_day, open_first_day

# Places on a screen of 1024 x 768 with the main window maximised.
DIARY_BUTTON = (389, 65)


def notes_of(day):
    return read_day_file(day)[1]


def open_diary(desktop):
    """The window opens with the text box in focus."""
    desktop.click(DIARY_BUTTON)


def write_and_save(desktop):
    open_diary(desktop)
    desktop.type("Slept well; walked 5 km.")
    desktop.keys("Return")
    desktop.type("Cafe 1/2 closed")
    # The button of the window is the only other stop of the Tab key.
    desktop.keys("shift+Tab", "space")


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        user = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users", "Anna")
        process = desktop.start(program, first_run=True)
        make_user_and_day(desktop)
        write_and_save(desktop)
        desktop.keys("ctrl+s")
        (day,) = (user / "Files").glob("*.kvf")
        expected = b"Slept well; walked 5 km.\r\nCafe 1/2 closed"
        assert notes_of(day) == expected, notes_of(day)
        end(desktop, process)

        process = desktop.start(program)
        open_first_day(desktop)
        open_diary(desktop)
        desktop.keys("ctrl+End")
        desktop.type(" early")
        # Saving the day asks: Escape goes back, and nothing is written.
        desktop.keys("ctrl+s")
        desktop.keys("Escape")
        assert notes_of(day) == expected, notes_of(day)
        # So does ending the program; then the text is saved after all.
        desktop.keys("ctrl+q")
        desktop.keys("Escape")
        assert process.poll() is None, "the program ended with typed text"
        desktop.keys("shift+Tab", "space")
        desktop.keys("ctrl+s")
        assert notes_of(day) == expected + b" early", notes_of(day)
        end(desktop, process)
    print("the diary: as it must be")


if __name__ == "__main__":
    main()
