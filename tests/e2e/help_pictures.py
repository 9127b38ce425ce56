#!/usr/bin/env python3
"""Takes the pictures of the help, of the running program in each of its languages.

    help_pictures.py <built program> [<folder>]

writes help/pictures/<language>/<name>.png, or the same below another folder. Not a test: a person
looks at what it makes, and the pages name each picture in words (help/words/pictures.tsv).
"""
import csv
import datetime
import math
import shutil
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

from print_server import PrintServer  # before the folder of the servers, where one has its name

sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))

from day_file_writer import write_day_file
from food_server import Server
from import_foods import CAMEMBERT, HEADER
from one_day import make_user_and_day
from pictures import (DETAILS, EXPORT, FIELD_1, FIELD_2, INTERNET, NEW_FOOD, REPORT_BUTTON, SETTINGS,
                      SUMMARY_BUTTONS, TREND_BUTTON, PictureDesktop, row, take, take_window)
from with_servers import ProgramWithServers

ROOT = Path(__file__).resolve().parents[2]
LANGUAGES = {"en": "English.lsf", "nl": "Nederlands.lsf"}
LOCALES = {"en": "C.UTF-8", "nl": "nl_NL.UTF-8"}
WEEKDAYS = {"en": "Monday Tuesday Wednesday Thursday Friday Saturday Sunday".split(),
            "nl": "maandag dinsdag woensdag donderdag vrijdag zaterdag zondag".split()}
LAST_DAY, FRIDAY = datetime.date(2004, 3, 5), 4
LANGUAGE_SETTING, PRINTER_SETTING, SETTINGS_COUNT = 0, 15, 51
NEW_DAY = "^(Start a new day|Begin een nieuwe dag)$"
BROWSER = "^(Open file|Bestand openen)$"
TAKE_OVER = "^(Take over from another day|Overnemen van een andere dag)$"
IMPORT = "^(Import foods|Voedingsmiddelen importeren)$"
BACK_UP = "^(Back up|Reservekopie maken)$"

# What is eaten: the part of the day by its key, what is typed, which of the foods found, how much.
DAY = [("ctrl+1", "Brown bread", 1, "2"), ("ctrl+1", "Gouda cheese, 30", 1, "2"),
       ("ctrl+1", "Tea", 1, "2"), ("ctrl+1", "Orange juice, f", 1, ""), ("ctrl+2", "Tomato soup", 1, ""),
       ("ctrl+2", "Brown bread", 1, ""), ("ctrl+2", "Salmon, smoked", 1, "2"), ("ctrl+2", "Banana", 2, ""),
       ("ctrl+3", "Potato gratin", 1, ""), ("ctrl+3", "Broccoli", 2, "150 g"),
       ("ctrl+3", "Salmon, fried", 1, ""), ("ctrl+3", "Yoghurt with fruit, l", 1, "")]
DIARY = {"en": "Slept well. Walked to work and back, 5 km.\nSoup from a tin: more salt than I thought.",
         "nl": "Goed geslapen. Naar het werk gelopen en terug, 5 km.\n"
               "Soep uit blik: meer zout dan ik dacht."}
EARLIER = ["Brown bread", "Gouda cheese, 30+", "Orange juice", "Banana", "Broccoli", "Tea", "Tomato soup",
           "Salmon, fried", "Potato gratin", "Yoghurt with fruit, low-fat", "Apple pie"]
FOODS_A_DAY = 4

CHEESES = [CAMEMBERT, CAMEMBERT.replace("Camembert, au lait cru", "Brie de Meaux"),
           CAMEMBERT.replace("produits laitiers;Camembert, au lait cru", "fruits, légumes;Carotte, crue")]

# The child windows on a screen of 1024 x 768: left, top, width, height.
LISTS, MORNING = (2, 97, 412, 607), (628, 97, 376, 202)
SUMMARY, TREND = (256, 318, 567, 320), (307, 206, 614, 431)
COMPARISON, DIARY_WINDOW = (540, 236, 374, 388), (204, 242, 408, 267)


def set_settings(desktop, program, changes):
    """Lets the program make its settings, then writes others."""
    process = desktop.start(program, first_run=True)
    desktop.keys("ctrl+q")
    process.wait(timeout=20)
    file = Path(desktop.home.name, ".config", "Brelux", "kvfset.dat")
    data, strings, place = file.read_bytes(), [], 4
    for _ in range(SETTINGS_COUNT):
        (length,) = struct.unpack_from("<H", data, place)
        strings.append(data[place + 2:place + 2 + length])
        place += 2 + length
    for number, text in changes.items():
        strings[number] = text.encode("cp1252")
    file.write_bytes(data[:4] + b"".join(struct.pack("<H", len(each)) + each for each in strings))


