#!/usr/bin/env python3
"""Two users and their days, as a person looks through them.

Three days of each lie on disk, written here and not by the program. In the program: both users are
browsed, a day is deleted (after a No, which deletes nothing), a day is opened by a double click, the
user is switched (after a No as well), a day that is open is deleted and saved again, and a user is
deleted with all files (after a No). After each step the disk is looked at from outside: every file
that the step is about, byte by byte, and that no other file has changed. The argument is the built
program.
"""
import csv
import struct
import sys
from pathlib import Path

from day_file_reader import LINE_END, pieces, read_day_file
from desktop import Desktop, region
from one_day import DAYS_FIRST, FOODS, MORNING, USERS_FIRST, end, line_of, row

# Places on a screen of 1024 x 768.
BROWSED_DAYS = (300, 130, 880, 400)
LIST_ROW = 20
BERT_IN_NEW_DAY, DELETE_USER = (180, 266), (204, 522)
BESIDE_THE_ROWS = (400, 380)

SWITCH_TITLE = r"^Switch to another user\.$"
DELETE_TITLE = r"^Delete selected file\?$"

REMOVE_TITLE = r"^Remove Bert\?$"

# Dates and weights, by file name; the names are in another order than the dates.
DAYS = {
    "Anna": {"c.kvf": ("31-12-03", "81.5"), "a.kvf": ("05-03-04", "80.5"),
             "b.kvf": ("06-03-04", "80")},
    "Bert": {"x.kvf": ("01-02-04", "92"), "z.kvf": ("02-02-04", "91.5"),
             "y.kvf": ("01-03-04", "91")},
}


def record(strings):
    """A file of one record."""
    encoded = [text.encode("cp1252") for text in strings]
    return struct.pack("<i", 1) + b"".join(struct.pack("<H", len(b)) + b for b in encoded)


def header_of(user, date, weight):
    return [user, "", "", "", "", "1.80", weight, "Female", "42", date, "75", "Friday", "", "", ""]


def write_users(folder):
    for user, days in DAYS.items():
        for name in ("Profile", "Files", "Databases"):
            (folder / user / name).mkdir(parents=True)
        profile = [user, "", "", "", "", "1.80", "Female", "42", "80.5", "75", "", "REF-" + user,
                   "", "", "1", "8700", "2100", "40", "20", "2.4", "80", "250"] + [""] * 4
        (folder / user / "Profile" / "Profile.usr").write_bytes(record(profile))
        for name, (date, weight) in days.items():
            header = "".join(line + "¾" for line in header_of(user, date, weight))
            trend = f"100½850½203½1½2½30½5½0.5½{weight}½"
            (folder / user / "Files" / name).write_bytes(
                record([trend, "", header, "", "", ""]))


class Disk:
    """What lies in the users folder, and what it should be."""

    def __init__(self, folder):
        self.folder = folder
        self.expected = self.read()

    def read(self):
        return {path.relative_to(self.folder): path.read_bytes()
                for path in self.folder.rglob("*") if path.is_file()}

    def path(self, user, name):
        return Path(user, "Files", name)

    def check(self):
        """Nothing is there but what should be, byte by byte."""
        found = self.read()
        assert found.keys() == self.expected.keys(), \
            f"{sorted(map(str, found))} is not {sorted(map(str, self.expected))}"
        changed = [str(path) for path in found if found[path] != self.expected[path]]
        assert not changed, f"changed: {changed}"

    def check_deleted(self, user, name):
        del self.expected[self.path(user, name)]
        self.check()

    def check_user_deleted(self, user):
        self.expected = {path: data for path, data in self.expected.items()
                         if path.parts[0] != user}
        self.check()
        assert not (self.folder / user).exists(), f"the folder of {user} is still there"

    def check_saved(self, user, name, food):
        """That day has its old header and one food in the morning; nothing else has changed."""
        path = self.path(user, name)
        _, notes, header, morning, afternoon, evening = read_day_file(self.folder / path)
        expected = [line.encode() for line in header_of(user, *DAYS[user][name])]
        assert pieces(header, LINE_END) == expected, header
        assert pieces(morning, LINE_END) == [line_of(food)], morning
        assert (notes, afternoon, evening) == (b"", b"", b"")
        self.expected[path] = (self.folder / path).read_bytes()
        self.check()


def click(desktop, place, button="1", times=1):
    desktop.output("xdotool", "mousemove", str(place[0]), str(place[1]),
                   "click", "--repeat", str(times), "--delay", "60", button)
    desktop.settle()


def user_row(index):
    return USERS_FIRST[0], USERS_FIRST[1] + index * LIST_ROW


def day_row(index):
    return DAYS_FIRST[0], DAYS_FIRST[1] + index * LIST_ROW


