#!/usr/bin/env python3
"""Makes number_formats.tsv, the table that the number code is held against.

    make_number_formats.py TABLE [--soffice PROGRAM]

Some ten thousand values and texts are put to LibreOffice Basic, whose Format,
Str and Val know the same patterns as this program, and its answers are
written into TABLE.  The Basic text stands beside this script in
number_formats.bas; it runs in a profile of its own that is thrown away.  The
table in use was made with LibreOffice 7.4.

Basic doesn't follow our rules everywhere: it puts a blank before a number,
writes exponents and more digits of a single.  So each row also carries what
the rule gives, worked out with Python's decimal from the exact value, and "="
where the two are the same.  The test names every kind of difference.

Columns: the kind of question; the value as a hexadecimal float, or the text
of "val" with \\t, \\n, \\r and \\\\ for what a table can't hold; the pattern;
Basic's answer; the rule's.  The kinds:

    format           Format with the pattern
    str, str1        Str of a double and of a single
    digits, digits1  the same numbers with fifteen and seven digits and an
                     exponent, by Format; the rule's answer is that of Str
    val              Val; both answers are hexadecimal floats

The values are drawn with a fixed seed, so that another run gives the same
table.
"""

import argparse
import math
import random
import re
import struct
import subprocess
import sys
import tempfile
from decimal import Context, Decimal, ROUND_HALF_UP
from pathlib import Path
from xml.sax.saxutils import escape

PATTERNS = ["##0.00", "##0.0", "##0", "#####0", "####0", "###0", "##0.000",
            "##.00", "##", "####", "0.#0"]
RANDOM_A_PATTERN = 430
STR_DOUBLES = 1000
STR_SINGLES = 1000

# How the fifteen (single: seven) digits are reached when the value lies
# exactly between two of them: away from zero, as in the patterns.
TIE_OF_THE_SHORT_FORM = ROUND_HALF_UP
WIDE = Context(prec=800, rounding=ROUND_HALF_UP)

EDGES = [
    0.0, -0.0, 0.5, 1.5, 2.5, 3.5, 9.5, 99.5, 999.5, 0.25, 0.75, 1.25, 0.125,
    0.375, 0.0625, 0.05, 0.15, 0.35, 0.005, 0.015, 0.045, 0.145, 1.005, 1.015,
    1.115, 2.675, 4.35, 8.345, 9.95, 9.995, 9.9995, 99.995, 0.0005, 0.0015,
    0.0045, 0.9995, 0.99949999, 0.00049999, 0.004999999, 0.049999999999,
    0.4999999999999, 1.0, 7.0, 10.0, 100.0, 1000.0, 12345.0, 99999.0,
    100000.0, 999999.0, 1234567.0, 10000.125, 12345.625, 12345.875, 1000000.5,
    16777205.0, 615.7623291015625, 0.1, 0.01, 0.001, 0.0001, 1e-5, 1e-10,
    1e-300, 154.3236, 70.5, 24.691358, 0.1 + 0.2, 1 / 3, 2 / 3, 1e14 + 0.5,
    123456789012.345, 99999999999999.5, 999999999999.995, 1e15,
    999999999999999.0, 999999999999999.5, 1e16, 9007199254740993.0,
    123456789012345678.0, 1e20, 1e22, 1e100, 1.7976931348623157e308]
NEIGHBOURS_OF = [0.5, 1.5, 2.5, 0.05, 0.25, 0.005, 1.005, 2.675, 0.0005, 99.5,
                 1.0, 10.0, 100.0, 1000.0]

VAL_TEXTS = """
|0|00|-0|+0|1|12|007|12.5|-12.5|+12.5|.5|-.5|+.5|5.|-5.|0.5|00.50|.|-|+|-.|+.
|..|..5|1..5|1.2.3|1.2.3.4|-1.2.3|12,5|1,2,3|,5|1,|1.5,7|-1,5|70,5 kg|70.5 kg
|12g|12 g|12.g|12.5g|-7 g|3 pieces|1/2|1-2|1+2|5-|5+|--5|++5|+-5|-+5|- 5|+ 5
| 5|  5|   -7 g| +3|  .5| |   |5 | 5 5|1 2.5 3|1 000|1 . 5|12 .5|12. 5
|\t5|\t 5\t|\n5|\r\n5|5\n6|5\t6|1\t2|\t|\n|\r|\t-\t5|- \t5
|1e5|1E5|1e+5|1e-5|1.5e3|-2E2|1e|1e+|1e5.5|1d5|1D2|e5|E5|.e5|1ee5|0e0|2e400
|abc|a1|12abc34|g 12|x|#1|$5|%|5%|(5)|'5|"5"|*|/|\\5|_1|=5|<5|~
|&H10|&hFF|&O17|&B1|0x10|0b1|1_000|1'000|inf|-inf|nan|Infinity|1#|1!|1&
|123456789|1234567890123456789|0.1234567890123456789|123456.789012345
|999999999999999999999999|0.000000000000000000000001|0.1|0.2|0.3|0.7|1.1|2.675
|1.005|0.045|4.35|100.005|9007199254740993|9007199254740992.5|4503599627370497.5
|0.30000000000000004|1.7976931348623157|2.2250738585072014|8.5|33.333333
|179769313486231570000000000000000000000|3.4028235|16777217|0.0000001|.0000
|0.50000000000000011102230246251565|0.1000000000000000055511151231257827
|9999999999999999|99999999999999999|0.99999999999999999|5e-324|4.9e-324
""".replace("\n", "")


