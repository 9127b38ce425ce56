#!/usr/bin/env python3
"""Yesterday's breakfast once more, by keyboard alone; taking it back; the same on the clipboard.

A day of yesterday lies there. From the day that is open, breakfast comes over in fewer than ten
keystrokes, is saved, taken back and brought back. Then its rows are copied: another program reads a
table, and the evening gets the foods. The day is read from outside after each save. The argument is
the built program.
"""
import sys
from pathlib import Path

from day_file_reader import FIELD_END, LINE_END, pieces, read_day_file
from day_file_writer import food, write_day_file
from desktop import Desktop
from one_day import end, make_user_and_day

TAKE_OVER = "^Take over from another day$"
BREAD = food("Brown bread", "1 slice", 35, 343, 82)
COFFEE = food("Coffee with milk", "1 cup", 150, 60, 14)
SOUP = food("Tomato soup", "1 bowl", 250, 400, 95)
BREAKFAST = ["Brown bread", "Brown bread", "Coffee with milk"]


class Keys:
    """Presses keys and counts them."""

    def __init__(self, desktop):
        self.desktop, self.count = desktop, 0

    def press(self, *keys):
        self.count += len(keys)
        self.desktop.keys(*keys)


def saved(desktop, day):
    """The names in the three parts of the day, as saved now."""
    desktop.keys("ctrl+s")
    return [[piece.split(FIELD_END)[0].decode("cp1252") for piece in pieces(part, LINE_END)]
            for part in read_day_file(day)[3:]]


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        process = desktop.start(program, first_run=True)
        make_user_and_day(desktop)
        files = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users", "Anna", "Files")
        desktop.keys("ctrl+s")
        (day,) = files.glob("*.kvf")
        write_day_file(files / "yesterday.kvf", "04-03-04", [820, 1546, 369, 18, 12, 120, 30, 0.6, 80],
                       morning=[BREAD, COFFEE, BREAD], evening=[SOUP])

        keys = Keys(desktop)
        keys.press("ctrl+Tab")  # from the food lists to the morning
        keys.press("ctrl+t")
        desktop.window(TAKE_OVER)
        desktop.settle()
        keys.press("Return")
        desktop.no_window(TAKE_OVER)
        assert keys.count < 10, f"{keys.count} keystrokes"
        assert saved(desktop, day) == [BREAKFAST, [], []], saved(desktop, day)

        desktop.keys("ctrl+z")
        assert saved(desktop, day) == [[], [], []], "not taken back"
        desktop.keys("ctrl+shift+z")
        assert saved(desktop, day) == [BREAKFAST, [], []], "not brought back"

        desktop.keys("ctrl+a", "ctrl+c", "ctrl+Tab", "ctrl+Tab", "ctrl+v")
        assert saved(desktop, day) == [BREAKFAST, [], BREAKFAST], saved(desktop, day)
        end(desktop, process)


if __name__ == "__main__":
    main()
