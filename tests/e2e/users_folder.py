#!/usr/bin/env python3
"""Another users folder while a day is open, as a person chooses it in the settings.

The day goes on to be saved in the new folder, where the user's folders, profile and lists have come
to lie; the old folder keeps what it had. Back again, the older copy of the day that lies there is
asked about; the answer that loses nothing is the default, and keeps it.

    users_folder.py <program>
"""
import sys
from pathlib import Path

from desktop import SETTINGS_TITLE, Desktop
from one_day import drag_foods, end, make_user_and_day
from start import settings_of

OTHER_FOLDER, FOLDER = 16, 18
MAIN = "^Kelvora FOOD$"


def files_below(folder):
    return {str(path.relative_to(folder)): path.read_bytes()
            for path in sorted(folder.rglob("*")) if path.is_file()}


def open_settings(desktop):
    # Of the menu of files the fourth from below; the last is the end.
    desktop.keys("alt+f", "Up", "Up", "Up", "Up", "Return")
    desktop.window(SETTINGS_TITLE)
    desktop.settle()
    # Past two ticks, the languages with their button and the printers to the tick of the folder.
    desktop.keys("Tab", "Tab", "Tab", "Tab", "Tab", "space")


def choose_folder(desktop, folder):
    open_settings(desktop)
    desktop.keys("Tab", "Tab", "space")  # the button behind the folder
    desktop.type(str(folder))
    desktop.keys("Return")
    desktop.window(SETTINGS_TITLE)
    desktop.keys("Return")  # saves


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        home = Path(desktop.home.name)
        old, new = home / "Documents" / "Kelvora FOOD" / "My Users", home / "stick"
        new.mkdir()
        process = desktop.start(program, first_run=True)
        make_user_and_day(desktop)
        desktop.keys("ctrl+s")
        before = files_below(old)
        assert len(before) >= 2, before.keys()

        choose_folder(desktop, new)
        desktop.keys("Return")  # the line that says where the data is from now on
        desktop.no_window(SETTINGS_TITLE)
        settings = settings_of(home)
        assert settings[OTHER_FOLDER] == "1" and settings[FOLDER] == f"{new}/", settings[FOLDER]
        there = files_below(new)
        assert {"Anna/Profile/Profile.usr", "Anna/Databases/Custom.dat",
                "Anna/Databases/Favorites.dat"} <= set(there), there.keys()
        assert there["Anna/Profile/Profile.usr"] == before["Anna/Profile/Profile.usr"]

        drag_foods(desktop)
        desktop.keys("ctrl+s")
        (day,) = (new / "Anna" / "Files").glob("*.kvf")
        assert files_below(old) == before, "the old folder has changed"
        (old_day,) = (old / "Anna" / "Files").glob("*.kvf")
        assert day.name == old_day.name and day.read_bytes() != old_day.read_bytes()

        # Back: the day of that name in the old folder is an older one.
        open_settings(desktop)
        desktop.keys("Return")
        desktop.keys("Escape")  # the question, answered by what loses nothing
        desktop.keys("Return")  # the line
        desktop.no_window(SETTINGS_TITLE)
        assert settings_of(home)[OTHER_FOLDER] == "0"
        assert files_below(old).items() >= before.items(), "something was written over"
        desktop.keys("ctrl+s")
        desktop.wait_for("the day that came along",
                         lambda: day.read_bytes() in files_below(old).values())
        assert files_below(old).items() >= before.items(), "the older day was written over"
        end(desktop, process)
    print("another users folder: the open day follows, and nothing is written over")


if __name__ == "__main__":
    main()
