#!/usr/bin/env python3
"""Takes the pictures of the running program: the windows of the start, the main window with a day in
it, the dialogs, what the day adds up to.

The arguments are the built program, the folder for the pictures and the name of a language file; with
--dark the desktop's colours are dark, with --scale 2 each pixel of the layout takes four.
Not a test: a person looks at what it makes.
"""
import argparse
import struct
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))

from day_file_writer import food, write_days
from desktop import SPLASH, WIZARD, Desktop
from food_server import Server, refusing
from one_day import DAYS_FIRST, EVENING, FIRST_ROW, MORNING, ROW_HEIGHT, make_user_and_day
from with_servers import ProgramWithServers

AFTERNOON = (800, 420)
AFTERNOON_PLUS, MORNING_TOTALS = (926, 340), (651, 137)
FIELD_1, FIELD_2 = (638, 345), (817, 345)
# What differs from English in making a user and a day.
WORDS = {"nederlands": {"title": "Begin een nieuwe dag"}}
# The arrangement with the small summary, and the buttons of the summary and the diary.
SUMMARY_BUTTONS = {"english": [(250, 731), (452, 60), (389, 65)],
                   "nederlands": [(300, 731), (497, 60), (453, 65)]}
SETTINGS = "^(Kelvora FOOD settings|Instellingen van Kelvora FOOD)$"
NEW_FOOD = "^(Add new food item|Nieuw voedingsmiddel toevoegen)$"
DETAILS = "^(Food item details|Details van het voedingsmiddel)$"
ABOUT = "^(About Kelvora FOOD|Over Kelvora FOOD)$"


# The button of the internet list, the box of its term, and the button that looks for an update.
INTERNET = {"english": [(320, 150), (140, 212), (797, 65)],
            "nederlands": [(320, 150), (140, 212), (870, 65)]}
TREND_BUTTON = {"english": (510, 60), "nederlands": (583, 65)}
REPORT_BUTTON = {"english": (560, 60), "nederlands": (636, 65)}
EXPORT = "^(Export days to|Dagen exporteren naar) HTML, XML "
IN_THE_CHART = (600, 400)
# The colours of a dark desktop, in the form in which one of the common ones keeps them.
DARK = """[Colors:{0}]
BackgroundNormal={1}
BackgroundAlternate=49,54,59
ForegroundNormal=239,240,241
DecorationFocus=61,174,233
DecorationHover=61,174,233
"""
DARK_DESKTOP = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": "5"}


# In Dutch a food has a second line, and fewer of them can be seen.
DUTCH_ROW_HEIGHT, DUTCH_ROWS = 34, 10


def row(number, stem):
    """The place of one of the foods that can be seen."""
    if stem == "nederlands":
        return FIRST_ROW[0], FIRST_ROW[1] + number % DUTCH_ROWS * DUTCH_ROW_HEIGHT
    return FIRST_ROW[0], FIRST_ROW[1] + number * ROW_HEIGHT


class PictureDesktop(Desktop):
    """A desktop that may be dark, and on which each place lies at a multiple of what is asked for."""

    def __init__(self, scale, dark):
        super().__init__(tuple(side * scale for side in (1024, 768)))
        self.scale, self.dark = scale, dark

    def launch(self, program, locale="C.UTF-8"):
        if self.dark:
            colours = Path(self.home.name, ".config", "kdeglobals")
            colours.parent.mkdir(exist_ok=True)
            colours.write_text("".join(DARK.format(role, colour) for role, colour in [
                ("Window", "42,46,50"), ("View", "27,30,32"), ("Button", "49,54,59"),
                ("Tooltip", "49,54,59"), ("Selection", "61,174,233")]))
            self.environment.update(DARK_DESKTOP)
        return super().launch(program, locale, self.scale)

    def click(self, place, *held_keys):
        super().click([side * self.scale for side in place], *held_keys)

    def drag(self, start, end):
        super().drag(*([side * self.scale for side in place] for place in (start, end)))


def choose_language(desktop, program, language):
    """Lets the program make its settings, then names the language in them."""
    process = desktop.start(program, first_run=True)
    desktop.keys("ctrl+q")
    process.wait(timeout=20)
    name_language(desktop, language)