def shown_days(desktop):
    return region(desktop.picture(), *BROWSED_DAYS)


def browse(desktop):
    desktop.keys("ctrl+o")
    desktop.window("^Open file$")
    desktop.settle()


def leave(desktop):
    desktop.keys("Escape")
    desktop.no_window("^Open file$")


def answer(desktop, title, key):
    desktop.window(title)
    desktop.settle()
    desktop.keys(key)
    desktop.no_window(title)
    desktop.settle()


def add_food_and_save(desktop):
    desktop.click(row(0))
    desktop.drag(row(0), MORNING)
    desktop.keys("ctrl+s")


# The steps, each from the main window back to it.

def browse_both_users(desktop, disk, _):
    browse(desktop)
    nobody = shown_days(desktop)
    click(desktop, user_row(0))
    anna = shown_days(desktop)
    click(desktop, user_row(1))
    bert = shown_days(desktop)
    assert nobody != anna and anna != bert and bert != nobody, "the lists look alike"
    click(desktop, user_row(0))
    assert shown_days(desktop) == anna, "the list of the same user looks different"
    click(desktop, user_row(1))
    leave(desktop)
    disk.check()


def delete_a_day(desktop, disk, _):
    browse(desktop)
    before = shown_days(desktop)
    desktop.keys("Delete")  # no row is selected
    click(desktop, BESIDE_THE_ROWS, button="3")
    assert shown_days(desktop) == before, "something happened without a row"
    # The menu of the second row, its second entry; Return takes the default button.
    click(desktop, day_row(1), button="3")
    desktop.keys("Down", "Down", "Return")
    answer(desktop, DELETE_TITLE, "Return")
    disk.check()
    # With the third row selected too the first selected one is meant.
    desktop.click(day_row(2), "ctrl")
    desktop.keys("Delete")
    answer(desktop, DELETE_TITLE, "alt+y")
    disk.check_deleted("Bert", "z.kvf")
    leave(desktop)


def open_a_day(desktop, disk, food):
    browse(desktop)
    click(desktop, day_row(1), times=2)
    desktop.no_window("^Open file$")
    desktop.settle()
    disk.check()
    add_food_and_save(desktop)
    disk.check_saved("Bert", "y.kvf", food)


def switch_the_user(desktop, disk, _):
    browse(desktop)
    click(desktop, user_row(1))  # the same user: only the focus goes there
    bert = shown_days(desktop)
    click(desktop, user_row(0))
    answer(desktop, SWITCH_TITLE, "Return")
    assert shown_days(desktop) == bert, "a No switched the user"
    click(desktop, user_row(0))
    answer(desktop, SWITCH_TITLE, "alt+y")
    assert shown_days(desktop) != bert, "a Yes did not switch the user"
    leave(desktop)
    disk.check()


def delete_the_open_day_and_save_it_again(desktop, disk, food):
    # The keys go to the newest day at once.
    browse(desktop)
    desktop.keys("Down", "Return")
    desktop.no_window("^Open file$")
    desktop.settle()
    browse(desktop)
    desktop.keys("Down", "Delete")
    answer(desktop, DELETE_TITLE, "alt+y")
    disk.check_deleted("Anna", "b.kvf")
    leave(desktop)
    add_food_and_save(desktop)
    disk.check_saved("Anna", "b.kvf", food)


def delete_a_user(desktop, disk, _):
    desktop.keys("ctrl+n")
    desktop.window("^Start a new day$")
    desktop.settle()
    click(desktop, BERT_IN_NEW_DAY)
    click(desktop, DELETE_USER)
    answer(desktop, REMOVE_TITLE, "Return")  # the default button is No
    disk.check()
    click(desktop, DELETE_USER)
    answer(desktop, REMOVE_TITLE, "alt+y")
    disk.check_user_deleted("Bert")
    # Bert was the current user of the dialog; nothing but Anna is left to choose.
    desktop.keys("Escape")
    desktop.no_window("^Start a new day$")
    disk.check()


STEPS = [
    browse_both_users,
    delete_a_day,
    open_a_day,
    switch_the_user,
    delete_the_open_day_and_save_it_again,
    delete_a_user,
]


def main():
    program = Path(sys.argv[1]).resolve()
    with open(FOODS, encoding="utf-8", newline="") as table:
        food = next(csv.DictReader(table, delimiter="\t", quoting=csv.QUOTE_NONE))
    with Desktop() as desktop:
        users = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users")
        write_users(users)
        disk = Disk(users)
        process = desktop.start(program, first_run=True)
        for step in STEPS:
            step(desktop, disk, food)
        end(desktop, process)
        disk.check()
    print("users and days from end to end: as they must be")


if __name__ == "__main__":
    main()
