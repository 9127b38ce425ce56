#!/usr/bin/env python3
"""Makes trend_lines.tsv, lines of the trend chart.

    make_trend_lines.py TABLE

Each row is one series of days with the pieces of its line and the day lines
that come with it, worked out without the program: days by datetime, places
as exact fractions, each rounded to a single once as in make_single_steps.py.
The width of a day is the single of the width's shortest text over the days.

Columns: the time line, 0 per file and 1 per date; width and height of the
picture as hexadecimal floats; the dates, year, month and day; the heights of
the series in percent; the pieces, each as x1, y1, x2 and y2 parted by blanks;
the places of the day lines.  Lists are parted by ";", and "-" is an empty one.
The values are drawn with a fixed seed, so that another run gives the same
table.
"""

import argparse
import datetime
import random
from fractions import Fraction
from pathlib import Path

from make_single_steps import single


def shortest(number):
    """The value of the shortest text of seven digits at the most."""
    return Fraction(f"{float(number):.7g}")


def days_since(first, key):
    def date(text):
        return datetime.date(2000 + int(text[:2]), int(text[2:4]), int(text[4:]))
    return (date(key) - date(first)).days


def line_of(per_date, width, height, keys, heights):
    span = days_since(keys[0], keys[-1])
    if span <= 0 or len(heights) < 2:
        return [], []
    last = len(heights) - 1
    ys = [single(Fraction(value) * height / 100) for value in heights]
    if not per_date:
        xs = [single(Fraction(i, last) * width) for i in range(last + 2)]
        days = xs[1:last + 1] if len(keys) >= 3 else []
        return list(zip(xs, ys, xs[1:], ys[1:] + ys[-1:])), days
    day = single(shortest(width) / span)
    xs = [single(day * days_since(keys[0], key)) for key in keys]
    return [(xs[i], ys[i], xs[i + 1], ys[i + 1]) for i in range(last)], xs[:last]


def key(day):
    return (datetime.date(2000, 1, 1) + datetime.timedelta(day)).strftime("%y%m%d")


def charts(rng):
    for _ in range(120):
        per_date = rng.random() < 0.5
        width = single(rng.choice([rng.randint(3000, 12000), rng.uniform(3000, 12000)]))
        height = single(rng.choice([rng.randint(900, 9000), rng.uniform(900, 9000)]))
        count = rng.choice([2, 2, 3, 5, 9, 14])
        reach = rng.choice([count, 40, 400, 9000])
        days = sorted(rng.randint(0, reach) for _ in range(count))
        keys = [key(day) for day in days]
        filled = rng.choice([count, count, count, rng.randint(0, count)])
        heights = [rng.choice(["0", "100", "50", f"{rng.uniform(0, 100):.13f}"])
                   for _ in range(filled)]
        yield per_date, width, height, keys, heights


def text(number):
    return float(number).hex()


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("table", type=Path)
    rows = ["stand\twidth\theight\tkeys\theights\tpieces\tdays"]
    for per_date, width, height, keys, heights in charts(random.Random(20040312)):
        # The program reads heights as doubles.
        exact = [Fraction(float(value)) for value in heights]
        pieces, days = line_of(per_date, width, height, keys, exact)
        columns = [str(int(per_date)), text(width), text(height), ";".join(keys),
                   ";".join(heights), ";".join(" ".join(map(text, piece)) for piece in pieces),
                   ";".join(map(text, days))]
        rows.append("\t".join(column or "-" for column in columns))
    parser.parse_args().table.write_text("\n".join(rows) + "\n", "ascii")


if __name__ == "__main__":
    main()