def digits_of(rng, count):
    return rng.randrange(10 ** (count - 1), 10 ** count)


def single(value):
    return struct.unpack("f", struct.pack("f", value))[0]


def random_value(rng, places):
    """A value of one of the kinds that tend to go wrong with `places`."""
    kind = rng.randrange(8)
    whole = rng.choice([0, digits_of(rng, rng.randint(1, 6))])
    if kind == 0:  # any number of digits at any magnitude
        count = rng.randint(1, 17)
        value = float(f"{digits_of(rng, count)}e{rng.randint(-count - 6, 3)}")
    elif kind == 1:  # a tie in decimals
        value = float(f"{whole}.{rng.randrange(10 ** 3):03}"[:-3 + places or None]
                      .rstrip(".") + ("5" if places else ".5"))
    elif kind == 2:  # a tie in binary as well, or nearly one
        value = whole + rng.randrange(64) / rng.choice([2, 4, 8, 16, 32, 64])
    elif kind == 3:  # beside a tie, by a last binary digit or a late decimal
        tie = float(f"{whole}.{'0' * places}5")
        value = rng.choice([math.nextafter(tie, 0), math.nextafter(tie, 1e9),
                            tie + 1e-9, tie - 1e-9, tie * (1 - 4e-15)])
    elif kind == 4:  # beside a power of ten
        power = 10.0 ** rng.randint(-4, 9)
        value = power + rng.choice([-1, 1]) * power * 10.0 ** -rng.randint(1, 16)
    elif kind == 5:  # a single, as most sums and amounts are
        value = single(float(f"{digits_of(rng, rng.randint(1, 8))}e{rng.randint(-6, 0)}"))
    elif kind == 6:  # fifteen to seventeen digits
        count = rng.randint(15, 17)
        value = float(f"{digits_of(rng, count)}e{-rng.randint(0, count)}")
    else:  # an amount as foods have it
        value = round(rng.uniform(0, 4000), rng.randint(0, 3))
    return -value if rng.randrange(5) == 0 else value


def questions():
    """All (kind, value or text, pattern), without repetition."""
    rng = random.Random(20040305)
    edges = EDGES + [-v for v in EDGES[2:50:3]]
    for value in NEIGHBOURS_OF:
        edges += [math.nextafter(value, 0), math.nextafter(value, 1e9)]
    asked = []
    for pattern in PATTERNS:
        places = len(pattern.partition(".")[2])
        asked += [("format", value, pattern) for value in edges]
        asked += [("format", random_value(rng, places), pattern)
                  for _ in range(RANDOM_A_PATTERN)]
    doubles = edges + [random_value(rng, rng.randrange(4)) for _ in range(STR_DOUBLES)]
    asked += [(kind, value, "") for value in doubles for kind in ("str", "digits")]
    singles = [v for v in edges if v == 0 or 1e-30 < abs(v) < 1e30]
    singles += [random_value(rng, rng.randrange(4)) for _ in range(STR_SINGLES)]
    asked += [(kind, single(value), "") for value in singles for kind in ("str1", "digits1")]
    asked += [("val", re.sub(r"\\(.)", lambda m: {"t": "\t", "n": "\n", "r": "\r"}
                             .get(m[1], m[1]), text), "")
              for text in VAL_TEXTS.split("|")]
    asked += [("val", "9" * 400, ""), ("val", "-" + "9" * 400, ""),
              ("val", "0." + "0" * 400 + "1", "")]
    for _ in range(150):  # digits with a point anywhere, more of them than a double holds
        digits = str(digits_of(rng, rng.randint(1, 20)))
        at = rng.randint(0, len(digits))
        asked.append(("val", rng.choice(["", "", "-"]) + digits[:at] + "." + digits[at:], ""))
    return list({(k, v.hex() if k != "val" else v, p): (k, v, p) for k, v, p in asked}.values())


def short_form(value, digits):
    return Context(prec=digits, rounding=TIE_OF_THE_SHORT_FORM).plus(Decimal(value))


def plain_digits(number):
    """Sign, digits before and digits behind the point, no zero too many."""
    whole, _, fraction = format(abs(number), "f").partition(".")
    sign = "-" if number < 0 else ""
    return sign, whole.lstrip("0"), fraction.rstrip("0")


def formatted(value, pattern):
    whole_pattern, point, fraction_pattern = pattern.partition(".")
    step = Decimal(1).scaleb(-len(fraction_pattern))
    sign, whole, fraction = plain_digits(short_form(value, 15).quantize(step, context=WIDE))
    whole = whole.rjust(whole_pattern.count("0"), "0")
    fraction = fraction.ljust(fraction_pattern.rfind("0") + 1, "0")
    return sign + whole + point + fraction


