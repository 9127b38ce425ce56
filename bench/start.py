#!/usr/bin/env python3
"""How long a start takes until the main window can be used.

Starts the program on a home with settings and the starter foods, without the wizard, under a
virtual display with a window manager. Ctrl+O goes out again and again from the first moment on; the
start is over when the window of the days is on the screen, so its own opening and the polling count
as well. The splash is still playing then. Prints the times of all runs, in milliseconds.

    bench/start.py <program> [runs]
"""
import statistics
import struct
import subprocess
import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tests" / "e2e"))
from desktop import SPLASH, Desktop  # noqa: E402

DAYS = "^Open file$"


def without_wizard(home):
    path = Path(home, ".config", "Brelux", "kvfset.dat")
    data = path.read_bytes()
    (language,) = struct.unpack_from("<H", data, 4)
    tick = 4 + 2 + language
    assert data[tick:tick + 3] == b"\x01\x001", "the settings hold no wizard"
    path.write_bytes(data[:tick + 2] + b"0" + data[tick + 3:])


def end(desktop, process):
    desktop.keys("ctrl+q")
    assert process.wait(timeout=20) == 0


def milliseconds_to(desktop, title, since):
    while not desktop.shows(title):
        assert time.monotonic() - since < 20, f"no window {title}"
        desktop.output("xdotool", "key", "--delay", "0", "ctrl+o")
    return (time.monotonic() - since) * 1000


def run(desktop, program):
    since = time.monotonic()
    process = desktop.launch(program)
    usable = milliseconds_to(desktop, DAYS, since)
    splash = desktop.shows(SPLASH)
    desktop.no_window(SPLASH)
    desktop.settle()
    desktop.keys("Escape")
    end(desktop, process)
    return usable, splash


def main():
    program = Path(sys.argv[1]).resolve()
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 10
    with Desktop() as desktop:
        end(desktop, desktop.start(program, first_run=True))
        without_wizard(desktop.home.name)
        times = []
        for _ in range(runs):
            usable, splash = run(desktop, program)
            assert splash, "the splash was over before the program could be used"
            times.append(usable)
        empty = time.monotonic()
        subprocess.run(["xdotool", "search", "--onlyvisible", "--name", DAYS],
                       env=desktop.environment, check=False, stdout=subprocess.DEVNULL)
        poll = (time.monotonic() - empty) * 1000
    print("runs:", " ".join(f"{one:.0f}" for one in times))
    print(f"least {min(times):.0f}, median {statistics.median(times):.0f}, most {max(times):.0f} ms; "
          f"one look takes {poll:.0f} ms")


if __name__ == "__main__":
    main()
