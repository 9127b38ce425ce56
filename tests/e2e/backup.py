#!/usr/bin/env python3
"""A backup made on one computer and brought back on another, with the real mouse and keyboard.

Makes a user and a day and a backup of it through the menu, and lets Python's own reader of zip files
test and list what was made: the names and the bytes of the user's folder. Then another home, as on a
computer where the program was never started: the backup is brought back through the menu, the folder
is the same byte for byte, and the day opens and looks as it did. The argument is the built program.
"""
import shutil
import sys
import tempfile
import zipfile
from pathlib import Path

from desktop import Desktop, region
from one_day import (CONSUMPTION_WINDOWS, DEFAULT_SCREENS, drag_foods, end, make_user_and_day,
                     open_first_day)

# Entries of Extra, counted from its end.
BACKUP, RESTORE = 3, 2
UTF8_NAME = 0x800


def users_of(desktop):
    return Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users")


def files_below(folder):
    return {path.relative_to(folder).as_posix(): path.read_bytes()
            for path in folder.rglob("*") if path.is_file()}


def give_extra(desktop, entry, menus_right):
    desktop.keys("F10", "Down", *["Right"] * menus_right, *["Up"] * entry, "Return")


def main():
    program = Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory() as stick:
        backup = Path(stick, "Kelvora.zip")
        with Desktop() as desktop:
            process = desktop.start(program, first_run=True)
            make_user_and_day(desktop)
            drag_foods(desktop)
            desktop.keys("ctrl+s")
            screen = region(desktop.picture(), *CONSUMPTION_WINDOWS)
            # With a day open all menus can be opened; Extra is the sixth.
            give_extra(desktop, BACKUP, 5)
            desktop.window("^Back up$")
            desktop.keys("Return")
            desktop.window("^Back up to$")
            desktop.type(str(backup))
            desktop.keys("Return")
            desktop.wait_for("the backup", backup.is_file)
            desktop.settle()
            desktop.keys("Return")  # the box that says so
            desktop.no_window("^Back up$")
            assert [path.name for path in Path(stick).iterdir()] == [backup.name]
            files = files_below(users_of(desktop))
            end(desktop, process)
        with zipfile.ZipFile(backup) as archive:
            assert archive.testzip() is None, archive.testzip()
            assert {info.filename: archive.read(info) for info in archive.infolist()} == files
            assert all(info.flag_bits & UTF8_NAME or info.filename.isascii()
                       for info in archive.infolist())
        assert backup.stat().st_mode & 0o777 == 0o600

        with Desktop() as desktop:
            carried = Path(desktop.home.name, "Kelvora.zip")
            shutil.copy(backup, carried)
            process = desktop.start(program, first_run=True)
            assert not files_below(users_of(desktop))
            give_extra(desktop, RESTORE, 1)
            desktop.window("^Backup to bring back$")
            desktop.type(str(carried))
            desktop.keys("Return")
            desktop.window("^Restore$")
            desktop.settle()
            desktop.keys("Return")
            desktop.wait_for("the files", lambda: files_below(users_of(desktop)) == files)
            desktop.settle()
            desktop.keys("Return")
            desktop.no_window("^Restore$")
            open_first_day(desktop)
            desktop.click(DEFAULT_SCREENS)
            assert region(desktop.picture(), *CONSUMPTION_WINDOWS) == screen, "the day looks different"
            assert files_below(users_of(desktop)) == files, "opening changed a file"
            end(desktop, process)
    print(f"{len(files)} files carried from one home to another: as it must be")


if __name__ == "__main__":
    main()
