#!/usr/bin/env python3
"""A first run, and then a language of a person's own.

The first run's box stands above the splash. Then the English texts are copied under another name with
each word half as long again between marks, the companion of the own texts too, and chosen: every
window that opens has a marked title, the wizard stands in the middle of the screen, and a click
anywhere in a row of it chooses that row. The copy itself stays as it was written.

    third_language.py <program>
"""
import re
import struct
import sys
from pathlib import Path

from desktop import HEIGHT, SETTINGS_TITLE, SPLASH, WIDTH, WIZARD, Desktop
from language_files import TABLES, read_language_file
from start import end

MAIN = "^Kelvora FOOD$"
MARKED = "^«.*»$"
MARKED_WIZARD = "^«Kelvora.* FOOD.* wizard.*»$"
MARKED_SETTINGS = "^«Kelvora.* FOOD.* settings.*»$"
FROM_MIDDLE = 30  # pixels that frames may take


def lengthened(text):
    """Each word half as long again, and marks around all of it."""
    longer = re.sub(r"[A-Za-zÀ-ÿ]+", lambda word: word[0] + ("aeonirt" * 9)[:len(word[0]) // 2], text)
    return f"«{longer}»" if text else ""


def write_language(folder, name):
    tables = read_language_file(folder / "English.lsf")
    data = struct.pack("<i", 1)
    for place, table in enumerate(TABLES):
        entries = tables[table][place == 0:]
        if table != "taal_file_info":
            entries = map(lengthened, entries)
        text = "".join(entry + "¾" for entry in entries).encode("cp1252")
        data += struct.pack("<H", len(text)) + text
    (folder / f"{name}.lsf").write_bytes(data)
    own = (folder / "English.own").read_bytes()
    (length,) = struct.unpack_from("<H", own, 4)
    version, *entries = own[6:6 + length].decode("cp1252").split("¾")[:-1]
    text = "".join(entry + "¾" for entry in [version, *map(lengthened, entries)]).encode("cp1252")
    (folder / f"{name}.own").write_bytes(struct.pack("<iH", 1, len(text)) + text)


def choose(home, name):
    """Names the language in the settings."""
    path = Path(home, ".config", "Brelux", "kvfset.dat")
    data = path.read_bytes()
    (length,) = struct.unpack_from("<H", data, 4)
    path.write_bytes(data[:4] + struct.pack("<H", len(name)) + name.encode() + data[6 + length:])


def stacking(desktop):
    """The windows from the lowest to the highest."""
    return re.findall("0x[0-9a-f]+", desktop.output("xprop", "-root", "_NET_CLIENT_LIST_STACKING"))


def number_of(desktop, title):
    found = desktop.output("xdotool", "search", "--onlyvisible", "--name", title).split()
    return hex(int(found[-1])) if found else None


def is_dialog(desktop, window):
    return "_NET_WM_WINDOW_TYPE_DIALOG" in desktop.output("xprop", "-id", window,
                                                          "_NET_WM_WINDOW_TYPE")


def box_is_above_the_splash(desktop):
    """True or false; None while one of the two is missing."""
    splash, order = number_of(desktop, SPLASH), stacking(desktop)
    boxes = [window for window in order if window != splash and is_dialog(desktop, window)]
    if splash not in order or not boxes:
        return None
    return order.index(boxes[-1]) > order.index(splash)


def first_run(desktop, program):
    process = desktop.launch(program)
    seen = []

    def both():
        seen[:] = [box_is_above_the_splash(desktop)]
        return seen[0] is not None

    desktop.wait_for("a box and the splash at once", both)
    assert seen[0], "the splash hides the box of the first run"
    desktop.no_window(SPLASH)
    desktop.settle()
    desktop.keys("Return")
    desktop.window(SETTINGS_TITLE)
    desktop.keys("Return")
    desktop.window(WIZARD)
    desktop.settle()
    desktop.keys("Escape")
    end(desktop, process)


def expect_in_the_middle(desktop):
    shape = desktop.output("xdotool", "getwindowgeometry", "--shell",
                           str(int(number_of(desktop, MARKED_WIZARD), 16)))
    place = {key: int(value) for key, value in re.findall(r"(\w+)=(\d+)", shape)}
    across = place["X"] + place["WIDTH"] / 2 - WIDTH / 2
    down = place["Y"] + place["HEIGHT"] / 2 - HEIGHT / 2
    assert abs(across) < FROM_MIDDLE and abs(down) < FROM_MIDDLE, f"the wizard stands at {place}"
    return place


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        first_run(desktop, program)
        folder = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Language")
        write_language(folder, "Langer")
        copies = [(folder / f"Langer.{ending}").read_bytes() for ending in ("lsf", "own")]
        choose(desktop.home.name, "Langer.lsf")

        process = desktop.launch(program)
        desktop.window(MAIN)
        desktop.window(MARKED_WIZARD)
        desktop.no_window(SPLASH)
        desktop.settle()
        wizard = expect_in_the_middle(desktop)
        # Far to the right of the words of the third row: the settings.
        desktop.click((wizard["X"] + wizard["WIDTH"] - 40, wizard["Y"] + wizard["HEIGHT"] * 55 // 100))
        desktop.keys("Return")
        desktop.window(MARKED_SETTINGS)
        desktop.keys("Escape")
        desktop.no_window(MARKED_SETTINGS)
        desktop.keys("Escape")
        desktop.no_window(MARKED_WIZARD)
        for keys in (["ctrl+n"], ["ctrl+o"], ["F10", "Left", "Down", "Return"]):
            desktop.keys(*keys)
            desktop.window(MARKED)
            desktop.keys("Escape")
            desktop.no_window(MARKED)
        end(desktop, process)
        assert copies == [(folder / f"Langer.{ending}").read_bytes() for ending in ("lsf", "own")]
    print("first run and a third language: as they must be")


if __name__ == "__main__":
    main()
