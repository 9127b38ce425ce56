#!/usr/bin/env python3
"""Reports of a diary, as a person makes them, with the real mouse and keyboard.

The days lie on disk, written here and not by the program. Days are marked by mouse and by key and go
into a page, an XML file and a DTA file; a report is made once more over the old one; the box that
closes the window is unticked; 93 days with graphs are asked about; a folder that is gone is told.
Every file is compared, byte by byte, with what the second writer of reports makes of the same day
files, and read with Python's own readers. The browser, in which the pages are opened, is a script
that notes what it is given. At the end a real one looks at the page. The argument is the built
program.
"""
import datetime
import struct
import sys
from pathlib import Path
from urllib.parse import unquote
from xml.etree import ElementTree

from browser import Browser
from day_file_reader import read_day_file
from day_file_writer import food, write_day_file
from desktop import Desktop
from one_day import end, make_user_and_day
from report_page import follow_links, look_at_graphs

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "oracles"))
import make_reports  # noqa: E402

# Places on a screen of 1024 x 768 with the main window maximised.
REPORT_BUTTON = (560, 60)
HTML, XML, DTA = (192, 193), (192, 219), (192, 245)
ALL_DAYS, CLOSES = (192, 318), (192, 469)
FIRST_ROW, ROW_HEIGHT = (600, 211), 20

DIALOG = "^Export days to HTML, XML or DTA$"
CHOOSER = r"^Select a folder to save the file\.$"
TOO_MANY = "^Export contains to many days$"
BOX = "^Kelvora FOOD$"
SIX = "Anna (6 days from 31-03-04 till 26-03-04).html"
NINETY_THREE = "Anna (93 days from 31-03-04 till 30-12-03).html"
WEEKDAYS = "Monday Tuesday Wednesday Thursday Friday Saturday Sunday".split()
DIARY = "Slept well.\r\nRan 5 km; \"fine\" & <well>.\r\n"


def write_diary(folder, days):
    """Days one after the other up to 2004-03-31; their values differ, and so do their foods."""
    for old in folder.glob("*.kvf"):
        old.unlink()
    last = datetime.date(2004, 3, 31)
    for number in range(days):
        day = last - datetime.timedelta(days=number)
        weight = f"{80 + number % 7 / 2:g}"
        trend = [500 + number, 8700 + 10 * number, 2071 + number, 45, 20 + number % 5, 250, 80, 2,
                 weight]
        # Of a category, with its name behind the other fields, and of the user's own.
        bread = food("Bread", gram=35, sodium=0.172) + ["Bread.dat"]
        write_day_file(folder / day.strftime("%d%m%Y210000.kvf"), day.strftime("%d-%m-%y"), trend,
                       morning=[bread, bread, food("Crème fraîche")], evening=[food(f"Soup {number}")],
                       diary=DIARY if number % 2 == 0 else "", weight=weight,
                       weekday=WEEKDAYS[day.weekday()])


class Reports:
    """What the program should make of the files that lie there now."""

    def __init__(self, desktop):
        self.home = Path(desktop.home.name)
        documents = self.home / "Documents" / "Kelvora FOOD"
        self.folder = documents / "My Reports"
        self.days = documents / "My Users" / "Anna" / "Files"
        self.profile = documents / "My Users" / "Anna" / "Profile" / "Profile.usr"

    def user(self, today):
        strings, position = [], 4
        data = self.profile.read_bytes()
        for _ in make_reports.PROFILE:
            (length,) = struct.unpack_from("<H", data, position)
            strings.append(data[position + 2:position + 2 + length].decode("cp1252"))
            position += 2 + length
        # The short form of a date in the locale "C".
        return {"user": "anna", "folder": "Anna", "system": "0", "gramoz": "0", "mark": ".",
                "language": "English", "diary": "1", "graphs": "1",
                "today": today.strftime("%-d %b %Y"), "year": str(today.year),
                "profile": dict(zip(make_reports.PROFILE, strings))}

    def listed(self):
        """The days on disk as the list shows them, the newest first."""
        names = "trend notes header morning afternoon evening".split()
        days = []
        for path in self.days.glob("*.kvf"):
            texts = [text.decode("cp1252").replace("\r", make_reports.RETURN)
                     .replace("\n", make_reports.FEED) for text in read_day_file(path)]
            days.append(dict(zip(names, texts)))
        def key(day):
            date = make_reports.pieces(day["header"], "¾")[9]
            return date[6:] + date[3:5] + date[:2]
        return sorted(days, key=key, reverse=True)

    def expected(self, kind, rows):
        """What a file of these rows may hold: two things, should the day end meanwhile."""
        days = [self.listed()[row] for row in rows]
        possible = []
        for today in (datetime.date.today(), self.began):
            user = self.user(today)
            text = {"html": lambda: make_reports.html_page(user, days),
                    "dta": lambda: make_reports.dta_file(user, days),
                    "xml": lambda: make_reports.Writer(user, None).xml(days)}[kind]()
            possible.append(make_reports.file_of(text))
        return possible

    def check(self, path, rows):
        kind = path.suffix[1:]
        data = path.read_bytes()
        assert data in self.expected(kind, rows), f"{path.name} holds something else"
        return data

    def opened(self):
        """What the browser was given since this was asked last."""
        note = self.home / "opened"
        given = note.read_text().splitlines() if note.exists() else []
        note.unlink(missing_ok=True)
        return given


