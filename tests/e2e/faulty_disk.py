#!/usr/bin/env python3
"""Disks that fail, under the running program, and nothing of the user's is lost or said to be saved.

1. The favourites are away while the user is chosen and back when one is added: nothing is written
   over without a Yes.
2. A full disk, a small one of its own: the old favourites stay, ending asks, and with room again
   saving writes all.
3. A limit on the size of files, set on the running program: it lives on, says that the save failed,
   and saves when the limit is lifted.

The files are read from outside. The argument is the built program.
"""
import os
import resource
import struct
import subprocess
import sys
from pathlib import Path

from day_file_reader import LINE_END, pieces
from desktop import Desktop
from one_day import DAYS_FIRST, DEFAULT_SCREENS, USERS_FIRST, end, row
from users_and_days import header_of, record

PROGRAM, EXIT = "^Kelvora FOOD$", "^Exit Kelvora FOOD$"
PROFILE = ["Anna", "", "", "", "", "1.80", "Female", "42", "80.5", "75", "", "REF", "", "", "1",
           "8700", "2100", "40", "20", "2.4", "80", "250"] + [""] * 4


def favourite(number, remark=""):
    return f"Favourite {number}½1 piece½100½400½95½1½2½3½4½0.1½0½{remark}½"


def write_user(folder, favourites):
    for name in ("Profile", "Files", "Databases"):
        (folder / name).mkdir(parents=True)
    (folder / "Profile" / "Profile.usr").write_bytes(record(PROFILE))
    header = "".join(line + "¾" for line in header_of("Anna", "05-03-04", "80.5"))
    trend = "0½0½0½0½0½0½0½0½80.5½"
    (folder / "Files" / "day.kvf").write_bytes(record([trend, "", header, "", "", ""]))
    (folder / "Databases" / "Favorites.dat").write_bytes(
        record(["".join(line + "¾" for line in favourites)]))


def favourites_in(path):
    data = path.read_bytes()
    assert struct.unpack_from("<i", data)[0] == 1
    (length,) = struct.unpack_from("<H", data, 4)
    assert len(data) == 6 + length, "bytes behind the record"
    return [line.decode("cp1252") for line in pieces(data[6:], LINE_END)]


def boxes(desktop):
    """How many boxes with the program's own title stand before its main window."""
    found = desktop.output("xdotool", "search", "--onlyvisible", "--name", PROGRAM)
    return len(found.split()) - 1


def answer(desktop, *keys):
    """Answers one box; no other may follow it."""
    desktop.wait_for("a box", lambda: boxes(desktop) == 1)
    desktop.settle()
    desktop.keys(*keys)
    desktop.settle()


def no_box(desktop):
    desktop.settle()
    assert boxes(desktop) == 0, "a box that should not be there"


def open_day(desktop):
    desktop.keys("ctrl+o")
    desktop.window("^Open file$")
    desktop.click(USERS_FIRST)
    desktop.click(DAYS_FIRST)
    desktop.keys("Return")
    desktop.no_window("^Open file$")
    desktop.click(DEFAULT_SCREENS)


def add_first_food_to_favourites(desktop):
    desktop.click(row(0))
    desktop.keys("alt+o", "Up", "Return")


def ending_asks(desktop, process):
    """Ending asks about unsaved work, and Return, the default, is No."""
    desktop.keys("ctrl+q")
    desktop.window(EXIT)
    desktop.keys("Return")
    desktop.no_window(EXIT)
    assert process.poll() is None, "the program ended in spite of unsaved work"


def away_for_a_moment(program):
    with Desktop() as desktop:
        user = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users", "Anna")
        kept = [favourite(number) for number in range(30)]
        write_user(user, kept)
        path = user / "Databases" / "Favorites.dat"
        process = desktop.start(program, first_run=True)
        path.rename(path.with_suffix(".away"))
        open_day(desktop)
        path.with_suffix(".away").rename(path)
        before = path.read_bytes()
        add_first_food_to_favourites(desktop)
        answer(desktop, "Return")  # No
        no_box(desktop)
        assert path.read_bytes() == before, "thirty favourites were written over"
        ending_asks(desktop, process)
        desktop.keys("ctrl+s")
        answer(desktop, "Return")
        no_box(desktop)
        assert path.read_bytes() == before, "saving wrote over the favourites after a No"
        desktop.keys("ctrl+s")
        answer(desktop, "alt+y")
        no_box(desktop)
        assert len(favourites_in(path)) == 1, favourites_in(path)
        end(desktop, process)


def full_disk(program):
    with Desktop() as desktop:
        users = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users")
        users.mkdir(parents=True)
        mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=512k", "tmpfs", str(users)],
                                 check=False, stderr=subprocess.PIPE, text=True)
        if mounted.returncode != 0:
            print("NOT TRIED, mounting a small disk is not permitted:", mounted.stderr.strip())
            return
        try:
            full_disk_in(desktop, program, users)
        finally:
            desktop.end_processes()
            subprocess.run(["umount", str(users)], check=True)


def full_disk_in(desktop, program, users):
    # One page of the disk, so that one more favourite needs a second one.
    kept = [favourite(number) for number in range(60)]
    length = sum(len(line) + 1 for line in kept + [favourite(60)])
    kept.append(favourite(60, "x" * (4080 - length)))
    write_user(users / "Anna", kept)
    path = users / "Anna" / "Databases" / "Favorites.dat"
    before = path.read_bytes()
    assert 4096 - 100 < len(before) <= 4096, len(before)
    process = desktop.start(program, first_run=True)
    open_day(desktop)
    filler = users / "filler"
    with open(filler, "wb") as file:
        try:
            while True:
                os.write(file.fileno(), bytes(4096))
        except OSError:
            pass
    add_first_food_to_favourites(desktop)
    answer(desktop, "Return")  # the failure
    no_box(desktop)  # and nothing says that the food was added
    assert path.read_bytes() == before, "the old favourites are gone"
    ending_asks(desktop, process)
    filler.unlink()
    desktop.keys("ctrl+s")
    no_box(desktop)
    now = favourites_in(path)
    assert now[:-1] == kept and len(now) == 62, f"{len(now)} favourites"
    end(desktop, process)


def size_limit(program):
    with Desktop() as desktop:
        user = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users", "Anna")
        kept = [favourite(number) for number in range(42)]
        write_user(user, kept)
        path = user / "Databases" / "Favorites.dat"
        process = desktop.start(program, first_run=True)
        open_day(desktop)
        before = resource.prlimit(process.pid, resource.RLIMIT_FSIZE)
        resource.prlimit(process.pid, resource.RLIMIT_FSIZE, (100, before[1]))
        add_first_food_to_favourites(desktop)
        assert process.poll() is None, f"the limit ended the program: {process.returncode}"
        answer(desktop, "Return")
        no_box(desktop)
        ending_asks(desktop, process)
        resource.prlimit(process.pid, resource.RLIMIT_FSIZE, before)
        desktop.keys("ctrl+s")
        no_box(desktop)
        now = favourites_in(path)
        assert now[:-1] == kept and len(now) == 43, f"{len(now)} favourites"
        end(desktop, process)


def main():
    program = Path(sys.argv[1]).resolve()
    away_for_a_moment(program)
    full_disk(program)
    size_limit(program)
    print("disks that fail: as it must be")


if __name__ == "__main__":
    main()