class Home:
    """A home whose name may be seen in a picture."""

    def __init__(self):
        self.name = str(Path(tempfile.gettempdir(), "anna"))
        Path(self.name).mkdir()

    def cleanup(self):
        shutil.rmtree(self.name)


class HomeDesktop(PictureDesktop):
    def __init__(self):
        super().__init__(1, False)
        self.home.cleanup()
        self.home = Home()


class Camera:
    """Takes pictures into a folder, each small: few colours suffice for windows."""

    def __init__(self, desktop, folder):
        self.desktop, self.folder = desktop, folder
        folder.mkdir(parents=True, exist_ok=True)

    def shrink(self, name, *changes):
        path = self.folder / f"{name}.png"
        subprocess.run(["convert", path, *changes, "+dither", "-colors", "128", "-strip",
                        "-define", "png:compression-level=9", f"png8:{path}"], check=True)

    def whole(self, name):
        take(self.desktop, self.folder / f"{name}.png")
        self.shrink(name)

    def child(self, name, place):
        left, top, width, height = place
        take(self.desktop, self.folder / f"{name}.png")
        self.shrink(name, "-crop", f"{width}x{height}+{left}+{top}", "+repage")

    def window(self, name, title):
        self.desktop.window(title)
        self.desktop.settle()
        take_window(self.desktop, title, self.folder / f"{name}.png")
        self.shrink(name)


def starter_foods():
    """The lines of the starter foods by their names, as fields."""
    foods = {}
    for table in (ROOT / "data" / "foods").glob("*.tsv"):
        with open(table, encoding="utf-8", newline="") as file:
            for line in csv.reader(file, delimiter="\t", quoting=csv.QUOTE_NONE):
                foods[line[0]] = line + [f"{table.stem}.dat"]
    return foods


def write_months(files, language):
    """Four months of days before the one that is made by hand, with a weight that goes down slowly."""
    foods = starter_foods()
    eaten = [foods[name] for name in EARLIER] * 2
    for number in range(1, 121):
        day = LAST_DAY - datetime.timedelta(days=number)
        energy = 8600 + 900 * math.sin(number / 5) + 120 * (number % 7)
        weight = 80.5 + number / 60 + 0.25 * math.sin(number / 3)
        trend = [round(1850 + 140 * math.cos(number / 4)), round(energy), round(energy / 4.2), 38, 21, 245, 78, 2.1,
                 f"{weight:.1f}"]
        write_day_file(files / day.strftime("%d%m%Y210000.kvf"), day.strftime("%d-%m-%y"), trend,
                       morning=eaten[number % len(EARLIER):][:FOODS_A_DAY], weight=f"{weight:.1f}",
                       weekday=WEEKDAYS[language][day.weekday()])


def enter_day(desktop):
    """The cursor stands in the search box at first, and goes back there."""
    for part, name, place, amount in DAY:
        desktop.keys("ctrl+a")
        desktop.type(name)
        desktop.keys(*["Down"] * place)
        if amount:
            desktop.type(amount)
        desktop.keys(part)


def choose_in_extra(desktop, from_below):
    """The entries of our own are the last ones of the menu."""
    desktop.keys("F10", *["Right"] * 5, *["Up"] * from_below, "Return")


def take_lists(desktop, camera, language):
    desktop.keys("ctrl+a")
    desktop.type({"en": "bro", "nl": "karnemelk"}[language])
    if language == "nl":
        desktop.keys("Return")
    camera.child("food-lists", LISTS)
    camera.child("consumption", MORNING)
    desktop.keys(*["Escape"] * (2 if language == "nl" else 1))


def choose_table(desktop):
    """The first button of the import, and the name of the file."""
    folder = Path(desktop.home.name, "Downloads")
    folder.mkdir()
    (folder / "ciqual.csv").write_bytes((HEADER + "".join(CHEESES)).encode("cp1252"))
    desktop.window(IMPORT)
    desktop.settle()
    desktop.keys("space")
    desktop.type("ciqual.csv")
    desktop.keys("Return")
    desktop.settle()


def take_dialogs(desktop, camera):
    desktop.keys("alt+o", "Down", "Return")
    camera.window("new-food", NEW_FOOD)
    desktop.keys("Escape")
    desktop.no_window(NEW_FOOD)
    desktop.keys("ctrl+Tab", "Down", "Return")  # a row of the morning
    camera.window("details", DETAILS)
    desktop.keys("Escape")
    desktop.no_window(DETAILS)
    desktop.keys("ctrl+t")
    camera.window("take-over", TAKE_OVER)
    desktop.keys("Escape")
    desktop.no_window(TAKE_OVER)
    for name, title, from_below in [("import-foods", IMPORT, 1), ("backup", BACK_UP, 3)]:
        choose_in_extra(desktop, from_below)
        if title == IMPORT:
            choose_table(desktop)
        camera.window(name, title)
        desktop.keys("Escape")
        desktop.no_window(title)


