#!/usr/bin/env python3
"""Makes pies.tsv, the pies of lists of values.

    make_pies.py TABLE

Each row is a list of at least six cells as they stand in a column of a list,
with the pie of the five largest worked out without the program: the sort is
the plain double loop over the texts; what is held as single is the exact
fraction, rounded to 24 binary digits as in make_single_steps.py; shares are
printed by the rules of make_number_formats.py.

Columns: the cells, parted by ";"; their places after the sort; the printed
shares of the five largest and of the rest; the drawn wedges, each as index,
start, end and both angles, parted by blanks, as hexadecimal floats.  Shares
and wedges are "stop" where too few shares are left for a pie.  The values are
drawn with a fixed seed, so that another run gives the same table.
"""

import argparse
import random
from pathlib import Path

from make_number_formats import formatted, value_of
from make_single_steps import single

# -2 pi as a single; one percent of it is a single again.
TURN = single(-6.2831855)
OF_PERCENT = single(TURN / 100)


def as_stored(cell):
    return value_of(cell.replace(",", "."))


def sort(cells):
    """Places after the sort, which reads the cells as they stand."""
    texts, places = list(cells), list(range(len(cells)))
    for i in range(len(texts)):
        for j in range(len(texts)):
            if i != j and value_of(texts[i]) > value_of(texts[j]):
                texts[i], texts[j] = texts[j], texts[i]
                places[i], places[j] = places[j], places[i]
    return places


def shares_of(cells, places):
    total = single(0)
    for cell in cells:
        total = single(float(total) + as_stored(cell))
    for place in places:
        value = as_stored(cells[place])
        if value < 1:
            yield 0.0
        elif value > 1:
            yield value * 99.999 / float(total)


def wedge_ends(shares):
    end = float(single(shares[0]))
    yield end
    for share in shares[1:5]:
        end = float(single(end + share + 0.1))
        yield end


def angle(percent):
    return abs(float(single(OF_PERCENT * single(percent))))


def wedges(ends):
    starts = [float(single(0.0001))] + [min(end, 100.0) for end in ends]
    stops = [min(end, 100.0) for end in ends] + [100.0]
    for index, (start, end) in enumerate(zip(starts, stops)):
        if end > start:
            yield " ".join([str(index), *(n.hex() for n in (start, end, angle(start), angle(end)))])


def pie(cells):
    places = sort(cells)
    order = ";".join(map(str, places))
    shares = list(shares_of(cells, places))
    if len(shares) < 5:
        return order, "stop", "stop"
    ends = list(wedge_ends(shares))
    rest = float(single(100 - ends[-1]))
    printed = [formatted(share, "##") for share in [*shares[:5], max(rest, 0.0)]]
    return order, ";".join(printed), ";".join(wedges(ends))


def lists(rng):
    yield ["100"] * 6
    yield ["0"] * 6
    yield ["0.500", "0.123", "0.999", "3.000", "0.001", "0.250"]
    yield ["0,500", "0,123", "0,999", "3,000", "0,001", "0,250", "3,750"]
    yield ["5", "4", "1", "3", "2", "6", "7"]
    yield ["9", "1", "1", "8", "1", "7"]
    yield ["9", "1", "1", "1", "1", "7"]
    yield ["20", "20", "20", "20", "20", "0"]
    yield ["50000", "30000", "15000", "4000", "900", "1"]
    yield ["99999", "0", "0", "0", "0", "0"]
    yield ["", "12", "", "7", "abc", "3"]
    for _ in range(150):
        count = rng.choice([6, 6, 7, 9, 20, 60])
        most = rng.choice([3, 10, 200, 5000])
        yield [str(rng.randint(0, most)) for _ in range(count)]
    for separator in ",.":
        for _ in range(75):
            count = rng.choice([6, 7, 12, 40])
            most = rng.choice([900, 2500, 9000])
            yield [f"{rng.randint(0, most) / 1000:.3f}".replace(".", separator)
                   for _ in range(count)]


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("table", type=Path)
    table = ["cells\torder\tshares\twedges"]
    for cells in lists(random.Random(20040305)):
        table.append("\t".join([";".join(cells), *pie(cells)]))
    parser.parse_args().table.write_text("\n".join(table) + "\n", "ascii")


if __name__ == "__main__":
    main()
