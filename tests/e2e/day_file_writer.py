"""Writes day files byte by byte; shares nothing with the program that reads them."""
import datetime
import struct

TREND_FIELDS = 9


def block(lines, end="¾"):
    return "".join(line + end for line in lines)


def write_day_file(path, date, trend, morning=(), afternoon=(), evening=(), user="Anna", diary="",
                   weight="", weekday=""):
    """One record: trend, diary, header and the three parts of the day.  Foods are lists of fields."""
    header = [user] + [""] * 5 + [weight, "", "", date, "", weekday] + [""] * 3
    parts = [block([block(food, "½") for food in part]) for part in (morning, afternoon, evening)]
    strings = [block(map(str, trend), "½"), diary, block(header), *parts]
    data = struct.pack("<i", 1)
    for string in strings:
        text = string.encode("cp1252")
        data += struct.pack("<H", len(text)) + text
    path.write_bytes(data)


def food(name, unit="1 piece", gram=100, kj=400, kcal=96, protein=5, fat_u=3, fat_s=2, carbs=20,
         sodium=0.1):
    return [str(field) for field in (name, unit, gram, kj, kcal, protein, fat_u, fat_s, carbs, sodium,
                                     "0", "")]


def write_days(folder, values, first=datetime.date(2004, 1, 1), user="Anna"):
    """A day for each of the values, its trend nine of them, one day after the other."""
    for number, (trend, foods) in enumerate(values):
        day = first + datetime.timedelta(days=number)
        name = day.strftime("%d%m%Y") + "210000.kvf"
        write_day_file(folder / name, day.strftime("%d-%m-%y"), trend, morning=foods, user=user)
