#!/usr/bin/env python3
"""The first and the second start on an empty home, as a person meets them.

First start: the main window can be used while the splash plays over it; the box of a first run, the
settings, in which Dutch is chosen and takes effect on sight; the wizard in Dutch, told not to come
again, starts a new day; the day is saved. Second start: Dutch, no wizard, one start more. What the
program leaves on the disk is read with a reader of this test's own.

    start.py <program>
"""
import struct
import sys
from pathlib import Path

from day_file_reader import LINE_END, pieces, read_day_file
from desktop import SETTINGS_TITLE, SPLASH, Desktop
from one_day import fill_in_day

DUTCH_SETTINGS = "^Instellingen van Kelvora FOOD$"
DUTCH_WIZARD = "^Wizard van Kelvora FOOD$"
DUTCH_BROWSER = "^Bestand openen$"
MAIN = "^Kelvora FOOD$"
LANGUAGE, SHOW_WIZARD, STARTS = 0, 1, 13


def settings_of(home):
    data = Path(home, ".config", "Brelux", "kvfset.dat").read_bytes()
    assert struct.unpack_from("<i", data)[0] == 1
    strings, at = [], 4
    for _ in range(51):
        (length,) = struct.unpack_from("<H", data, at)
        strings.append(data[at + 2:at + 2 + length].decode("cp1252"))
        at += 2 + length
    assert at == len(data), "bytes behind the settings"
    return strings


def first_start(desktop, program):
    process = desktop.launch(program)
    desktop.window(MAIN)
    desktop.window(SPLASH)
    desktop.no_window(SPLASH)  # it ends by itself, although the box is up
    desktop.settle()
    desktop.keys("Return")
    desktop.window(SETTINGS_TITLE)
    desktop.settle()
    # Two ticks, then the list of languages; its last entry is Dutch, on sight.
    desktop.keys("Tab", "Tab", "End")
    desktop.window(DUTCH_SETTINGS)
    desktop.keys("Return")
    desktop.no_window(DUTCH_SETTINGS)

    desktop.window(DUTCH_WIZARD)
    desktop.settle()
    # From the options to the tick, which goes, and back to the first option: a new day.
    desktop.keys("Tab", "space", "shift+Tab", "space", "Return")
    fill_in_day(desktop, "Begin een nieuwe dag")
    desktop.keys("ctrl+s")
    return process


def second_start(desktop, program):
    process = desktop.launch(program)
    desktop.window(MAIN)
    desktop.window(SPLASH)
    # The splash holds nothing up: the browser opens while it plays.
    desktop.output("xdotool", "key", "ctrl+o")
    desktop.window(DUTCH_BROWSER)
    assert desktop.shows(SPLASH), "the splash held the program up"
    desktop.no_window(SPLASH)
    desktop.settle()
    desktop.keys("Escape")
    assert not desktop.shows(DUTCH_WIZARD), "the wizard comes although it was told not to"
    return process


def end(desktop, process):
    desktop.keys("ctrl+q")
    assert process.wait(timeout=20) == 0, f"the program ended with {process.returncode}"


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        home = desktop.home.name
        process = first_start(desktop, program)
        end(desktop, process)
        settings = settings_of(home)
        assert settings[LANGUAGE] == "Nederlands.lsf", settings[LANGUAGE]
        assert settings[SHOW_WIZARD] == "0", settings[SHOW_WIZARD]
        assert settings[STARTS] == "1", settings[STARTS]
        (day,) = Path(home, "Documents", "Kelvora FOOD", "My Users", "Anna", "Files").glob("*.kvf")
        header = pieces(read_day_file(day)[2], LINE_END)
        assert header[0] == b"Anna" and header[7] == b"Vrouw", header

        process = second_start(desktop, program)
        end(desktop, process)
        settings = settings_of(home)
        assert settings[STARTS] == "2", settings[STARTS]
        assert settings[SHOW_WIZARD] == "0", settings[SHOW_WIZARD]
    print("first and second start: as they must be")


if __name__ == "__main__":
    main()
