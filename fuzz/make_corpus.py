#!/usr/bin/env python3
"""Writes the seeds of the fuzz targets: fuzz/corpus/<target>/<what it is>.

Knows the file layout from docs/file_formats.md and shares nothing with the program. Running it
again gives the same files.
"""
import struct
from pathlib import Path

CORPUS = Path(__file__).resolve().parent / "corpus"
FIELD_END, LINE_END = b"\xbd", b"\xbe"
ALL_BYTES = bytes(range(256))


def string(text, long_form=False):
    if long_form or len(text) >= 0xFFFF:
        return struct.pack("<HI", 0xFFFF, len(text)) + text
    return struct.pack("<H", len(text)) + text


def record(*strings, count=1):
    return struct.pack("<i", count) + b"".join(string(s) for s in strings)


def line(*fields):
    return b"".join(field + FIELD_END for field in fields)


def block(*lines):
    return b"".join(each + LINE_END for each in lines)


APPLE = line(b"Apple", b"1 piece", b"150", b"325", b"77", b"0.5", b"0.2", b"0", b"18.4", b"0.003",
             b"Fruit", b"appel")
BREAD = line(b"Bread, brown", b"1 slice", b"35", b"343,5", b"81,9", b"3,7", b"0,6", b"0,2", b"14,1",
             b"0,177", b"Grain", b"brood")
CAFE = line("Café crème".encode("cp1252"), b"1 cup", b"125", b"21", b"5", b"0.3", b".1", b"-0.2",
            b"+0.6", b" 0.010", b"", "\u20ac 2".encode("cp1252"))
HUGE = line(b"Huge", b"", b"9" * 400, b"1e5", b"3" + b"0" * 38, b"." + b"0" * 400 + b"1", b"-", b"",
            b"0x10", b"1.2.3", b"", b"")
SHORT = line(b"Short", b"1", b"2")
ODD_LINES = block(b"", b"unclosed", FIELD_END, FIELD_END * 20, SHORT, HUGE)
FOODS = block(APPLE, BREAD, CAFE, APPLE)

HEADER = block(b"Zo\xeb", b"Street 1", b"", b"Town", b"1234 AB", b"1.80", b"80.5", b"Male", b"42",
               b"05-03-04", b"75", b"Friday", b"Country", b"", b"")
TREND = line(b"150", b"325", b"77", b"0.2", b"0", b"18.4", b"0.5", b"0.003", b"80.5")


