#!/usr/bin/env python3
"""Imports the tables that lie beside the project and computes by itself what each food should become.

    tables_test.py <kelvora-food-import> <project>

The tables are looked for in the folder that KELVORA_FOOD_TABLES names, else in ../shared/foods
beside the project; without them the test is skipped (status 77). Nothing here shares code with the
program: the tables are read by Python's csv, amounts are exact decimals, and the category databases
are read by their layout.
"""
import csv
import os
import re
import struct
import subprocess
import sys
import tempfile
from decimal import ROUND_HALF_UP, Decimal
from pathlib import Path

SKIPPED = 77
FIELD, LINE = b"\xbd", b"\xbe"
LOST = "no energy"


def number(cell):
    """An amount, or None for an unknown one."""
    cell = cell.strip().replace(",", ".")
    if cell.lower() == "traces":
        return Decimal(0)
    if cell.startswith("<"):
        return Decimal(0)
    return Decimal(cell) if re.fullmatch(r"[0-9]+(\.[0-9]+)?", cell) else None


def first(*values):
    return next((value for value in values if value is not None), None)


def written(value):
    """At most three decimals, halves up, without zeros at the end."""
    text = str(value.quantize(Decimal("0.001"), ROUND_HALF_UP))
    return text.rstrip("0").rstrip(".") if "." in text else text


def amounts(factor, kj, kcal, protein, fat, fat_s, mono, poly, carbs, sodium, salt=None):
    """The seven amounts of a portion as texts, and how many are unknown; None without energy."""
    def within(value, most):
        return None if value is not None and value > most else value
    kj, kcal = within(kj, 4200), within(kcal, 1000)
    protein, fat, fat_s, mono, poly, carbs, sodium, salt = (
        within(value, 100) for value in (protein, fat, fat_s, mono, poly, carbs, sodium, salt))
    if kj is None and kcal is None:
        return None
    if kj is None:
        kj = kcal * Decimal("4.2")
    if kcal is None:
        kcal = kj / Decimal("4.2")
    fat_u = None
    if mono is not None and poly is not None:
        fat_u = mono + poly
    elif fat is not None and fat_s is not None:
        fat_u = max(Decimal(0), fat - fat_s)
    if sodium is None and salt is not None:
        sodium = salt * Decimal("0.4")
    values = [kj, kcal, protein, fat_u, fat_s, carbs, sodium]
    return ([written((value or Decimal(0)) * factor) for value in values],
            sum(value is None for value in values))


def text(cell):
    """Plain letters for what Windows-1252 lacks are not needed by these tables; see `check_text`."""
    cell = re.sub(r"</?[A-Za-z][^>]*>", " ", cell)
    for name, character in (("&quot;", '"'), ("&lt;", "<"), ("&gt;", ">"), ("&nbsp;", " "),
                            ("&apos;", "'"), ("&amp;", "&")):
        cell = cell.replace(name, character)
    cell = cell.replace("½", "1/2").replace("¾", "3/4").replace("\u00ad", "")
    return " ".join(cell.split())


def check_text(value):
    value.encode("cp1252")  # fails where this reader would have to know more letters
    return value


def sr_foods(folder):
    """(name, unit, grams, amounts, unknown, group, remark) of each food, None for a skipped row."""
    lines = (folder / "usda_sr.tsv").read_text(encoding="utf-8").splitlines()
    header = lines[0].split("\t")
    for line in lines[1:]:
        row = dict(zip(header, line.split("\t")))
        grams = max(1, int(number(row["portion_grams"]).quantize(Decimal(1), ROUND_HALF_UP)))
        sodium = number(row["sodium_mg_100g"])
        found = amounts(Decimal(grams) / 100, number(row["kj_100g"]), number(row["kcal_100g"]),
                        *(number(row[column]) for column in (
                            "protein_100g", "fat_total_100g", "fat_saturated_100g", "fat_mono_100g",
                            "fat_poly_100g", "carbs_100g")),
                        sodium / 1000 if sodium is not None else None)
        yield found and (text(row["name"]), text(row["portion_description"]), grams, *found,
                         text(row["group"]), "")


def ciqual_foods(folder):
    with open(folder / "ciqual_2020.csv", encoding="cp1252", newline="") as file:
        for row in csv.DictReader(file, delimiter=";"):
            def of(start):
                return [number(value) for name, value in row.items() if name.startswith(start)]
            energy = "Energie, Règlement UE N° 1169/2011 ", "Energie, N x facteur Jones, avec fibres  "
            sodium = of("Sodium (mg")[0]
            found = amounts(Decimal(1), first(*(of(e + "(kJ")[0] for e in energy)),
                            first(*(of(e + "(kcal")[0] for e in energy)),
                            of("Protéines, N x facteur de Jones")[0], of("Lipides")[0],
                            of("AG saturés")[0], of("AG monoinsaturés")[0],
                            of("AG polyinsaturés")[0], of("Glucides")[0],
                            sodium / 1000 if sodium is not None else None, of("Sel chlorure")[0])
            yield found and (text(row["alim_nom_fr"]), "100 gram", 100, *found,
                             text(row["alim_grp_nom_fr"]), "")


