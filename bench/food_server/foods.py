"""Tables of foods to measure a food server with, in the form of data/foods, and terms to search for.

The foods are the published ones of USDA SR where that table is there, else as many made up of the
words of the starter foods. A larger table is made up of the words of the smaller one, each as often
as it stands there, so that its common words are as common; a seed makes it the same each time.
"""
import os
import random
import re
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
TABLES = Path(os.environ.get("KELVORA_FOOD_TABLES", SOURCE.parent / "shared/foods"))
PUBLISHED = TABLES / "usda_sr.tsv"
PUBLISHED_COUNT = 8789
COLUMNS = "name unit gram kj kcal protein fat_u fat_s carbs sodium group remark".split()
WORD = re.compile(r"[^\W\d_]{2,}")


def starter_names():
    """English and Dutch names; the Dutch ones stand first in the remark."""
    names = []
    for table in sorted((SOURCE / "data/foods").glob("*.tsv")):
        for row in table.read_text(encoding="utf-8").splitlines()[1:]:
            cells = row.split("\t")
            names += [cells[0], cells[-1].split(",")[0]]
    return names


def amount(cell, factor=1.0):
    return f"{float(cell or 0) * factor:.3f}".rstrip("0").rstrip(".") or "0"


def published_rows():
    """The published table: a portion of whole grams, and what it holds."""
    for row in PUBLISHED.read_text(encoding="utf-8").splitlines()[1:]:
        (_, group, name, unit, grams, kcal, kj, protein, _, saturated, mono, poly, carbs,
         sodium) = row.split("\t")
        gram = max(1, round(float(grams or 100)))
        part = gram / 100
        unsaturated = str(float(mono or 0) + float(poly or 0))
        yield [name, unit, str(gram), amount(kj, part), amount(kcal, part), amount(protein, part),
               amount(unsaturated, part), amount(saturated, part), amount(carbs, part),
               amount(sodium, part / 1000), group, ""]


def made_up_rows(count, names, seed=1):
    """Rows named with the words of the given names, from two to nine of them and a number."""
    dice = random.Random(seed)
    words = [word for name in names for word in re.split(r"[\s,()/]+", name) if WORD.fullmatch(word)]
    lengths = [max(2, min(9, len(name.split()))) for name in names]
    for number in range(1, count + 1):
        name = ", ".join(dice.choices(words, k=dice.choice(lengths))) + f" {number}"
        kcal = dice.randint(5, 900)
        grams = [f"{dice.randint(0, 400) / 10:g}" for _ in range(4)]
        yield [name.capitalize(), "100 g", "100", str(round(kcal * 4.2)), str(kcal), *grams,
               f"{dice.randint(0, 2000) / 1000:g}", "Made up", f"{dice.choice(words)} {dice.choice(words)}"]


def write(rows, path):
    """Writes a table and returns the names that stand in it."""
    names = []
    with open(path, "w", encoding="utf-8", newline="\n") as table:
        table.write("\t".join(COLUMNS) + "\n")
        for row in rows:
            names.append(row[0])
            table.write("\t".join(row) + "\n")
    return names


def base_rows():
    """The smaller table and a word on where it comes from."""
    if PUBLISHED.exists():
        return list(published_rows()), "USDA SR"
    return list(made_up_rows(PUBLISHED_COUNT, starter_names())), "made up of the starter foods' words"


def terms(names, count, seed=2):
    """Terms to search for: a tenth are two letters that a word of a name begins with, a tenth are
    two neighbouring words with their blank, all others one word; each drawn evenly from the
    different ones that the names have."""
    dice = random.Random(seed)
    words, pairs = set(), set()
    for name in names:
        found = [word.lower() for word in re.split(r"[\s,()/]+", name) if WORD.fullmatch(word)]
        words.update(found)
        pairs.update(re.findall(r"[^\W\d_]{2,} [^\W\d_]{2,}", name.lower()))
    words, pairs = sorted(words), sorted(pairs)
    beginnings = sorted({word[:2] for word in words})
    drawn = []
    for place in range(count):
        kind = (beginnings, pairs or words)[place % 10] if place % 10 < 2 else words
        drawn.append(dice.choice(kind))
    dice.shuffle(drawn)
    return drawn
