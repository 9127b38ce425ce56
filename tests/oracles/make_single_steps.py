#!/usr/bin/env python3
"""Makes single_steps.tsv, results of the arithmetic in 32-bit singles.

    make_single_steps.py TABLE

Unit conversions, sums and roundings are worked out without the program: what
is held as double by Python's float; what is held as single as the exact
fraction, rounded to 24 binary digits here; texts by the rules for numbers in
make_number_formats.py, which lie on Python's decimal; days by datetime.

Columns: the function; its one or two arguments; its result.  A failure's
result is "failure" and its code.  SumOf has the numbers to add, parted by
";", in one argument.  RoundTo has the single and the number of decimals, and
it and SumOf have a hexadecimal float as result.  The values are drawn with a
fixed seed, so that another run gives the same table.
"""

import argparse
import datetime
import math
import random
from decimal import Decimal, ROUND_HALF_EVEN
from fractions import Fraction
from pathlib import Path

from make_number_formats import WIDE, formatted, value_of, written

INPUTS = 300


class Failure(Exception):
    pass


def single(exact):
    """The single nearest to an exact value or a double, ties to even."""
    if isinstance(exact, float) and not math.isfinite(exact):
        raise Failure
    exact = Fraction(exact)
    if exact == 0:
        return Fraction(0)
    power = math.floor(math.log2(abs(exact.numerator)) - math.log2(exact.denominator))
    while abs(exact) >= Fraction(2) ** (power + 1):
        power += 1
    while abs(exact) < Fraction(2) ** power:
        power -= 1
    step = Fraction(2) ** max(power - 23, -149)
    result = round(exact / step) * step  # Python's round takes halves to even
    if abs(result) >= Fraction(2) ** 128:
        raise Failure
    return result


def constant(bits):
    sign, power, mantissa = bits >> 31, bits >> 23 & 0xFF, bits & 0x7FFFFF
    assert sign == 0 and 0 < power < 255
    return Fraction(2 ** 23 + mantissa) * Fraction(2) ** (power - 150)


LBS = constant(0x400D1889)
STONE = constant(0x3D924925)
FEET = constant(0x4051F948)
INCH = constant(0x41400000)
OZ = constant(0x3D107B6E)


def read(text):
    return value_of(text.replace(",", "."))


def finite(value):
    if not math.isfinite(value):
        raise Failure
    return value


def pattern(value, by):
    return formatted(finite(float(value)), by)


def lbs_to_kg(pounds):
    return written(finite(read(pounds) / float(LBS)), 15)


def kg_to_lbs(kilograms):
    return pattern(single(read(kilograms) * float(LBS)), "##0.00")


def kg_to_stones(kilograms):
    pounds = single(read(kilograms) * float(LBS))
    return pattern(single(pounds * STONE), "##0.0")


def gram_to_oz(grams):
    ounces = single(read(grams) * float(OZ))
    ounces = single(read(pattern(ounces, "##0.0")))
    whole = written(float(ounces), 7).endswith("0")
    ounces = single(read(pattern(ounces, "##0" if whole else "##0.0")))
    return written(float(ounces), 7)


def oz_to_gram(ounces):
    return pattern(single(read(ounces) / float(OZ)), "##0")


def meter_to_feet_inch(metres, part):
    text = written(finite(read(metres) * float(FEET)), 15)
    if "." not in text:
        raise Failure
    whole, fraction = text.split(".")
    if part == "0":
        return written(float(single(read(whole))), 7)
    return pattern(single(read("0." + fraction) * float(INCH)), "##")


def feet_inch_to_meter(feet, inches):
    all_feet = value_of(feet) + value_of(inches) / float(INCH)
    return pattern(all_feet / float(FEET), "0.#0")


def bereken_bmi(height, weight):
    metres, kilograms = single(read(height)), single(read(weight))
    square = single(metres * metres)
    if square == 0:
        raise Failure
    return pattern(single(kilograms / square), "##.00")


def date_of(text):
    try:
        return datetime.datetime.strptime("20" + text, "%Y%m%d").date()
    except ValueError:
        raise Failure


def dagen_tussen(first, second):
    if len(first) != 6 or len(second) != 6:
        return ""
    days = (date_of(second) - date_of(first)).days
    if not -32768 <= days <= 32767:
        raise Failure
    return str(days)


def sum_of(numbers):
    total = Fraction(0)
    for number in numbers.split(";"):
        total = single(float(total) + read(number))
    return float(total).hex()


def round_to(value, decimals):
    step = Decimal(1).scaleb(-int(decimals))
    rounded = Decimal(float.fromhex(value)).quantize(step, ROUND_HALF_EVEN, WIDE)
    return float(single(Fraction(rounded))).hex()


def amount(rng, largest):
    """A typed number up to about `largest`, with either decimal mark."""
    text = f"{rng.uniform(0, largest):.{rng.randint(0, 4)}f}"
    return text.replace(".", rng.choice([".", ","]))


ODD_TEXTS = ["0", "0.0", "0,0", " ", "  12", "1", "7", "10", "100", "1000", ".5", ",5", "5.", "5,",
             "-1", "-0", "-12,5", "+3.5", "abc", "12 kg", "1.2.3", "1,2,3", "1e3", "1.80 m",
             "0.001", "0,0001", "0.0000001", "0." + "0" * 20 + "1", "0." + "0" * 50 + "1",
             "99999", "123456.789", "9999999", "16777217", "123456789012345", "1" + "0" * 20,
             "1" + "0" * 37, "1" + "0" * 38, "3" + "0" * 38, "1" + "0" * 45, "9" * 320, ""]


