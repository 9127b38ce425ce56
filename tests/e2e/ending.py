#!/usr/bin/env python3
"""Tells the program to end at every moment of its start, in every way there is: by Alt+F4, Ctrl+Q,
the close box and the menu; during the splash and after it; with and without the wizard; on a first
start under its box, its settings and its wizard. Each time the process must be gone within three
seconds, and what it leaves is whole.

    ending.py <program>
"""
import struct
import subprocess
import sys
import time
from pathlib import Path

from desktop import SETTINGS_TITLE, SPLASH, WIDTH, WIZARD, Desktop
from start import settings_of

MAIN = "^Kelvora FOOD$"
MOMENTS = (0.3, 1.0, 2.5)
STARTS = 13


def write_settings(home, wizard):
    strings = [b""] * 51
    strings[0], strings[1], strings[STARTS] = b"English.lsf", b"1" if wizard else b"0", b"7"
    folder = Path(home, ".config", "Brelux")
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "kvfset.dat").write_bytes(
        struct.pack("<i", 1) + b"".join(struct.pack("<H", len(s)) + s for s in strings))


def close_box(desktop):
    """Clicks the box in the title bar of the main window, which fills the screen."""
    desktop.output("xdotool", "mousemove", str(WIDTH - 11), "10", "click", "1")


def menu(desktop):
    """File, and its last entry."""
    desktop.output("xdotool", "key", "--delay", "60", "alt+f", "Up", "Return")


WAYS = {
    "Alt+F4": lambda desktop: desktop.output("xdotool", "key", "alt+F4"),
    "Ctrl+Q": lambda desktop: desktop.output("xdotool", "key", "ctrl+q"),
    "the close box": close_box,
    "File > Close": menu,
}


def ended(process, seconds):
    try:
        process.wait(timeout=seconds)
    except subprocess.TimeoutExpired:
        return False
    return True


def expect_end(desktop, process, what):
    assert ended(process, 3), f"{what}: the process lives on"
    assert process.returncode == 0, f"{what}: ended with {process.returncode}"
    desktop.processes.remove(process)


def tell_to_end(desktop, program, way, moment, wizard):
    what = f"{way} after {moment} s {'with' if wizard else 'without'} the wizard"
    write_settings(desktop.home.name, wizard)
    process = desktop.launch(program)
    desktop.window(MAIN)
    time.sleep(moment)
    if wizard:
        desktop.window(WIZARD)
        if way != "Ctrl+Q":  # which the wizard passes on
            # It is modal: Alt+F4 closes it first, and before the others a hand would.
            desktop.output("xdotool", "key", "alt+F4" if way == "Alt+F4" else "Escape")
            desktop.no_window(WIZARD)
    splash = desktop.shows(SPLASH)
    WAYS[way](desktop)
    expect_end(desktop, process, what)
    starts = settings_of(desktop.home.name)[STARTS]
    # A start counts behind the wizard; one that ends under it does not, and nothing is half written.
    assert starts == ("7" if wizard and way == "Ctrl+Q" else "8"), f"{what}: {starts} starts"
    return splash


def first_start(desktop, program, boxes):
    """Ends a first start with Alt+F4: under its box, its settings, its wizard, then itself."""
    home = Path(desktop.home.name)
    (home / ".config" / "Brelux" / "kvfset.dat").unlink(missing_ok=True)
    process = desktop.launch(program)
    desktop.window(MAIN)
    for _ in range(boxes):
        time.sleep(0.5)
        desktop.output("xdotool", "key", "alt+F4")
    desktop.window(WIZARD)
    assert not desktop.shows(SETTINGS_TITLE)
    # Two at once: the second one meets the main window while the wizard is still closing.
    desktop.output("xdotool", "key", "--delay", "1", "alt+F4", "alt+F4")
    if not ended(process, 1):
        desktop.output("xdotool", "key", "alt+F4")
    expect_end(desktop, process, "a first start")


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        first_start(desktop, program, 2)
        during_splash = 0
        for wizard in (False, True):
            for way in WAYS:
                for moment in MOMENTS:
                    during_splash += tell_to_end(desktop, program, way, moment, wizard)
        assert during_splash >= 8, f"the splash was up only {during_splash} times"
    print("told to end in 25 ways, ended in each")


if __name__ == "__main__":
    main()
