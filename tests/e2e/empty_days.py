#!/usr/bin/env python3
"""Day files with nothing in them, among the days of two users.

Bert keeps a diary. Anna has a day and, in front of it in the list, a file that holds no day: first
one that counts no record, then an empty one, then one of three bytes. In the program Bert's day is
opened, then Anna's file, a food is added and the day saved. After each step the disk is looked at
from outside: Anna's file holds that food and nothing of Bert's or of her other day, and no other
file has changed. The argument is the built program.
"""
import csv
import sys
from pathlib import Path

from day_file_reader import LINE_END, pieces, read_day_file
from desktop import Desktop
from one_day import FOODS, end, line_of
from users_and_days import (SWITCH_TITLE, Disk, add_food_and_save, answer, browse, click, day_row,
                            header_of, leave, record, shown_days, user_row)

DIARY = "What Bert wrote about his day."
EMPTY = Path("Anna", "Files", "a.kvf")


def block(lines):
    return "".join(line + "¾" for line in lines)


def write_users(folder):
    for user in ("Anna", "Bert"):
        for name in ("Profile", "Files", "Databases"):
            (folder / user / name).mkdir(parents=True)
        profile = [user, "", "", "", "", "1.80", "Female", "42", "80.5", "75", "", "REF-" + user,
                   "", "", "1", "8700", "2100", "40", "20", "2.4", "80", "250"] + [""] * 4
        (folder / user / "Profile" / "Profile.usr").write_bytes(record(profile))
    trend = "100½850½203½1½2½30½5½0.5½80.5½"
    (folder / "Anna" / "Files" / "c.kvf").write_bytes(
        record([trend, "Anna's own", block(header_of("Anna", "05-03-04", "80.5")), "", "", ""]))
    (folder / "Bert" / "Files" / "x.kvf").write_bytes(
        record([trend, DIARY, block(header_of("Bert", "06-03-04", "91")), "", "", ""]))


def open_berts_day(desktop, from_annas_day):
    browse(desktop)
    click(desktop, user_row(1))
    if from_annas_day:
        answer(desktop, SWITCH_TITLE, "alt+y")
    click(desktop, day_row(0), times=2)
    desktop.no_window("^Open file$")
    desktop.settle()


def browse_annas_days(desktop):
    browse(desktop)
    click(desktop, user_row(0))
    answer(desktop, SWITCH_TITLE, "alt+y")


def check_saved(disk, food):
    """Anna's file has one food in the morning; nothing else on the disk has changed."""
    _, notes, header, morning, afternoon, evening = read_day_file(disk.folder / EMPTY)
    assert pieces(morning, LINE_END) == [line_of(food)], morning
    assert (notes, header, afternoon, evening) == (b"", b"", b"", b""), (notes, header)
    disk.expected[EMPTY] = (disk.folder / EMPTY).read_bytes()
    disk.check()


def lay(disk, data):
    (disk.folder / EMPTY).write_bytes(data)
    disk.expected[EMPTY] = data


def a_file_without_a_record_opens_no_day(desktop, disk):
    lay(disk, b"\0\0\0\0")
    open_berts_day(desktop, from_annas_day=False)
    browse_annas_days(desktop)
    before = shown_days(desktop)
    # No day of Anna's has been read yet, so there is nothing to open: a box says so.
    click(desktop, day_row(0), times=2)
    assert shown_days(desktop) != before, "no box stands over the list"
    desktop.keys("Return")
    leave(desktop)
    desktop.keys("ctrl+s")
    disk.check()


def a_file_that_is_cut_short_opens_empty(desktop, disk, food, data, from_annas_day):
    lay(disk, data)
    open_berts_day(desktop, from_annas_day)
    browse_annas_days(desktop)
    click(desktop, day_row(0), times=2)
    desktop.no_window("^Open file$")
    desktop.settle()
    disk.check()
    add_food_and_save(desktop)
    check_saved(disk, food)


def main():
    program = Path(sys.argv[1]).resolve()
    with open(FOODS, encoding="utf-8", newline="") as table:
        food = next(csv.DictReader(table, delimiter="\t", quoting=csv.QUOTE_NONE))
    with Desktop() as desktop:
        users = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users")
        write_users(users)
        disk = Disk(users)
        process = desktop.start(program, first_run=True)
        a_file_without_a_record_opens_no_day(desktop, disk)
        a_file_that_is_cut_short_opens_empty(desktop, disk, food, b"", from_annas_day=False)
        a_file_that_is_cut_short_opens_empty(desktop, disk, food, b"\1\0\0", from_annas_day=True)
        end(desktop, process)
        disk.check()
    print("empty day files from end to end: as they must be")


if __name__ == "__main__":
    main()