def fdc_foods(folder):
    units = {"G": Decimal(1), "MG": Decimal("0.001"), "KCAL": Decimal(1), "kJ": Decimal(1)}
    with open(folder / "fdc/nutrient.csv", encoding="utf-8", newline="") as file:
        scales = {row["id"]: units.get(row["unit_name"]) for row in csv.DictReader(file)}
    values = {}
    with open(folder / "fdc/food_nutrient.csv", encoding="utf-8", newline="") as file:
        for row in csv.DictReader(file):
            amount = number(row["amount"])
            if amount is not None:
                values.setdefault((row["fdc_id"], row["nutrient_id"]), amount)
    with open(folder / "fdc/food.csv", encoding="utf-8", newline="") as file:
        for row in csv.DictReader(file):
            def of(nutrient):
                value = values.get((row["fdc_id"], nutrient))
                return None if value is None else value * scales[nutrient]
            found = amounts(Decimal(1), of("1062"), first(of("1008"), of("2047"), of("2048")),
                            of("1003"), of("1004"), of("1258"), of("1292"), of("1293"), of("1005"),
                            of("1093"))
            yield found and (text(row["description"]), "100 gram", 100, *found,
                             row["food_category_id"] or row["data_type"], "")


def lines_of(database):
    """The lines of a category database, each a list of its fields."""
    data = database.read_bytes()
    count, length = struct.unpack_from("<iH", data)
    assert count == 1, database
    begin = 6
    if length == 0xFFFF:
        length, begin = struct.unpack_from("<I", data, 6)[0], 10
        assert length >= 0xFFFF, f"{database}: a short string in the long form"
    assert len(data) == begin + length, database
    lines = data[begin:].split(LINE)
    assert lines.pop() == b""
    for line in lines:
        assert len(line) + 1 + len(database.name) <= 900, line
        fields = line.split(FIELD)
        assert fields.pop() == b"" and len(fields) == 12, line
        yield [field.decode("cp1252") for field in fields]


def compare(program, table, foods, set_name, folder):
    """Imports one table and compares each food; returns how many there are."""
    run = subprocess.run([program, "--directory", folder, table], capture_output=True, text=True)
    assert run.returncode == 0, run.stderr
    expected, given, skipped, unknown = {}, {}, 0, 0
    for food in foods:
        if food is None:
            skipped += 1
            continue
        name, unit, grams, values, missing, group, remark = food
        unknown += missing
        name = name[:250].rstrip()  # what a line has room for
        # The second food of a name gets a number.
        given[name] = given.get(name, 0) + 1
        if given[name] > 1:
            name = f"{name} ({given[name]})"
        expected.setdefault(group.lower() or "other", []).append(
            [check_text(name), unit, str(grams), *values, group, remark])
    found = {}
    for database in Path(folder).glob("*.dat"):
        lines = list(lines_of(database))
        category = database.name.removesuffix(".dat").removeprefix(set_name + ": ")
        found[(lines[0][10] or "other").lower()] = lines
        assert category.replace("-", "/").lower().startswith(lines[0][10].replace("-", "/").lower()[:80]), (
            category, lines[0])
    assert expected.keys() == found.keys(), expected.keys() ^ found.keys()
    for group, lines in expected.items():
        for want, have in zip(lines, found[group]):
            assert want == have, f"\nexpected {want}\nfound    {have}"
        assert len(lines) == len(found[group]), group
    total = sum(map(len, expected.values()))
    facts = dict(line.split(": ", 1) for line in
                 (Path(folder) / f"{set_name}.set.txt").read_text(encoding="utf-8").splitlines()
                 if ": " in line)
    assert (facts["foods"], facts["rows passed over"], facts["amounts unknown"]) == (
        str(total), str(skipped), str(unknown)), (facts, total, skipped, unknown)
    report = Path(folder) / f"{set_name}.skipped.txt"
    listed = report.read_text(encoding="utf-8").splitlines()[1:] if skipped else []
    assert len(listed) == skipped and all(line.split("\t")[1] == LOST for line in listed), report
    print(f"{set_name}: {total} foods, {skipped} rows passed over, {unknown} amounts unknown")
    return total


def main():
    program, project = sys.argv[1], Path(sys.argv[2])
    folder = Path(os.environ.get("KELVORA_FOOD_TABLES") or project.parent / "shared/foods")
    if not folder.is_dir():
        print(f"skipped: no tables in {folder}; KELVORA_FOOD_TABLES names another folder")
        return SKIPPED
    total = 0
    for table, foods, name in ((folder / "usda_sr.tsv", sr_foods, "USDA SR"),
                               (folder / "ciqual_2020.csv", ciqual_foods, "Ciqual"),
                               (folder / "fdc", fdc_foods, "FoodData Central")):
        if not table.exists():
            print(f"skipped: {table} is not there")
            continue
        with tempfile.TemporaryDirectory() as databases:
            total += compare(program, str(table), foods(folder), name, databases)
    return 0 if total else SKIPPED


if __name__ == "__main__":
    sys.exit(main())