def note_what_is_opened(desktop):
    """Puts a browser first in the path that writes its argument down, in one step."""
    tools = Path(desktop.home.name, "bin")
    tools.mkdir()
    browser = tools / "xdg-open"
    browser.write_text('#!/bin/sh\nprintf "%s\\n" "$1" > "$HOME/opened.part"\n'
                       'mv "$HOME/opened.part" "$HOME/opened"\n')
    browser.chmod(0o755)
    desktop.environment["PATH"] = f"{tools}:{desktop.environment['PATH']}"


def open_dialog(desktop):
    desktop.click(REPORT_BUTTON)
    desktop.window(DIALOG)
    desktop.settle()


def row(number):
    return FIRST_ROW[0], FIRST_ROW[1] + number * ROW_HEIGHT


def expect_opened(desktop, reports, path):
    desktop.wait_for("the browser", (reports.home / "opened").exists)
    (address,) = reports.opened()
    assert unquote(address) == f"file://{path}", f"{address} is opened instead of {path}"


def answer(desktop, title, *keys):
    desktop.window(title)
    desktop.settle()
    desktop.keys(*keys)


def answer_box(desktop):
    """Closes a box, which is called as the main window is."""
    def shown():
        return len(desktop.output("xdotool", "search", "--onlyvisible", "--name", BOX).split())
    desktop.wait_for("a box", lambda: shown() == 2)
    desktop.settle()
    desktop.keys("Return")
    desktop.wait_for("the end of the box", lambda: shown() == 1)


# The steps, each from the main window back to it.

def all_days_become_a_page(desktop, reports):
    open_dialog(desktop)
    desktop.keys("Return")
    desktop.no_window(DIALOG)
    path = reports.folder / SIX
    expect_opened(desktop, reports, path)
    reports.check(path, range(6))


def days_marked_by_mouse_become_xml(desktop, reports):
    open_dialog(desktop)
    desktop.click(XML)
    desktop.click(row(1))
    desktop.click(row(4), "shift")
    desktop.click(row(2), "ctrl")
    desktop.keys("Return")
    desktop.no_window(DIALOG)
    path = reports.folder / "Anna (30-03-04 till 27-03-04).xml"
    expect_opened(desktop, reports, path)
    data = reports.check(path, [1, 3, 4])
    # A reader of its own: the head names no encoding, and a diary with "<" makes it malformed.
    named = data.replace(b'<?xml version="1.0"?>', b'<?xml version="1.0" encoding="windows-1252"?>')
    try:
        ElementTree.fromstring(named)
        raise AssertionError("a '<' in the diary should make the file malformed")
    except ElementTree.ParseError:
        pass
    parsed = ElementTree.fromstring(named.replace(b"<well>", b"well"))
    assert [day.findtext("Date") for day in parsed.iter("Day")] == \
        ["30-03-04", "28-03-04", "27-03-04"]
    assert parsed.findtext("Details/Days") == "3"


