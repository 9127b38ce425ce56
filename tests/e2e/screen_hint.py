#!/usr/bin/env python3
"""The hint about a small screen counts the pixels of the screen, whatever its scale: 800 of them are
too few at any scale, 1024 are enough at scale 2 as well, where the windows have 512 to lie on.

    screen_hint.py <program>
"""
import sys
from pathlib import Path

from desktop import SPLASH, Desktop
from ending import MAIN, write_settings

HINT = "^Warning #F4-7$"


def hint_comes(program, size, scale):
    with Desktop(size) as desktop:
        write_settings(desktop.home.name, wizard=False)
        process = desktop.launch(program, scale=scale)
        desktop.window(MAIN)
        desktop.no_window(SPLASH)
        desktop.settle()
        comes = desktop.shows(HINT)
        if comes:
            desktop.keys("Return")
            desktop.no_window(HINT)
        desktop.keys("ctrl+q")
        assert process.wait(timeout=20) == 0, f"the program ended with {process.returncode}"
        return comes


def main():
    program = Path(sys.argv[1]).resolve()
    for size, scale, expected in (((1024, 768), 1, False), ((1024, 768), 2, False),
                                  ((800, 600), 1, True), ((800, 600), 2, True)):
        assert hint_comes(program, size, scale) == expected, f"{size} at scale {scale}"
    print("the hint counts the pixels of the screen")


if __name__ == "__main__":
    main()
