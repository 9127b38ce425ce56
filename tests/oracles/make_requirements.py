#!/usr/bin/env python3
"""Makes requirements.tsv, rows of the requirements panel in 32-bit singles.

    make_requirements.py TABLE

The lengths of the two bars and the percentage of a row are worked out without
the program, each named step as the exact fraction, rounded to 24 binary digits as
in make_single_steps.py; texts by the rules of make_number_formats.py.

Columns: the requirement and the amount used, as hexadecimal floats; the widths
of panel and text box in twips; the lengths of both bars, as hexadecimal floats;
the requirement and the amount as they are written whole; the amount printed by
"####"; the percentage.  A row that can't be divided has "failure" from the
column on where it fails.  The values are drawn with a fixed seed, so that
another run gives the same table.
"""

import argparse
import random
from fractions import Fraction
from pathlib import Path

from make_number_formats import formatted, written
from make_single_steps import single

ROWS = 400
MARGINS = 120
PERCENTAGE = 5


def row(required, used, panel, text):
    required, used = single(Fraction(required)), single(Fraction(used))
    fields = [float(required).hex(), float(used).hex(), str(panel), str(text)]
    both = single(required + used)
    if both == 0:
        return fields + ["failure"] * 6
    scale = single((panel - MARGINS - text) / both)
    fields += [float(single(scale * amount)).hex() for amount in (required, used)]
    if required == 0:
        return fields + ["failure"] * 4
    share = single(used / required)
    percentage = written(float(single(share * 100)), 7)
    return fields + [written(float(required), 7), written(float(used), 7),
                     formatted(float(used), "####"), percentage[:PERCENTAGE]]


def inputs():
    yield from [(2, 1.5), (11100, 0), (9000, 9000), (3, 1), (95, 100), (1, 12.34567), (0, 5), (0, 0),
                (1, 0.4), (2143, 0.5), (1e-3, 1e7), (16777216, 1)]
    drawn = random.Random(20040305)
    while True:
        required = drawn.choice([drawn.randrange(1, 30001), round(drawn.uniform(0.1, 400), 3)])
        used = drawn.choice([drawn.uniform(0, 2 * required), drawn.randrange(0, 20000),
                             round(drawn.uniform(0, 10), 3)])
        yield required, used


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("table", type=Path)
    drawn = random.Random(1)
    names = ("required used panel text required_bar used_bar required_text used_text amount "
             "percentage")
    lines = ["\t".join(names.split())]
    for (required, used), _ in zip(inputs(), range(ROWS)):
        panel, text = drawn.randrange(6000, 11300), drawn.choice([2000, 1700, 2640])
        lines.append("\t".join(row(required, used, panel, text)))
    parser.parse_args().table.write_text("\n".join(lines) + "\n", encoding="ascii")


if __name__ == "__main__":
    main()