def broken(good):
    """What may be wrong with any file, whatever its strings mean."""
    strings = good[4:]
    seeds = {
        "empty": b"",
        "count_only": good[:4],
        "cut_in_the_count": good[:2],
        "cut_in_a_length": good[:5],
        "cut_in_the_middle": good[:len(good) // 2],
        "cut_at_the_end": good[:-1],
        "bytes_behind": good + b"behind the record",
        "two_records": struct.pack("<i", 2) + strings * 2,
        "all_bytes": ALL_BYTES,
        "all_bytes_in_a_string": good[:4] + string(ALL_BYTES) + strings,
        "long_form": good[:4] + string(b"short text in the long form", long_form=True) + strings,
        "long_form_too_long": good[:4] + struct.pack("<HI", 0xFFFF, 0xFFFFFFFF) + strings,
        "long_form_cut": good[:4] + struct.pack("<HH", 0xFFFF, 1),
        "length_just_below_the_long_form": good[:4] + struct.pack("<H", 0xFFFE) + strings,
    }
    for count in (0, -1, 2, 0x7FFFFFFF, -0x80000000):
        seeds[f"count_{count}".replace("-", "minus_")] = struct.pack("<i", count) + strings
    return seeds


def each_way(seeds, ways):
    """Targets choose what to check by the input's size: each seed so that every choice is made."""
    return {f"{name}_{more}": data + b"\1" * more
            for name, data in seeds.items() for more in range(ways)}


def day_files():
    good = record(TREND, b"A quiet day.\r\nRain.", HEADER, FOODS, block(BREAD), block(CAFE, SHORT))
    return broken(good) | each_way({
        "good": good,
        "nothing_eaten": record(b"", b"", HEADER, b"", b"", b""),
        "odd_lines": record(b"no terminator", ALL_BYTES, block(), ODD_LINES, ODD_LINES, ODD_LINES),
        "half_in_the_weight": record(TREND, b"", block(*[b"a" + FIELD_END] * 15), FOODS, b"", b""),
        "sum_beyond_a_single": record(TREND, b"", HEADER, block(HUGE, HUGE), b"", b""),
        "sum_of_parts_beyond_a_single": record(
            TREND, b"", HEADER, *[block(line(b"x", b"", b"2" + b"0" * 38))] * 3),
        "short_header": record(TREND, b"", block(b"Ann", b""), FOODS, b"", b""),
        "no_date": record(TREND, b"", HEADER.replace(b"05-03-04", b"5 march"), b"", b"", b""),
        "date_with_marks": record(TREND, b"", HEADER.replace(b"05-03-04", b"05/3 1\\04"), b"", b"", b""),
        "same_line_nine_times": record(TREND, b"", HEADER, *[block(*[APPLE] * 9)] * 3),
    }, 4)


def settings_files():
    values = [b""] * 51
    values[0], values[14], values[16], values[18] = b"Nederlands.lsf", b"1", b"1", b"/home/me/Zo\xeb/"
    good = record(*values)
    return broken(good) | {
        "good": good,
        "all_empty": record(*[b""] * 51),
        "all_full": record(*[b"%d" % i for i in range(51)]),
        "language_elsewhere": record(b"../../other.lsf", *values[1:]),
    }


def profile_files():
    values = [b"Zo\xeb", b"Street 1", b"", b"Town", b"1234 AB", b"1.80", b"Female", b"42", b"80.5",
              b"75", b"Country", b"", b"", b"", b"1", b"9000", b"2143", b"80", b"27", b"1", b"60",
              b"300", b"", b"", b"", b""]
    good = record(*values)

    def with_values(**changes):
        changed = {int(key[1:]): value for key, value in changes.items()}
        return record(*[changed.get(i, value) for i, value in enumerate(values)])

    return broken(good) | {
        "good": good,
        "height_0": with_values(_5=b"0"),
        "height_whole_feet": with_values(_5=b"0,0"),
        "height_tiny": with_values(_5=b"." + b"0" * 30 + b"1"),
        "weight_huge": with_values(_8=b"9" * 60, _9=b"9" * 400),
        "priority_beyond": with_values(_14=b"6"),
        "priority_long": with_values(_14=b"05"),
        "spare_strings_full": with_values(_22=b"a", _23=b"b", _24=b"c", _25=ALL_BYTES),
    }


def food_files():
    good = record(FOODS)
    return broken(good) | each_way({
        "good": good,
        "no_lines": record(b""),
        "odd_lines": record(ODD_LINES),
        "unclosed_block": record(FOODS + b"dropped" + FIELD_END),
        "many_equal_lines": record(block(*[SHORT] * 60)),
        "only_line_ends": record(LINE_END * 100),
        "only_field_ends": record(FIELD_END * 100 + LINE_END),
        "names_that_begin_alike": record(block(line(b"Rice"), line(b"Rice, white"), line(b"rice"))),
        "line_longer_than_a_block_of_a_list": record(block(b"x" * 1500, b"y" * 1024, b"z" * 1023)),
    }, 3)


def texts_of_lines():
    return each_way({
        "empty": b"",
        "food_line": APPLE,
        "block": FOODS,
        "odd_lines": ODD_LINES,
        "all_bytes": ALL_BYTES,
        "all_bytes_but_the_terminators": ALL_BYTES.translate(None, FIELD_END + LINE_END),
        "unclosed": FOODS + b"dropped",
        "many_equal_lines": block(*[SHORT, APPLE] * 30),
        "moves": b"\x00\x01\x02" + FOODS,
        "deletes": b"\x02\x03\x00" + FOODS + b"pad",
        "only_terminators": (FIELD_END + LINE_END) * 40,
        "line_longer_than_a_block_of_a_list": block(b"x" * 1500, b"y" * 1024, b"z" * 1023),
    }, 5)


def texts_of_numbers():
    texts = [b"", b"0", b"-0", b"12.345", b"12,345", b" \t\r\n-7", b"+.5", b"-.", b".", b"1.2.3",
             b"1,2,3", b"1e5", b"0x10", b"nan", b"inf", b"--1", b"- 1", b"0.5", b"1.5", b"2.5",
             b"0.125", b"0.0005", b"0.005", b"999999.5", b"9999999", b"16777217", b"99999.995",
             b"340282346638528859811704183484516925440", b"340282356779733661637539395458142568448",
             b"1" + b"0" * 308, b"1" + b"0" * 309, b"." + b"0" * 307 + b"1", b"0." + b"0" * 400 + b"1",
             b"9" * 800, b"0" * 800 + b"1", b"123456789012345678", b"0.1234567890123456",
             ALL_BYTES]
    texts += [b"0.000030517578125", b"0.0000152587890625", b"1.0000305175781250", b"8388608.5",
              b"9999999.5", b"1000000000000000.5", b"9007199254740985", b"99999999999999.95"]
    seeds = {f"text_{i:02}": text for i, text in enumerate(texts)}
    doubles = [0.0, -0.0, 1.0, 0.1, 5e-324, 2.2250738585072014e-308, 1.7976931348623157e308,
               float("inf"), float("-inf"), float("nan"), 999999999999999.5, 1e15, 0.0005, 3.4028235e38]
    for i, value in enumerate(doubles):
        # An odd length has the bytes taken for a double; the last byte chooses the pattern.
        seeds[f"double_{i:02}"] = struct.pack("<d", value) + bytes([i])
    floats = [0.5, 1.5, 2.5, 16777216.0, 3.4028234663852886e38, 1e-45, 0.1]
    for i, value in enumerate(floats):
        seeds[f"single_{i:02}"] = struct.pack("<f", value) + b"\0\0" + bytes([45 + i])
    return seeds


def texts_to_search():
    """Two bytes that choose the wanted text, then the text that is searched."""
    lines = {"food_line": APPLE, "accents": "Crème brûlée Ÿ š × ÷".encode("cp1252") * 3,
             "all_bytes": ALL_BYTES, "repeated": b"a" * 40 + b"b" + b"A" * 40, "short": b"ab"}
    return {f"{name}_{at}_{length}": bytes([at, length]) + text
            for name, text in lines.items() for at, length in ((0, 1), (5, 4), (30, 16))}


def language_files():
    tables = [block(*[b"%d text %d" % (table, i) for i in range(4)]) for table in range(26)]
    good = record(*tables)
    return broken(good) | {
        "good": good,
        "more_entries_than_a_table_has": record(block(*[b"%d" % i for i in range(210)]), *tables[1:]),
        "all_empty": record(*[b""] * 26),
    }


def replies():
    """Lengths tell what a seed is taken for, so each stands there with up to three bytes behind it."""
    foods = APPLE + b"\xbc" + CAFE + b"\xbc" + SHORT + b"\xbc"
    kinds = {
        "empty": b"", "foods": foods, "text_behind": foods + b"more", "no_quarter": FOODS,
        "only_quarters": b"\xbc" * 9, "ends_of_lines": b"Soup\xbe" + FIELD_END + b"\xbe\xbc",
        "all_bytes": ALL_BYTES, "nuls": b"\0" * 9 + b"\xbc", "utf_8": "Crème½1 stuk½¼".encode(),
        "accepted": b"OK", "accepted_and_more": b"OK, thanks", "lower_case": b"ok",
        "version": b"3.00\xbdmore\xbd", "own_version": b"2.24\xbd", "no_version": b"\xbd2.25\xbd",
        "points": b"...\xbd", "long_version": b"9" * 400 + b"\xbd", "line_in_a_term": b"soup\r\nHost: x",
    }
    return {f"{name}_{more}": text + b"." * more for name, text in kinds.items() for more in range(4)}


def delimited_tables():
    row = b'"a ""b""","c,d",e\r\n"two\nlines",,"x"y\r\n'
    return {
        "empty": b"", "mark": b"\xef\xbb\xbfa,b\n1,2\n", "quoted": row * 3, "no_end": row[:-2],
        "semicolons": "Nom;Prot\xe9ines (g)\r\nCr\xe8me;< 0,5\r\nPain;traces\r\n".encode("cp1252"),
        "tabs": b"n\tsize\n1\t2\" sq\n\t\n", "bars": b"|a|b|\r|1|2|\r", "nuls": b"a\0,b\0\n\0",
        "unbalanced": b'a,b\n"x,1\ny,2\n', "only_quotes": b'"' * 9, "carriage_returns": b"\r\r\na,b\r",
        "html": b"<b>a</b> &amp; &#233;,&#0;,</,<5%,&#x110000;\n", "numbers": b"1.234,5;1,234.5;1e3;-1;.\n",
        "letters": "\u017bywiec,e\u0300,\u5bff\u53f8,\u00bd \u00be,\u200b\n".encode(),
        "utf_16": "a,b\n".encode("utf-16"), "all_bytes": ALL_BYTES, "archive": b"PK\3\4,\n",
        "long": b"x" * 5000 + b"\n" + b"," * 5000,
    }


def food_requests():
    """Terms, queries of submissions, lines and configurations of the food server."""
    query = ("naam=%s&kj=1500&kcal=357&vvet=2,50&ovet=5.50&kdr=60.00&ew=10.00&nat=0.200"
             "&opmerking=Kelvora FOOD&gepost=anna")
    return {
        "word": b"rice", "two_words": b"ham egg", "short": b"ri", "percent": b"0%", "encoded": b"%20",
        "accents": "Crème Brûlée".encode("cp1252"), "utf_8": "crème".encode(),
        "combining": "cre\u0300me".encode(), "extended": "łosoś ĳs".encode(), "other_script": "рис".encode(),
        "quoted": b'"rice" OR NEAR(ham egg) * ^', "sql": b"'; DROP TABLE food_a; --",
        "separators": b"\xbc\xbd\xbe", "many_words": b"a b c d e f g h i j k l m n o p",
        "long": b"r" * 300, "all_bytes": ALL_BYTES,
        "submission": (query % "Muesli").encode(), "cut_name": (query % "M&M's").encode(),
        "twice": (query % "a&kj=1").encode(), "comma": (query % "x").replace(".", ",").encode(),
        "bare": b"naam=&kj=&kcal=&vvet=&ovet=&kdr=&ew=&nat=&gepost=",
        "apple": APPLE, "bread": BREAD, "cafe": CAFE, "short_line": line(b"Rice"),
        "quarter": line(b"\xbc melon", b"\x01"), "huge": HUGE,
        "amount": b"12,5", "no_amount": b"1.2.3", "point": b".5",
        "configuration": b"# food\nport = 80\nfoods = /a\nfoods = /b\nlog = debug\n",
        "wrong_key": b"prot = 80\n", "wrong_value": b"port = 99999\n",
    }


def main():
    records = broken(record(b"one")) | {
        "six": record(*[b"%d" % i * i for i in range(6)]),
        "fifty_one": record(*[b"s" * i for i in range(51)]),
        "longest_short_form": record(b"x" * 65534),
        "shortest_long_form": record(b"x" * 65535, b"y"),
    }
    targets = {
        "record_reader": records,
        "line_splitter": texts_of_lines(),
        "val": texts_of_numbers(),
        "day_file": day_files(),
        "settings_file": settings_files(),
        "profile_file": profile_files(),
        "custom_file": food_files(),
        "favourites_file": food_files(),
        "category_file": food_files(),
        "language_file": language_files(),
        "text_search": texts_to_search(),
        "reply": replies(),
        "delimited": delimited_tables(),
        "food_request": food_requests(),
    }
    for target, seeds in targets.items():
        folder = CORPUS / target
        folder.mkdir(parents=True, exist_ok=True)
        for name, data in seeds.items():
            (folder / name).write_bytes(data)


if __name__ == "__main__":
    main()
