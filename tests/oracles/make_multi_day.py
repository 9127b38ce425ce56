#!/usr/bin/env python3
"""Makes multi_day.tsv: what all days of sixty users come to.

    make_multi_day.py TABLE

The day files of a user are drawn from a seed by a generator so small that the
test has it too (multi_day_oracle_test.cpp), and so needs no files to be kept:
2 to 400 days with equal dates, dates of no sense, empty files, files without
a record or cut short, trends of two or twenty fields and empty ones, foods in
several portions.  They are read here byte by byte, and everything is worked
out without the program: the sort by its plain double loop, sums as the
nearest 32-bit floats, cells by the rules of make_number_formats.py.

Columns: the seed; the days; the first and the last key; the rows of the
list; the average of the kilojoules; and sums (64-bit FNV-1a) over the keys
with the files, the fields of the nine series, their heights, the seven
averages and the cells of all rows.  What is summed is joined by ";", a line
each for what belongs together; heights have 17 significant digits, averages
9.
"""

import argparse
import struct
from pathlib import Path

from make_number_formats import formatted, value_of, written

SEEDS = range(1, 61)
ODD_DATES = ["", "31/12/99", "1 2\\03 04", "12,03,03", "abc", "5", "31-02-03"]
AVERAGED = [1, 2, 3, 4, 7, 6, 5]


class Draw:
    """Knuth's 64-bit linear congruential generator."""

    def __init__(self, seed):
        self.state = seed

    def __call__(self, count):
        self.state = (self.state * 6364136223846793005 + 1442695040888963407) % 2**64
        return (self.state >> 33) % count


def drawn_date(draw):
    kind = draw(12)
    if kind == 0:
        return "05-03-04"
    if kind == 1:
        return ODD_DATES[draw(len(ODD_DATES))]
    day, month, year = 1 + draw(28), 1 + draw(12), draw(100)
    return f"{day:02}-{month:02}-{year:02}"


def drawn_field(draw):
    if draw(15) == 0:
        return ""
    whole = str(draw(3000))
    mark = draw(3)
    return whole if mark == 0 else whole + ".,"[mark - 1] + f"{draw(100):02}"


def drawn_trend(draw):
    kind = draw(12)
    if kind == 0:
        return "½" * 9
    count = {1: 2, 2: 20}.get(kind, 9)
    return "".join(drawn_field(draw) + "½" for _ in range(count))


def drawn_food(draw):
    name, portion = draw(40), draw(3)
    values = [(name * (7 + place) + portion * 13) % (50 + 300 * place) for place in range(8)]
    mark = "," if portion == 2 else "."
    fields = [f"Food {name}", f"portion {portion}"]
    fields += [f"{value}{mark}{(value + place) % 1000:03}" for place, value in enumerate(values)]
    return "".join(field + "½" for field in fields + ["0", ""])


def drawn_file(draw):
    kind = draw(20)
    if kind == 0:
        return struct.pack("<i", 0)
    if kind == 1:
        return b""
    date, trend = drawn_date(draw), drawn_trend(draw)
    header = "".join(row + "¾" for row in ["Anna"] + [""] * 8 + [date] + [""] * 5)
    parts = ["".join(drawn_food(draw) + "¾" for _ in range(draw(4))) for _ in range(3)]
    data = struct.pack("<i", 1)
    for text in [trend, "", header, *parts]:
        coded = text.encode("cp1252")
        data += struct.pack("<H", len(coded)) + coded
    return data[:draw(len(data))] if kind == 2 else data


def drawn_user(seed):
    """The files of a user by their names, which don't stand in the order of the dates."""
    draw = Draw(seed)
    most = [9, 50, 399][seed % 3]
    count = 2 + draw(most)
    return sorted((f"{draw(1000000):06}{number:03}.kvf", drawn_file(draw))
                  for number in range(count))


