#!/usr/bin/env python3
"""Two people whose names no file of this program can hold, typed and pasted as they would.

The first types a name with a letter that is left out, sees the hint, and begins a day. The second
pastes a name of which nothing can be held, sees which characters were left out, is not let through
without a name, and takes another one. From outside: each has a folder of their own, no name on the
disk has a "?" in it, and the names in the profiles are what the boxes showed. The arguments are the
built program and the program that holds a text on the clipboard; with a third, a folder, the pictures
of the hints are kept there.
"""
import struct
import subprocess
import sys
from pathlib import Path

from day_file_reader import LINE_END, pieces, read_day_file
from desktop import Desktop, region

NEW_DAY = "^Start a new day$"
# The group of the person in the dialog for a new day, in whose place the hint shows.
PERSON, BOX_HEIGHT = (370, 200, 860, 400), 20
# With a user in the list: the button that begins another one, and the box of the name.
NEW_USER, NAME = (174, 518), (600, 257)


def strings_of(path):
    """The strings of the one record of a file."""
    data = path.read_bytes()
    at, strings = 4, []
    while at < len(data):
        (length,) = struct.unpack_from("<H", data, at)
        strings.append(data[at + 2:at + 2 + length])
        at += 2 + length
    return strings


def fill_in_the_rest(desktop):
    """All that a new day needs behind the name."""
    desktop.keys("Tab", "Down", "Down", "Tab")
    for value in ("42", "1.80", "75", "05", "03", "04"):
        desktop.type(value)
        desktop.keys("Tab")
    desktop.keys("Tab")
    desktop.type("80.5")


def begin_day(desktop, users, expected):
    """Starts the day and saves it; those users and no others have folders then."""
    desktop.keys("Return")
    desktop.no_window(NEW_DAY)
    desktop.settle()
    desktop.keys("ctrl+s")
    for name in expected:
        profile = strings_of(users / name / "Profile" / "Profile.usr")
        assert profile[0] == name.encode("cp1252"), profile
        days = list((users / name / "Files").glob("*.kvf"))
        assert len(days) == 1, days
        header = read_day_file(days[0])[2]
        assert pieces(header, LINE_END)[0] == name.encode("cp1252"), header
    check_folders(users, expected)


def check_folders(users, expected):
    found = sorted(path.name for path in users.iterdir())
    assert found == sorted(expected), found


def new_day(desktop):
    desktop.keys("ctrl+n")
    desktop.window(NEW_DAY)
    desktop.settle()


def expect_hint(desktop, enter, picture):
    """Gives a command that enters something; much more than the box of the name itself has changed
    then. The hint doesn't stand for ever, so nothing waits for the screen to stand still before."""
    before = region(desktop.picture(), *PERSON)
    desktop.output("xdotool", *enter)

    def much_has_changed():
        after = region(desktop.picture(), *PERSON)
        return sum(old != new for old, new in zip(before, after)) > 1.5 * BOX_HEIGHT

    desktop.wait_for("a hint beside the box", much_has_changed)
    if picture is not None:
        subprocess.run(["import", "-window", "root", str(picture)], env=desktop.environment,
                       check=True)
    desktop.settle()


def main():
    program, clipboard = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    pictures = Path(sys.argv[3]) if len(sys.argv) > 3 else None
    with Desktop() as desktop:
        desktop.layout("pl")
        desktop.start(program, first_run=True)
        users = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users")

        new_day(desktop)
        expect_hint(desktop, ["type", "--delay", "40", "Łukasz"], pictures and pictures / "typed.png")
        fill_in_the_rest(desktop)
        begin_day(desktop, users, ["ukasz"])

        new_day(desktop)
        desktop.click(NEW_USER)
        owner = subprocess.Popen([clipboard, "Ольга"], env=desktop.environment, text=True,
                                 stdout=subprocess.PIPE)
        desktop.processes.append(owner)
        assert owner.stdout.readline() == "ready\n"
        expect_hint(desktop, ["key", "ctrl+v"], pictures and pictures / "pasted.png")
        fill_in_the_rest(desktop)
        desktop.keys("Return")
        # Without a name nobody is let through; a box says so.
        desktop.keys("Return")
        assert desktop.shows(NEW_DAY), "a day has begun without a name"
        check_folders(users, ["ukasz"])
        desktop.click(NAME)
        desktop.type("Olga")
        begin_day(desktop, users, ["Olga", "ukasz"])


if __name__ == "__main__":
    main()
