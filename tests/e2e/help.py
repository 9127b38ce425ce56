#!/usr/bin/env python3
"""F1 and the help of the installed program, with the real keyboard and a real browser.

The build is installed into a folder with blanks and a "#" in its name. In English and in Dutch F1 is
pressed in the main window, in the food lists, in a dialog and in a box, and the entry of the menu is
chosen. The browser of the desktop is a script that notes what it is given; a real one then opens that
and says what it shows. At the end the pages are gone, and a box tells of it. The argument is the build
folder.
"""
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path
from urllib.parse import unquote

from browser import Browser
from desktop import Desktop
from export import note_what_is_opened
from one_day import end, make_user_and_day
from pictures import name_language

PROSE = Path(__file__).resolve().parents[2] / "help"
MAIN = "^Kelvora FOOD$"


class Reader:
    """What was opened in one language, to be looked at when all is."""

    def __init__(self, desktop, language):
        self.desktop, self.language = desktop, language
        self.note = Path(desktop.home.name, "opened")
        self.found = []

    def expect(self, page, *keys):
        self.desktop.keys(*keys)
        self.desktop.wait_for(f"the page {page}", self.note.exists)
        address = self.note.read_text(encoding="utf-8").strip()
        self.note.unlink()
        assert unquote(address).endswith(f"/help/{self.language}/{page}.html"), f"{page}: {address}"
        self.found.append((address, self.language, page))


def boxes(desktop):
    """How many windows bear the program's name, the main window apart."""
    return len(desktop.output("xdotool", "search", "--onlyvisible", "--name", MAIN).split()) - 1


def press_f1_everywhere(reader, title):
    desktop = reader.desktop
    reader.expect("index", "F1")
    make_user_and_day(desktop, title)
    reader.expect("finding-food", "F1")
    reader.expect("day-mouse", "ctrl+Tab", "F1")
    reader.expect("index", "F10", "Left", "Return")
    desktop.keys("ctrl+o")
    reader.expect("users", "F1")
    desktop.keys("Escape", "ctrl+q")  # the day isn't saved
    desktop.wait_for("a box", lambda: desktop.shows("^(Exit Kelvora FOOD|Kelvora FOOD afsluiten)$"))
    desktop.settle()
    reader.expect("trouble", "F1")
    desktop.keys("Escape")


def tell_that_pages_are_missing(reader, help_pages):
    desktop = reader.desktop
    help_pages.rename(help_pages.with_name("gone"))
    desktop.keys("F1")
    desktop.wait_for("a box", lambda: boxes(desktop) == 1)
    desktop.keys("Return")
    desktop.wait_for("the end of the box", lambda: boxes(desktop) == 0)
    assert not reader.note.exists(), "something was opened"
    help_pages.with_name("gone").rename(help_pages)


def heading_of(language, page):
    text = (PROSE / language / f"{page}.html").read_text(encoding="utf-8")
    return re.match(r"<h1>(.*?)</h1>", text)[1].replace("&amp;", "&")


def main():
    build = Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory(prefix="kelvora help #1 ") as folder:
        subprocess.run(["cmake", "--install", build, "--prefix", folder], check=True,
                       stdout=subprocess.DEVNULL)
        program, help_pages = Path(folder, "bin/kelvora-food"), Path(folder, "lib/kelvora-food/help")
        with Desktop() as desktop:
            note_what_is_opened(desktop)
            english, dutch = Reader(desktop, "en"), Reader(desktop, "nl")
            process = desktop.start(program, first_run=True)
            press_f1_everywhere(english, "Start a new day")
            desktop.keys("ctrl+s")
            end(desktop, process)
            name_language(desktop, "Nederlands.lsf")
            shutil.rmtree(next(Path(desktop.home.name).rglob("My Users/Anna")))
            desktop.start(program)
            press_f1_everywhere(dutch, "Begin een nieuwe dag")
            tell_that_pages_are_missing(dutch, help_pages)
            found = english.found + dutch.found
        with Browser(1280) as browser:
            for address, language, page in found:
                browser.open(address)
                shown = browser.evaluate("[document.documentElement.lang,"
                                         " document.querySelector('h1').textContent]")
                assert shown == [language, heading_of(language, page)], (address, shown)
        print(f"{len(found)} pages opened")


if __name__ == "__main__":
    main()