def days_marked_by_key_become_dta(desktop, reports):
    target = reports.home / "For the website"
    target.mkdir()
    open_dialog(desktop)
    # The last two days, and the first on top; two arrows from HTML to DTA.
    desktop.keys("End", "shift+Up", "ctrl+Home", "ctrl+space")
    desktop.keys(*["shift+Tab"] * 5)
    desktop.keys("Down", "Down", "Return")
    answer(desktop, CHOOSER, "Escape")
    desktop.no_window(CHOOSER)
    assert not list(target.iterdir()) and desktop.shows(DIALOG), "cancelling did something"
    desktop.keys("Return")
    desktop.window(CHOOSER)
    desktop.settle()
    desktop.keys("ctrl+a")
    desktop.type(str(target))
    desktop.keys("Return")
    desktop.no_window(CHOOSER)
    answer_box(desktop)
    desktop.no_window(DIALOG)
    path = target / "Anna (31-03-04 till 26-03-04).dta"
    reports.check(path, [0, 4, 5])
    assert not reports.opened(), "a DTA file is opened"


def a_second_report_takes_the_place_of_the_first(desktop, reports):
    path = reports.folder / SIX
    before = path.read_bytes()
    newest = reports.days / "31032004210000.kvf"
    newest.write_bytes(newest.read_bytes().replace(b"Soup 0", b"Stew 0"))
    open_dialog(desktop)
    desktop.click(ALL_DAYS)
    desktop.keys("Return")
    desktop.no_window(DIALOG)
    expect_opened(desktop, reports, path)
    assert reports.check(path, range(6)) != before


def the_window_stays_open_if_told_to(desktop, reports):
    settings = reports.home / ".config" / "Brelux" / "kvfset.dat"
    before = settings.read_bytes()
    open_dialog(desktop)
    desktop.click(CLOSES)
    after = settings.read_bytes()
    changed = [place for place, (old, new) in enumerate(zip(before, after)) if old != new]
    assert len(before) == len(after) and len(changed) == 1, "not one setting has changed"
    assert (before[changed[0]], after[changed[0]]) == (ord("1"), ord("0"))
    for rows in ([0], [1]):
        desktop.click(row(rows[0]))
        desktop.keys("Return")
        date = f"{31 - rows[0]}-03-04"
        path = reports.folder / f"Anna (1 days from {date} till {date}).html"
        expect_opened(desktop, reports, path)
        reports.check(path, rows)
        assert desktop.shows(DIALOG), "the window has closed"
    desktop.keys("Escape")
    desktop.no_window(DIALOG)


def a_folder_that_is_gone_is_told(desktop, reports):
    kept = reports.folder.with_name("Elsewhere")
    reports.folder.rename(kept)
    open_dialog(desktop)
    desktop.keys("Return")
    answer_box(desktop)
    assert desktop.shows(DIALOG), "the window has closed"
    assert not reports.folder.exists() and not reports.opened()
    kept.rename(reports.folder)
    desktop.keys("Return")
    expect_opened(desktop, reports, reports.folder / SIX)
    desktop.keys("Escape")
    desktop.no_window(DIALOG)


def ninety_three_days_are_asked_about(desktop, reports):
    write_diary(reports.days, 93)
    path = reports.folder / NINETY_THREE
    open_dialog(desktop)
    desktop.keys("Return")
    answer(desktop, TOO_MANY, "Return")  # the default button is No
    desktop.no_window(TOO_MANY)
    assert not path.exists() and desktop.shows(DIALOG), "a No made a report"
    desktop.keys("Return")
    answer(desktop, TOO_MANY, "alt+y")
    expect_opened(desktop, reports, path)
    reports.check(path, range(93))
    desktop.keys("Escape")
    desktop.no_window(DIALOG)


STEPS = [
    all_days_become_a_page,
    days_marked_by_mouse_become_xml,
    days_marked_by_key_become_dta,
    a_second_report_takes_the_place_of_the_first,
    the_window_stays_open_if_told_to,
    a_folder_that_is_gone_is_told,
    ninety_three_days_are_asked_about,
]


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        reports = Reports(desktop)
        reports.began = datetime.date.today()
        note_what_is_opened(desktop)
        process = desktop.start(program, first_run=True)
        make_user_and_day(desktop)
        desktop.keys("ctrl+s")
        write_diary(reports.days, 6)
        for step in STEPS:
            step(desktop, reports)
        end(desktop, process)
        with Browser(1024) as browser:
            look_at_graphs(browser, reports.folder / NINETY_THREE, 93)
            follow_links(browser, reports.folder / SIX, 6)
    print("reports from end to end: as they must be")


if __name__ == "__main__":
    main()