def read(data):
    """The six strings of the first record; nothing if there is none."""
    if len(data) < 4:
        return [""] * 6
    if struct.unpack_from("<i", data)[0] <= 0:
        return None
    strings, rest = [], data[4:]
    for _ in range(6):
        length = int.from_bytes(rest[:2], "little")
        strings.append(rest[2:2 + length].decode("cp1252"))
        rest = rest[2 + length:]
    return strings


def pieces(text, end):
    return text.split(end)[:-1]


def key_of(header):
    rows = pieces(header.replace(",", "."), "¾")
    date = rows[9] if len(rows) > 9 else ""
    for mark in "-/\\ ":
        date = date.replace(mark, "")
    four = date[:4]
    return date[-2:] + four[-2:] + four[:2]


def sort(entries):
    """By the number of the key, with the loops over all pairs."""
    numbers = [value_of(key) for key, _, _ in entries]
    for i in range(len(entries)):
        for j in range(len(entries)):
            if i != j and numbers[i] < numbers[j]:
                numbers[i], numbers[j] = numbers[j], numbers[i]
                entries[i], entries[j] = entries[j], entries[i]


def days_of(files):
    entries, before = [], [""] * 6
    for name, data in files:
        before = read(data) or before
        entries.append((key_of(before[2]), name, data))
    sort(entries)
    series, foods, before = [[] for _ in range(9)], [], [""] * 6
    for _, _, data in entries:
        before = read(data) or before
        fields = pieces(before[0].replace(",", "."), "½")
        for k in range(9):
            series[k].append(fields[k] if k < len(fields) else "")
        for part in before[3:]:
            foods += [line.replace(",", ".") for line in pieces(part, "¾")]
    return entries, series, foods


def heights_of(fields):
    numbers = []
    for field in fields:
        if field == "":
            break
        numbers.append(value_of(field))
    if not numbers:
        return []
    most = max(numbers) or 1.0
    return [value_of(written(100 - number * 100 / most, 15)) for number in numbers]


def single(number):
    return struct.unpack("f", struct.pack("f", number))[0]


def average(fields):
    total = 0.0
    for field in fields:
        if field.encode("cp1252") > b"0":
            total = single(total + single(value_of(field)))
    return single(total / len(fields))


def rows_of(foods):
    firsts = {}
    for line in foods:
        firsts.setdefault(line.partition("½")[0], line)
    for number, line in enumerate(firsts.values()):
        count = foods.count(line)
        fields = pieces(line, "½")
        fields += [""] * (12 - len(fields))
        amount = lambda field, pattern: formatted(value_of(fields[field]) * count, pattern)
        yield [str(2 * number + 2), fields[0], str(count), fields[1], amount(2, "#####"),
               amount(3, "#####0"), amount(4, "####0"), amount(6, "###0"), amount(7, "###0"),
               amount(5, "###0"), amount(9, "##0.000"), amount(8, "###0")]


def sum_of(lines):
    total = 0xCBF29CE484222325
    for byte in "\n".join(";".join(line) for line in lines).encode("cp1252"):
        total = (total ^ byte) * 0x100000001B3 % 2**64
    return f"{total:016x}"


def row_of(seed):
    files = drawn_user(seed)
    entries, series, foods = days_of(files)
    averages = [f"{average(series[k]):.9g}" for k in AVERAGED]
    heights = [[f"{height:.17g}" for height in heights_of(fields)] for fields in series]
    rows = list(rows_of(foods))
    return [str(seed), str(len(files)), entries[0][0], entries[-1][0], str(len(rows)), averages[0],
            sum_of([[key, name] for key, name, _ in entries]), sum_of(series), sum_of(heights),
            sum_of([averages]), sum_of(rows)]


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("table", type=Path)
    arguments = parser.parse_args()
    columns = "seed days first last rows average keys fields heights averages cells".split()
    lines = ["\t".join(columns)] + ["\t".join(row_of(seed)) for seed in SEEDS]
    arguments.table.write_text("\n".join(lines) + "\n", "ascii")


if __name__ == "__main__":
    main()