def written(value, digits):
    sign, whole, fraction = plain_digits(short_form(value, digits))
    return sign + (whole or "0") + ("." if fraction else "") + fraction


def value_of(text):
    """Blanks, tabs and line ends in front, a sign, digits, one point."""
    sign, digits = re.match(r"[ \t\n\r]*([+-]?)([0-9]*\.?[0-9]*)", text).groups()
    number = float(digits) if digits.strip(".") else 0.0
    return -number if sign == "-" else number


def rule(kind, value, pattern):
    if kind == "format":
        return formatted(value, pattern)
    if kind == "val":
        return value_of(value)
    return written(value, 7 if kind.endswith("1") else 15)


def parts(value):
    """The value as number_formats.bas reads it."""
    mantissa, power = math.frexp(abs(value))
    mantissa = int(mantissa * 2 ** 53)
    return (f"{'-' if value < 0 else '+'} {mantissa >> 27} {mantissa % 2 ** 27} "
            f"{power - 53 if value else 0}")


def of_parts(text):
    sign, *numbers = text.split(" ")
    if numbers == ["inf"]:
        value = math.inf
    else:
        upper, lower, power = map(int, numbers)
        value = math.ldexp(upper * 2 ** 27 + lower, power)
    return -value if sign == "-" else value


def run_basic(soffice, asked):
    """Basic's answers, one line a question."""
    basic = (Path(__file__).parent / "number_formats.bas").read_text("ascii")
    with tempfile.TemporaryDirectory() as folder:
        profile = Path(folder, "profile")
        command = [soffice, f"-env:UserInstallation={profile.as_uri()}", "--headless",
                   "--norestore", "--nologo"]
        options = {"check": True, "timeout": 300,
                   "env": {"PATH": "/usr/bin:/bin", "HOME": folder, "LC_ALL": "C"}}
        # The first start fills the profile with an empty library, so the module comes after it.
        subprocess.run([*command, "--terminate_after_init"], **options)
        library = profile / "user/basic"
        (library / "Standard/Oracle.xba").write_text(
            '<?xml version="1.0" encoding="UTF-8"?>\n'
            '<script:module xmlns:script="http://openoffice.org/2000/script" '
            'script:name="Oracle" script:language="StarBasic">' + escape(basic) +
            "</script:module>\n", "utf-8")
        (library / "Standard/script.xlb").write_text(
            '<?xml version="1.0" encoding="UTF-8"?>\n'
            '<library:library xmlns:library="http://openoffice.org/2000/library" '
            'library:name="Standard" library:readonly="false" library:passwordprotected="false">'
            '<library:element library:name="Oracle"/></library:library>\n', "utf-8")
        (library / "script.xlc").write_text(
            '<?xml version="1.0" encoding="UTF-8"?>\n'
            '<library:libraries xmlns:library="http://openoffice.org/2000/library" '
            'xmlns:xlink="http://www.w3.org/1999/xlink"><library:library '
            'library:name="Standard" xlink:href="$(USER)/basic/Standard/script.xlb/" '
            'xlink:type="simple" library:link="false"/></library:libraries>\n', "utf-8")
        question_file, answer_file = Path(folder, "questions"), Path(folder, "answers")
        question_file.write_text("".join(
            f"{kind}\t{' '.join(str(ord(c)) for c in value) if kind == 'val' else parts(value)}"
            f"\t{pattern}\n" for kind, value, pattern in asked), "ascii")
        subprocess.run([*command, f"macro:///Standard.Oracle.Main({question_file},{answer_file})"],
                       **options)
        answers = answer_file.read_text("ascii").splitlines()
    if len(answers) != len(asked):
        sys.exit(f"{len(asked)} questions, but {len(answers)} answers")
    return [answer.split("\t") for answer in answers]


def rows(asked, answers):
    escapes = str.maketrans({"\\": r"\\", "\t": r"\t", "\n": r"\n", "\r": r"\r"})
    for (kind, value, pattern), (held, text) in zip(asked, answers):
        expected = rule(kind, value, pattern)
        if kind == "val":
            text = held if held.startswith("error") else of_parts(held).hex()
            value, expected = value.translate(escapes), expected.hex()
            # A zero has no sign here: Basic's parts don't tell it.
            expected = "0x0.0p+0" if expected == "-0x0.0p+0" else expected
        else:
            if held.startswith("error") or of_parts(held) != value:
                sys.exit(f"Basic held {held!r} for {kind} {value!r}")
            value = value.hex()
        yield "\t".join([kind, value, pattern, text, "=" if expected == text else expected])


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("table", type=Path)
    parser.add_argument("--soffice", default="soffice")
    arguments = parser.parse_args()
    asked = questions()
    table = ["kind\tinput\tpattern\tlibreoffice\texpected"]
    table += rows(asked, run_basic(arguments.soffice, asked))
    arguments.table.write_text("\n".join(table) + "\n", "ascii")


if __name__ == "__main__":
    main()
