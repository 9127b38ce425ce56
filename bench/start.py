#!/usr/bin/env python3
"""How long a start takes until the main window can be used.

Starts the program on a home with settings and the starter foods, without the wizard, under a
virtual display with a window manager. Ctrl+O goes out again and again from the first moment on; the
start is over when the window of the days is on the screen, so its own opening and the polling count
as well. The splash is still playing then. Prints the times of all runs, in milliseconds. With a
number of foods, so many made-up ones are imported before, by the program that lies beside it.

    bench/start.py <program> [runs [foods]]
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


def import_foods(desktop, program, count):
    """A table in the form of USDA SR, in twenty groups."""
    table = Path(desktop.home.name, "table.tsv")
    with open(table, "w", encoding="utf-8") as file:
        file.write("ndb_no\tgroup\tname\tportion_description\tportion_grams\tkcal_100g\tkj_100g\t"
                   "protein_100g\tfat_total_100g\tfat_saturated_100g\tfat_mono_100g\tfat_poly_100g\t"
                   "carbs_100g\tsodium_mg_100g\n")
        for i in range(count):
            file.write(f"{i}\tGroup {i % 20}\tFood of a factory, number {i}\t1 piece\t50\t{i % 900}\t"
                       f"{i % 3700}\t{i % 30}\t{i % 40}\t{i % 10}\t1\t1\t{i % 70}\t{i % 800}\n")
    result = subprocess.run([program.with_name("kelvora-food-import"), "-d",
                             Path(desktop.home.name, ".local/share/kelvora-food/Databases"), table],
                            capture_output=True, text=True, check=True)
    print(result.stderr.strip())


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
        if len(sys.argv) > 3:
            import_foods(desktop, program, int(sys.argv[3]))
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