def name_language(desktop, language):
    settings = Path(desktop.home.name, ".config", "Brelux", "kvfset.dat")
    data = settings.read_bytes()
    (length,) = struct.unpack_from("<H", data, 4)
    name = language.encode("cp1252")
    settings.write_bytes(data[:4] + struct.pack("<H", len(name)) + name + data[6 + length:])


def take(desktop, path):
    subprocess.run(["import", "-window", "root", str(path)], env=desktop.environment, check=True)


def take_window(desktop, title, path):
    """One window with its frame."""
    found = []

    def is_there():
        found[:] = desktop.output("xdotool", "search", "--onlyvisible", "--name", title).split()
        return found

    desktop.wait_for(f"the window {title}", is_there)
    subprocess.run(["import", "-frame", "-window", found[-1], str(path)], env=desktop.environment,
                   check=True)


def take_start(desktop, program, folder, stem):
    """The splash in the middle of its show, the wizard, the pages of the settings and About."""
    process = desktop.launch(program)
    desktop.window(SPLASH)
    time.sleep(1.2)
    take_window(desktop, SPLASH, folder / f"splash_{stem}.png")
    desktop.no_window(SPLASH)
    desktop.settle()
    take_window(desktop, WIZARD, folder / f"wizard_{stem}.png")
    desktop.keys("space", "Down", "Down", "Return")
    for page in (1, 2, 3):
        take_window(desktop, SETTINGS, folder / f"settings_{page}_{stem}.png")
        desktop.keys("ctrl+Tab")
    desktop.keys("Escape")
    if desktop.shows(WIZARD):
        desktop.keys("Escape")
    desktop.keys("F10", "Left", "Down", "Return")
    take_window(desktop, ABOUT, folder / f"about_{stem}.png")
    desktop.keys("Escape", "ctrl+q")
    process.wait(timeout=20)


def take_foods(desktop, folder, stem):
    """The dialog of a new food and both pages of a food's details."""
    desktop.keys("alt+o", "Down", "Return")
    take_window(desktop, NEW_FOOD, folder / f"new_food_{stem}.png")
    desktop.keys("Escape")
    desktop.no_window(NEW_FOOD)
    desktop.click(row(2, stem))
    desktop.output("xdotool", "click", "--repeat", "2", "--delay", "60", "1")
    for page in (1, 2):
        take_window(desktop, DETAILS, folder / f"details_{page}_{stem}.png")
        desktop.keys("ctrl+Tab")
    desktop.keys("Escape")
    desktop.no_window(DETAILS)


def take_comparison(desktop, folder, stem):
    """The three tabs of the comparison, which its command opens and closes again."""
    command = ["F10", *["Right"] * 5, "Return"]
    desktop.keys(*command)
    for number, field in [(0, FIELD_1), (3, FIELD_2)]:
        desktop.click(row(number, stem))
        desktop.drag(row(number, stem), field)
    desktop.click(FIELD_1)
    desktop.keys("shift+Tab")  # to the tabs
    for tab in (1, 2, 3):
        take(desktop, folder / f"comparison_{tab}_{stem}.png")
        desktop.keys("Right")
    desktop.keys(*command)


def take_summary(desktop, folder, stem):
    """The small summary below the food lists, the four panels of the large one, the diary. There are
    enough foods for a pie."""
    screens, summary, diary = SUMMARY_BUTTONS[stem]
    for number in (1, 5, 6):
        desktop.click(row(number, stem))
        desktop.drag(row(number, stem), EVENING)
    desktop.click(screens)
    take(desktop, folder / f"summary_small_{stem}.png")
    desktop.click(summary)
    for panel in (1, 2, 3, 4):
        take(desktop, folder / f"summary_{panel}_{stem}.png")
        desktop.keys("Right", "space")
    desktop.click(diary)
    desktop.type("Slept well; walked 5 km.")
    take(desktop, folder / f"diary_{stem}.png")
    desktop.keys("ctrl+z")  # as it was, so that nothing asks for it


def take_trend(desktop, folder, stem):
    """The four views of several months, the first with the pointer over a day."""
    files = next(Path(desktop.home.name).rglob("Files"))
    foods = [food(f"Food {letter}", kj=100 * place) for place, letter in enumerate("ABCDEFG", 1)]
    write_days(files, [([1500 + 90 * (day % 7), 8000 + 150 * (day % 11), 1900 + 36 * (day % 11), 40,
                         15, 250, 80, 2, 82 - day / 40], foods) for day in range(120)])
    desktop.click(TREND_BUTTON[stem])
    for view in (1, 2, 3, 4):
        desktop.output("xdotool", "mousemove", *(str(side * desktop.scale) for side in IN_THE_CHART))
        time.sleep(1.5)
        take(desktop, folder / f"trend_{view}_{stem}.png")
        desktop.keys("Right", "space")
    desktop.click(TREND_BUTTON[stem])