def texts(rng, largest):
    return ODD_TEXTS + [amount(rng, largest * rng.choice([1, 1, 1, 10]))
                        for _ in range(INPUTS - len(ODD_TEXTS))]


def some_date(rng):
    day = datetime.date(2000, 1, 1) + datetime.timedelta(rng.randrange(36525))
    return day.strftime("%y%m%d")


def some_single(rng):
    kind = rng.randrange(4)
    whole = rng.choice([0, rng.randrange(10), rng.randrange(10 ** rng.randint(1, 6))])
    if kind == 0:  # exact ties of one to six decimals, and what lies between them
        value = whole + rng.randrange(2 ** 6) / 2 ** rng.randint(1, 6)
    elif kind == 1:  # looks like a tie in decimals
        value = whole + rng.randrange(1000) / 10 ** rng.randint(1, 3) + 5 / 10 ** rng.randint(1, 4)
    elif kind == 2:
        value = rng.uniform(0, 10 ** rng.randint(-6, 8))
    else:  # beside an exact tie by the last binary digit
        value = (whole % 1000 + 0.5) * (1 + rng.choice([-1, 1]) * 2 ** -23)
    return float(single(rng.choice([1, 1, -1]) * value))


def cases(rng):
    for function, largest in [("Lbs_To_Kg", 400), ("Kg_To_Lbs", 200), ("Kg_To_Stones", 200),
                              ("Gram_To_Oz", 1500), ("Oz_To_Gram", 60)]:
        for text in texts(rng, largest):
            yield function, text, ""
    for text in texts(rng, 2.5):
        yield "Meter_To_Feet_Inch", text, "0"
        yield "Meter_To_Feet_Inch", text, "1"
    for feet in texts(rng, 7):
        yield "Feet_Inch_To_Meter", feet, rng.choice([amount(rng, 12), str(rng.randrange(12))])
    for inches in ODD_TEXTS:
        yield "Feet_Inch_To_Meter", "5", inches
    for height in texts(rng, 2.5):
        yield "Bereken_BMI", height, amount(rng, 200)
    for weight in ODD_TEXTS:
        yield "Bereken_BMI", "1.80", weight
    for _ in range(INPUTS):
        first = some_date(rng)
        yield "Dagen_Tussen", first, rng.choice([first, some_date(rng), some_date(rng)])
    for pair in [("000101", "991231"), ("991231", "000101"), ("000101", "890917"),
                 ("000101", "890918"), ("890918", "000101"), ("890919", "000101"),
                 ("240228", "240301"), ("230228", "230301"), ("240229", "250228"),
                 ("230229", "230301"), ("231301", "230101"), ("230100", "230101"),
                 ("230431", "230501"), ("230101", "abcdef"), ("", "230101"), ("230101", ""),
                 ("2301", "230101"), ("20230101", "230101"), ("23-1-1", "230101")]:
        yield "Dagen_Tussen", *pair
    for _ in range(INPUTS):
        yield ("SumOf", ";".join(amount(rng, rng.choice([1, 30, 400, 4000]))
                                 for _ in range(rng.randint(1, 25))), "")
    for numbers in ["0", "-1;1", "16777216;1;1;1", "1;16777216", "0.1;0,2;-0.3", "abc;5 g;",
                    "1" + "0" * 38 + ";3" + "0" * 38, "9" * 320 + ";1"]:
        yield "SumOf", numbers, ""
    for value in [0.125, 0.375, 0.5, 1.5, 2.5, 3.5, -2.5, 0.0, 1e-30, 1e30, 3.4e38, 16777215.0]:
        for decimals in range(-1, 4):
            yield "RoundTo", float(single(value)).hex(), str(decimals)
    for _ in range(2 * INPUTS):
        yield "RoundTo", some_single(rng).hex(), str(rng.randint(0, 4))


# Each function with the code of its failure.
FUNCTIONS = {"Lbs_To_Kg": (lbs_to_kg, "#FF11-1"), "Kg_To_Lbs": (kg_to_lbs, "#FF11-1"),
             "Kg_To_Stones": (kg_to_stones, "#FF11-2"), "Gram_To_Oz": (gram_to_oz, "#FF11-3"),
             "Oz_To_Gram": (oz_to_gram, "#FF11-4"),
             "Meter_To_Feet_Inch": (meter_to_feet_inch, "#FF11-5"),
             "Feet_Inch_To_Meter": (feet_inch_to_meter, "#FF11-6"),
             "Bereken_BMI": (bereken_bmi, "#FF11-7"), "Dagen_Tussen": (dagen_tussen, "#FF11-9"),
             "SumOf": (sum_of, ""), "RoundTo": (round_to, "")}
TWO_ARGUMENTS = {"Meter_To_Feet_Inch", "Feet_Inch_To_Meter", "Bereken_BMI", "Dagen_Tussen",
                 "RoundTo"}


def result_of(name, first, second):
    function, code = FUNCTIONS[name]
    if name not in TWO_ARGUMENTS:
        arguments = [first]
    else:
        arguments = [first, second]
    if "" in arguments:
        return ""
    try:
        return function(*arguments)
    except Failure:
        return f"failure {code}".rstrip()


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("table", type=Path)
    table = ["function\tfirst\tsecond\tresult"]
    for case in dict.fromkeys(cases(random.Random(20040305))):
        table.append("\t".join([*case, result_of(*case)]))
    parser.parse_args().table.write_text("\n".join(table) + "\n", "ascii")


if __name__ == "__main__":
    main()
