#!/usr/bin/env python3
"""The frame by keyboard, with real keys, as a screen reader follows it.

F6 goes from part to part, Ctrl+Tab from window to window, Alt with a digit to a food list or an
arrangement, arrow keys from button to button; Tab leads round. A food is added and its new total
heard. However often a window is opened, a screen reader sees what it saw. The argument is the built
program.
"""
import sys
from pathlib import Path

from assistive import Assistive, with_debians_python
from desktop import Desktop
from one_day import end, make_user_and_day

OPENINGS = 20


def the_frame(desktop, reader):
    """Without a day: the toolbar, the arrangements and the status bar."""
    reader.expect_focus("push button", "New")
    desktop.keys("Right")
    reader.expect_focus("push button", "Open")
    desktop.keys("Left", "Left")
    reader.expect_focus("push button", "Help")
    desktop.keys("Home", "Tab")
    reader.expect_focus("push button", "Default screen values")
    desktop.keys("Tab")
    reader.expect_focus("status bar", "Status bar")
    desktop.keys("Tab")
    reader.expect_focus("push button", "New")
    desktop.keys("shift+Tab")
    reader.expect_focus("status bar", "Status bar")


def the_windows(desktop, reader):
    desktop.keys("alt+1")
    search = reader.focus()
    assert search[0] == "text" and search[1].startswith("Search food item"), search
    desktop.keys("alt+2")
    reader.expect_focus("table", "My own list")
    desktop.keys("alt+3")
    reader.expect_focus("table", "Favourites list")
    desktop.keys("alt+4")
    assert reader.focus()[1].startswith("Search food item on internet"), reader.focus()
    desktop.keys("alt+1", "ctrl+Tab")
    reader.expect_focus("table", "Morning consumptions")
    desktop.keys("ctrl+Tab")
    reader.expect_focus("table", "Afternoon consumptions")
    desktop.keys("ctrl+shift+Tab", "ctrl+shift+Tab")
    assert reader.focus() == search, reader.focus()
    desktop.keys("ctrl+Tab", "shift+Tab", "Right")
    reader.expect_focus("push button", "Selected food item -1")
    desktop.keys("shift+Tab")
    reader.expect_focus("check box", "Nutrition count")
    desktop.keys("shift+Tab")
    reader.expect_focus("push button", "New")
    desktop.keys("F6")
    reader.expect_focus("table", "Morning consumptions")


def the_arrangements(desktop, reader):
    def frames():
        return {name for role, name in reader.tree() if role == "frame"} - {"Kelvora FOOD"}

    before = frames()
    desktop.keys("alt+8")
    small = frames()
    assert len(small) == len(before) + 1, (before, small)
    desktop.keys("alt+9")
    assert not frames(), frames()
    desktop.keys("alt+7")
    assert frames() == before, (before, frames())


def a_heard_total(desktop, reader):
    """Enter adds a food to the part of the day that was active last."""
    desktop.keys("alt+1")
    desktop.type("bread")
    desktop.keys("Tab", "Down")
    heard = reader.hear("object:property-change:accessible-name",
                        lambda: desktop.keys("Return"))
    totals = [name for name in heard if " contains: " in name]
    assert totals and not totals[-1].endswith(" 0 Kcal"), heard


def a_window_often(desktop, reader):
    """The dialog with the most boxes; the tests of the windows do this with all of them."""
    title, first = "^Start a new day$", None
    for number in range(1, OPENINGS + 1):
        desktop.output("xdotool", "key", "ctrl+n")
        desktop.window(title)
        if first is None:
            desktop.settle()
            first = reader.tree()
        try:
            desktop.wait_for("the same tree", lambda: reader.tree() == first, seconds=15)
        except AssertionError:
            other = [pair for pair in zip(first, reader.tree()) if pair[0] != pair[1]]
            raise AssertionError(f"time {number}: {other[:3]}") from None
        desktop.output("xdotool", "key", "Escape")
        desktop.no_window(title)


def main():
    with_debians_python()
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        reader = Assistive(desktop)
        process = desktop.start(program, first_run=True)
        the_frame(desktop, reader)
        a_window_often(desktop, reader)
        make_user_and_day(desktop)
        around = reader.path_of_focus()
        assert "Food items" in around, f"a day opens with the focus in {around}"
        the_windows(desktop, reader)
        the_arrangements(desktop, reader)
        a_heard_total(desktop, reader)
        desktop.keys("ctrl+s")
        end(desktop, process)
    print("the frame by keyboard: as it must be")


if __name__ == "__main__":
    main()