def take_analysis(desktop, camera, language, stem):
    _, summary, diary = SUMMARY_BUTTONS[stem]
    desktop.click(summary)
    for name in ("summary", "pie", None, "bmi"):
        if name:
            camera.child(name, SUMMARY)
        desktop.keys("Right", "space")
    desktop.click(summary)
    desktop.click(diary)
    for line in DIARY[language].splitlines():
        desktop.type(line)
        desktop.keys("Return")
    camera.child("diary", DIARY_WINDOW)
    desktop.click(diary)
    desktop.keys("shift+Tab", "shift+Tab", "Return")  # yes, into the day
    desktop.keys("ctrl+s")
    desktop.click(TREND_BUTTON[stem])
    for name in ("trend", None, None, "years-list"):
        if name:
            camera.child(name, TREND)
        desktop.keys("Right", "space")
    desktop.click(TREND_BUTTON[stem])


def take_comparison(desktop, camera, stem):
    command = ["F10", *["Right"] * 5, "Return"]
    desktop.keys(*command)
    for number, field in [(1, FIELD_1), (3, FIELD_2)]:
        desktop.click(row(number, stem))
        desktop.drag(row(number, stem), field)
    camera.child("comparing", COMPARISON)
    desktop.keys(*command)


def take_internet(desktop, camera, stem):
    internet_list, term, _ = INTERNET[stem]
    desktop.click(internet_list)
    desktop.click(term)
    desktop.type("appel")
    desktop.keys("Return")
    desktop.settle()
    camera.child("search-internet", LISTS)


def take_days(desktop, camera, stem):
    desktop.keys("ctrl+n")
    camera.window("day-settings", NEW_DAY)
    desktop.keys("Escape")
    desktop.no_window(NEW_DAY)
    desktop.click(REPORT_BUTTON[stem])
    desktop.window(EXPORT)
    desktop.keys("Down", *["shift+Down"] * 6)
    camera.window("export", EXPORT)
    desktop.keys("Escape")
    desktop.no_window(EXPORT)
    desktop.keys("ctrl+o")
    camera.window("users", BROWSER)
    desktop.keys("Escape")
    desktop.no_window(BROWSER)


def take_print(desktop, camera, printers):
    desktop.keys("ctrl+p")
    page = printers.wait_for("A4", 1)
    path = camera.folder / "print.png"
    subprocess.run(["pdftoppm", "-r", "80", "-png", "-singlefile", page, path.with_suffix("")],
                   check=True)
    camera.shrink("print", "-crop", "100%x62%+0+0", "+repage")


def take_settings(desktop, camera):
    desktop.keys("F10", *["Down"] * 5, "Return")  # behind what can be exported to
    camera.window("settings", SETTINGS)
    desktop.keys("Escape")


def take_language(program, folder, language):
    file = LANGUAGES[language]
    stem = Path(file).stem.lower()
    with HomeDesktop() as desktop, PrintServer(desktop) as printers, Server() as server, \
            tempfile.TemporaryDirectory() as beside:
        copy = ProgramWithServers(program, beside)
        copy.know(dutch=server.address("hits"))
        set_settings(desktop, copy.program, {LANGUAGE_SETTING: file, PRINTER_SETTING: "A4"})
        camera = Camera(desktop, folder / language)
        desktop.start(copy.program, LOCALES[language])
        make_user_and_day(desktop, {"en": "Start a new day", "nl": "Begin een nieuwe dag"}[language],
                          WEEKDAYS[language][FRIDAY])
        write_months(next(Path(desktop.home.name).rglob("Files")), language)
        enter_day(desktop)
        desktop.keys("ctrl+s", "Escape")
        camera.whole("main-window")
        take_lists(desktop, camera, language)
        take_comparison(desktop, camera, stem)
        take_dialogs(desktop, camera)
        take_print(desktop, camera, printers)
        take_internet(desktop, camera, stem)
        take_analysis(desktop, camera, language, stem)
        take_days(desktop, camera, stem)
        take_settings(desktop, camera)


def main():
    program = Path(sys.argv[1]).resolve()
    folder = Path(sys.argv[2]) if len(sys.argv) > 2 else ROOT / "help" / "pictures"
    for language in LANGUAGES:
        take_language(program, folder, language)


if __name__ == "__main__":
    main()