def take_export(desktop, folder, stem):
    """The dialog of the days to export, some of them chosen."""
    desktop.click(REPORT_BUTTON[stem])
    desktop.window(EXPORT)
    desktop.keys("Down", *["shift+Down"] * 6)
    take_window(desktop, EXPORT, folder / f"export_{stem}.png")
    desktop.keys("Escape")
    desktop.no_window(EXPORT)


class SlowServer(Server):
    """Keeps silent at the first request."""

    def answer(self, connection, line):
        first = len(self.requests) == 1
        Server.answer(connection, b"GET /silent HTTP/1.1" if first else line)


def take_internet(desktop, copy, server, folder, stem):
    """The internet list while it is empty, in a search and with foods; the update window while it
    asks, when nobody answers, with a newer version and with a server that refuses; About."""
    internet_list, term, update = INTERNET[stem]
    desktop.click(internet_list)
    take(desktop, folder / f"internet_empty_{stem}.png")
    desktop.click(term)
    desktop.type("appel taart")
    desktop.keys("Return")
    take(desktop, folder / f"internet_searching_{stem}.png")
    desktop.keys("Escape")
    desktop.keys("Return")
    take(desktop, folder / f"internet_found_{stem}.png")
    taken = refusing()
    for name, address in [("asking", server.address("silent")), ("newer", server.address("newer")),
                          ("refused", f"http://127.0.0.1:{taken.getsockname()[1]}"), ("none", None)]:
        copy.know(**({"update": address} if address else {}))
        desktop.output("xdotool", "mousemove", *(str(side * desktop.scale) for side in update),
                       "click", "1")
        time.sleep(0.8)
        take(desktop, folder / f"update_{name}_{stem}.png")
        if name == "asking":
            time.sleep(4)
        else:
            desktop.keys("Return")
    taken.close()
    desktop.keys("F10", "Left", "Down", "Return")
    take_window(desktop, ABOUT, folder / f"about_counters_{stem}.png")
    desktop.keys("Escape")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program", type=lambda name: Path(name).resolve())
    parser.add_argument("folder", type=Path)
    parser.add_argument("language")
    parser.add_argument("--dark", action="store_true")
    parser.add_argument("--scale", type=int, default=1)
    arguments = parser.parse_args()
    program, folder, language = arguments.program, arguments.folder, arguments.language
    stem = Path(language).stem.lower()
    with PictureDesktop(arguments.scale, arguments.dark) as desktop, SlowServer() as server, \
            tempfile.TemporaryDirectory() as beside:
        copy = ProgramWithServers(program, beside)
        copy.know(dutch=server.address("hits"))
        program = copy.program
        choose_language(desktop, program, language)
        take_start(desktop, program, folder, stem)
        desktop.start(program)
        take(desktop, folder / f"empty_{stem}.png")
        desktop.keys("ctrl+n")
        take(desktop, folder / f"new_day_{stem}.png")
        desktop.keys("Escape")
        make_user_and_day(desktop, **WORDS.get(stem, {}))
        for number, place in [(2, MORNING), (7, MORNING), (11, AFTERNOON), (14, AFTERNOON),
                              (4, EVENING)]:
            desktop.click(row(number, stem))
            desktop.drag(row(number, stem), place)
        desktop.click(AFTERNOON_PLUS)
        desktop.click(MORNING_TOTALS)
        take(desktop, folder / f"main_window_{stem}.png")
        take_foods(desktop, folder, stem)
        take_comparison(desktop, folder, stem)
        take_summary(desktop, folder, stem)
        take_internet(desktop, copy, server, folder, stem)
        desktop.keys("ctrl+s")
        take_trend(desktop, folder, stem)
        take_export(desktop, folder, stem)
        desktop.keys("ctrl+o")
        desktop.click(DAYS_FIRST)
        take(desktop, folder / f"open_day_{stem}.png")


if __name__ == "__main__":
    main()
