#!/usr/bin/env python3
"""Makes the reports in reports/, the pages and files that the export is held against.

    make_reports.py REPORTS

A second writer of the HTML page, the DTA file and the XML file. It was written from the rules and
shares nothing with the program: words, style sheet and layout stand here once more, numbers go by
the rules of make_number_formats.py and make_single_steps.py, the fingerprint is zlib's.

Reads users.tsv and days.tsv in REPORTS, which were made by hand, and writes <user>.html, .dta and
.xml beside them, in Windows-1252. In the tables "|" closes a field and "~" a line; \\r, \\n and \\t
are a carriage return, a line feed and a tab. A day belongs to the user of its first column.
"""

import argparse
import csv
import zlib
from collections import Counter
from pathlib import Path

from make_number_formats import formatted, written
from make_single_steps import (gram_to_oz, kg_to_lbs, kg_to_stones, meter_to_feet_inch, read,
                               round_to, single)

WORDS = {"English": {
    "index": "Date|Day|Weight|Gram|Kj|Kcal|Fat (u)|Fat (s)|Protein|Sodium|Carbs.",
    "items": "Food item|Unit|Gram|Kj|Kcal|Fat (u)|Fat (s)|Protein|Sodium|Carbs.",
    "date": "Date:", "back": "Back to index", "totals": "Total nutritional values:",
    "title": "Kelvora FOOD summary of", "from": "days from", "till": "till",
    "report": "Kelvora FOOD summary", "contents": "This report:", "of": "Summary of",
    "days": "days", "created": "This page is created on", "with": "with", "by": "by",
    "name": "Name:", "gender": "Gender:", "reference": "Reference ID:", "height": "Height:",
    "address 1": "Address 1:", "address 2": "Address 2:", "goal": "Goal weight:",
    "last": "Last weight:", "city": "City:", "age": "Age:", "postcode": "Postcode:",
    "state": "State or province:", "country": "Country:",
    "graphs": "weight|Kilocalories|Unsaturated fats|Saturated fats|Proteins|Carbohydrates",
}, "Dutch": {
    "index": "Datum|Dag|Gewicht|Gram|Kj|Kcal|Vet (o)|Vet (v)|Eiwit|Natrium|Koolh.",
    "items": "Voedingsmiddel|Eenheid|Gram|Kj|Kcal|Vet (o)|Vet (v)|Eiwit|Natrium|Koolh.",
    "date": "Datum:", "back": "terug naar index", "totals": "Totale voedingswaarden:",
    "title": "Kelvora FOOD uittreksel van", "from": "dagen van", "till": "tot en met",
    "report": "Kelvora FOOD uittreksel", "contents": "Dit rapport:", "of": "Uittreksel van",
    "days": "dagen", "created": "Deze pagina is op", "with": "gemaakt met", "by": "van",
    "name": "Naam:", "gender": "Geslacht:", "reference": "Referentie-ID:", "height": "Lengte:",
    "address 1": "Adres 1:", "address 2": "Adres 2:", "goal": "Streefgewicht:",
    "last": "Laatste gewicht:", "city": "Plaats:", "age": "Leeftijd:", "postcode": "Postcode:",
    "state": "Staat of provincie:", "country": "Land:",
    "graphs": "gewicht|Kilocalorieën|Onverzadigde vetten|Verzadigde vetten|Eiwitten|Koolhydraten",
}}

STYLE = """\
A:LINK{text-decoration: none; color: #3A3464;font-family:Verdana;text-decoration : underline;}
A:VISITED{text-decoration: none; color: #3A3464;font-family:Verdana;text-decoration : underline;}
A:ACTIVE{text-decoration: none; color: #EF4A00;font-family:Verdana;text-decoration : underline;}
A:HOVER{ text-decoration: none; color: #EF4A00;font-family:Verdana;text-decoration : underline;}
.tdKop1 {background-color:#5C6F90;color:#ffffff;font-family:Verdana;font-size:12px;}
.tdKop2 {background-color:#5C6F90;color:#ffffff;font-family:Verdana;font-size:12px;}
.tdKop3 {background-color:#3A3464;color:#ffffff;font-family:Verdana;text-align:right;font-size:10px;}
.tdKop4 {background-color:#FFDDAD;color:#575757;font-family:Verdana;font-size:10px;}
.tdKop5 {background-color:#FFDDAD;color:#BC0000;font-family:Verdana;text-align:right;font-size:10px;}
.tdOL {background-color:#E5E9F1;color:#575757;font-family:Verdana;font-size:10px;}
.tdML {background-color:#D0D8E6;color:#575757;font-family:Verdana;font-size:10px;}
.tdAL {background-color:#B6BFD2;color:#575757;font-family:Verdana;font-size:10px;}
.tdOR {background-color:#E5E9F1;color:#BC0000;font-family:Verdana;text-align:right;font-size:10px;}
.tdMR {background-color:#D0D8E6;color:#BC0000;font-family:Verdana;text-align:right;font-size:10px;}
.tdAR {background-color:#B6BFD2;color:#BC0000;font-family:Verdana;text-align:right;font-size:10px;}
.tdNO {background-color:#E5E9F1;color:#575757;font-family:Verdana;font-size:10px;}
.tdE1 {background-color:#D0D8E6;color:#575757;font-family:Verdana;text-align:left;font-size:10px;}
.tdE2 {background-color:#FFF0DB;color:#3A3464;font-family:Verdana;text-align:right;font-size:10px;}
.tdE3 {background-color:#FFE6C3;color:#3A3464;font-family:Verdana;text-align:right;font-size:10px;}
.tdO1 {background-color:#E5E9F1;color:#575757;font-family:Verdana;text-align:left;font-size:10px;}
.tdO2 {background-color:#FFF7EB;color:#3A3464;font-family:Verdana;text-align:right;font-size:10px;}
.tdO3 {background-color:#FFEFD7;color:#3A3464;font-family:Verdana;text-align:right;font-size:10px;}
.tdC {background-color:#FFFFFF;color:#C0C0C0;font-family:Verdana;text-align:right;font-size:10px;}
.tdNOT {background-color:#FFFAF3;color:#575757;font-family:Verdana;font-size:10px;}
.tdG1 { border: 2px outset white; }"""

LINK = '<a href="http://www.example.org" target= "new">'
FIRST_YEAR = 2026
PROFILE = ("name address_1 address_2 city postcode height gender age weight goal country reference "
           "remark state priority").split()
UNITS = {"0": "Kg", "1": "Lbs", "2": "Stones"}
COLOURS = "#6887B6 #ABD9AD #E8A2A2 #C14747 #FFD695 #FF7C3B".split()
# What a bar shows: the field of the trend line, none for the weight, and its divisor.
BARS = [(None, 1), (2, 55), (3, 2), (4, 1), (6, 5), (5, 8)]
CLASSES = {"0": "tdO", "1": "tdM", "2": "tdA"}


def at(items, index):
    return items[index] if index < len(items) else ""


def pieces(text, terminator):
    """What each terminator closes; the rest counts for nothing."""
    return text.split(terminator)[:-1]


class Writer:
    def __init__(self, user, width):
        self.user, self.width = user, width
        self.words = WORDS[user["language"]]

    # Numbers.
    def mark(self, text):
        return text.replace(".", self.user["mark"])

    def shape(self, text, by):
        return self.mark(formatted(read(text), by))

    def shape_single(self, value, by):
        return self.mark(formatted(float(value), by))

    def text_of(self, value):
        return self.mark(written(float(value), 7))

    def ounces(self, grams):
        return self.mark(gram_to_oz(grams)) if grams else ""

    def date(self, stored):
        digits = "".join(c for c in stored if c not in "-/\\ ")
        if not digits:
            return ""
        day, month, year = digits[:2], digits[2:4], digits[4:]
        return "-".join([month, day, year] if self.user["system"] == "1" else [day, month, year])

    def weight(self, kilograms):
        """In the unit of the user, with two decimals; without a weight no number."""
        if not kilograms:
            return ""
        turned = {"0": str, "1": kg_to_lbs, "2": kg_to_stones}[self.user["system"]](kilograms)
        return self.shape(turned, "##0.00")

    def unit(self):
        return UNITS[self.user["system"]]

    def by_grams(self, grams, ounces):
        return grams if self.user["gramoz"] == "0" else ounces

    def grams(self, value, by):
        return self.by_grams(self.shape_single(value, by), self.ounces(self.text_of(value)))

    # The page around the days.
    def table(self):
        return f'<table width="{self.width}" cellspacing="1" cellpadding="0" bgcolor="#B4B4B4">'

    def head(self, start, end, days):
        words = self.words
        style = STYLE.replace("\n", "\n\t")
        return f"""\
<html>
<head>
<meta http-equiv="Content-Type" content="text/html; charset=iso-8859-1">
<style type="text/css">
\t{style}</style>
\t<title>{words["title"]} {self.user["folder"]} ({days} {words["from"]} {start} {words["till"]} {end})</title>
</head>
<body bgcolor="#ffffff">

<center>
"""

    def person(self, days):
        words, profile = self.words, self.user["profile"]
        if self.user["system"] == "0":
            height = profile["height"] + " Meter"
            weights = [self.shape(profile[of], "##0.00") if profile[of] else ""
                       for of in ("weight", "goal")]
        else:
            feet, inches = [meter_to_feet_inch(profile["height"], part) if profile["height"]
                            else "" for part in "01"]
            height = f"{feet}'{inches}'' Feet, inch"
            turn = kg_to_lbs if self.user["system"] == "1" else kg_to_stones
            weights = [self.mark(turn(profile[of])) if profile[of] else ""
                       for of in ("weight", "goal")]
        weight, goal = [f"{number} {self.unit()}" for number in weights]
        rows = [("name", profile["name"], "gender", profile["gender"]),
                ("reference", profile["reference"] + " ", "height", height),
                ("address 1", profile["address_1"] + " ", "goal", goal),
                ("address 2", profile["address_2"] + " ", "last", weight),
                ("city", profile["city"], "age", profile["age"]),
                ("postcode", profile["postcode"], None, None),
                ("state", profile["state"], None, None),
                ("country", profile["country"], "contents",
                 f'{words["of"]} <i>{days}</i> {words["days"]}')]
        text = f"""\
{self.table()}
\t<tr>
\t\t<td class="tdKop3"><center>{words["report"]}<a name="#MyIndex"></a></center></td>
\t</tr>
</table>
{self.table()}
"""
        for number, row in enumerate(rows, 1):
            label_class, value_class = ("tdE1", "tdE3") if number % 2 else ("tdO1", "tdE2")
            text += "\t<tr>\n"
            for label, value in (row[:2], row[2:]):
                label = "&nbsp;" if label is None else words[label]
                value = "&nbsp;" if value is None else f"<p align=left>{value}</p>"
                text += (f'\t\t<td width="15%" class=" {label_class}">{label}</td>\n'
                         f'\t\t<td class="{value_class}">{value}</td>\n')
            text += "\t</tr>\n"
        return text + "</table>\n<br>\n"

    def footer(self):
        words, year = self.words, int(self.user["year"])
        years = str(FIRST_YEAR) if year <= FIRST_YEAR else f"{FIRST_YEAR} - {year}"
        return f"""\
<table width="{self.width}" cellspacing="0" cellpadding="0" bgcolor="#B4B4B4">
\t<tr>
\t\t<td class="tdC"><center>{words["created"]} {self.user["today"]} {words["with"]} {LINK}Kelvora FOOD</a> {words["by"]} {LINK}Brelux</a></center></td>
\t</tr>
\t<tr>
\t\t<td class="tdC"><center>{years} {LINK}Brelux</a></center></td>
\t</tr>
</table>
</center>
</body>
</html>
"""

    # Index and graphs.
    def index(self, days):
        date, day, weight, gram, *rest = self.words["index"].split("|")
        text = self.table() + "\n\t<tr>\n"
        for word in (date, day, weight):
            text += f'\t\t<td class="tdKop3"><p align=left>{word}</p></td>\n'
        for word in (self.by_grams(gram, "oz"), *rest):
            text += f'\t\t<td class="tdKop3">{word}</td>\n'
        text += "\t</tr>\n"
        for day in days:
            header, trend = pieces(day["header"], "¾"), pieces(day["trend"], "½")
            date, kilograms = at(header, 9), at(header, 6)
            gram = self.by_grams(self.shape(at(trend, 0), "######0"), self.ounces(at(trend, 0)))
            cells = [("tdO1", f' » <a href="#{self.anchor(header)}">{self.date(date)}</a>'),
                     ("tdO1", f'<a name="#MyIndex"></a>{at(header, 11)}'),
                     ("tdO1", f"{self.weight(kilograms)} {self.unit()}"),
                     ("tdE2", gram)]
            for css, field, by in (("tdE3", 1, "######0"), ("tdE2", 2, "#####0"),
                                   ("tdE3", 3, "####0"), ("tdE2", 4, "####0"),
                                   ("tdE3", 6, "####0"), ("tdE2", 7, "####0.000"),
                                   ("tdE3", 5, "####0")):
                cells.append((css, self.shape(at(trend, field), by)))
            text += self.row(cells)
        return text + "</table>\n<br>\n"

    @staticmethod
    def row(cells):
        lines = "".join(f'\t\t<td class="{css}">{content}</td>\n' for css, content in cells)
        return f"\t<tr>\n{lines}\t</tr>\n"

    @staticmethod
    def anchor(header):
        return (at(header, 9) + at(header, 6)).replace(",", ".")

    def graphs(self, days):
        text = ""
        for number, title in enumerate(self.words["graphs"].split("|")):
            text += f"""\
<table border="0" width="{self.width}" cellspacing="0" cellpadding="0">
\t<tr align=left>
\t<td class="tdO1">
\t<table border="0" cellspacing="0" cellpadding="0">
\t\t<tr align=left valign=bottom>
"""
            for day in days:
                height = self.bar_height(number, day)
                text += ('\t\t<td><table border="0" cellspacing="0" cellpadding="0"><tr>'
                         f'<td class="tdG1" bgcolor="{COLOURS[number]}">'
                         '<table border="0" cellspacing="0" cellpadding="0"><tr>'
                         f'<td width="5" height="{height}"></td>'
                         '</tr></table></td></tr></table></td>\n')
            text += f"""\
\t</tr>
\t</table>
\t</td>
\t</tr>
\t<tr>
\t<td width="100%" class="tdKop3"><p align=left>{title}</p></td>
\t</tr>
\t</table>
<br>
"""
        return text

    def bar_height(self, number, day):
        field, divisor = BARS[number]
        stored = at(pieces(day["header"], "¾"), 6) if field is None \
            else at(pieces(day["trend"], "½"), field)
        value = single(single(read(stored)) / divisor)
        through_text = single(read(written(float(value), 7)))
        return self.whole(through_text)

    def whole(self, value, decimals=0):
        return self.text_of(float.fromhex(round_to(float(value).hex(), decimals)))

    # Days.
    def eaten(self, day):
        """The different lines of a day, morning first, each with its fields and its count."""
        lines = [line + code + "½" for code, part in enumerate_parts(day)
                 for line in pieces(part.replace(",", "."), "¾")]
        return [(pieces(line, "½"), count) for line, count in Counter(lines).items()]

    def day(self, day):
        words = self.words
        header = pieces(day["header"].replace(",", "."), "¾")
        gram, *rest = words["items"].split("|")[2:]
        food, unit = words["items"].split("|")[:2]
        text = f"""\
<table width="{self.width}" cellspacing="0" cellpadding="0">
\t<tr>
\t\t<td width="33%" class="tdKop1"><p align=left>{words["date"]} <a name="#{self.anchor(header)}">{self.date(at(header, 9))}</a>, {at(header, 11)}</p></td>
\t\t<td width="33%" class="tdKop1"><p align=center> »<a href="#MyIndex"><b>{words["back"]}</b>«</a></p></td>
\t\t<td class="tdKop2"><p align=right><b>{self.weight(at(header, 6))}</b> {self.unit()}</p></td>
\t</tr>
</table>
{self.table()}
"""
        text += self.row([("tdKop3", f"<p align=left>{food}</p>"), ("tdKop3", ""),
                          ("tdKop3", f"<p align=left>{unit}</p>"),
                          ("tdKop3", self.by_grams(gram, "oz"))] + [("tdKop3", w) for w in rest])
        totals, css = [0] * 8, None
        for fields, count in self.eaten(day):
            css = CLASSES.get(at(fields, 13), css)
            left, right = (css + "L", css + "R") if css else ("", "")
            products = [single(single(read(at(fields, 2 + i))) * count) for i in range(8)]
            totals = [single(total + product) for total, product in zip(totals, products)]
            text += self.row([(left, at(fields, 0)), (left, f"{count}x"), (left, at(fields, 1))]
                             + [(right, amount) for amount in self.amounts(
                                 products, "#####0 #####0 ####0 ###0 ###0 ###0 ###0.000 ####0")])
        text += self.row([("tdKop4", words["totals"]), ("tdKop4", ""), ("tdKop4", "")]
                         + [("tdKop5", amount) for amount in self.amounts(
                             totals, "#######0 #######0 ######0 #####0 #####0 #####0 ###0.000 #####0")])
        text += "</table>\n"
        if self.user["diary"] == "1":
            diary = day["notes"].replace(RETURN, "<br>")
            text += f'{self.table()}\n\t<tr>\n\t\t<td class="tdNOT">{diary}</td>\n\t</tr>\n</table>\n'
        return text + "<br>\n"

    def amounts(self, values, patterns):
        """Fields 2 to 9 in the order of the item table."""
        gram, kj, kcal, protein, fat_u, fat_s, carbs, sodium = values
        first, *rest = patterns.split()
        others = (kj, kcal, fat_u, fat_s, protein, sodium, carbs)
        return [self.grams(gram, first)] + [self.shape_single(v, by) for v, by in zip(others, rest)]

    # XML.
    def dates(self, days):
        """Of the first day that has a date, and of the last day."""
        dates = [self.date(at(pieces(day["header"], "¾"), 9)) for day in days]
        return next(filter(None, dates), ""), dates[-1] if dates else ""

    def xml(self, days):
        user, (start, end) = self.user, self.dates(days)
        text = "<?xml version=\"1.0\"?>\n<?xml-stylesheet type='text/xsl'?>\n<File>\n<Details>\n"
        text += elements(Username=user["folder"], StartDate=start, EndDate=end, Days=len(days))
        text += "</Details>\n"
        if days:
            text += clean(self.xml_person())
        return text + "".join(clean(self.xml_day(day)) for day in days) + "</File>\n"

    def xml_person(self):
        profile = self.user["profile"]
        seal = (profile["name"] + profile["height"] + profile["reference"]).encode("cp1252")
        return ("<UserDetails>\n"
                + elements(CRCUserID="%X" % zlib.crc32(seal), ReferenceID=profile["reference"],
                           Name=profile["name"], Address1=profile["address_1"],
                           Address2=profile["address_2"], City=profile["city"],
                           Postcode=profile["postcode"], Province=profile["state"],
                           Country=profile["country"], Gender=profile["gender"],
                           Age=profile["age"], HeightMeter=profile["height"],
                           WeightKG=profile["weight"], GoalWeightKG=profile["goal"],
                           Priority=profile["priority"], Notes=profile["remark"])
                + "</UserDetails>\n")

    def xml_day(self, day):
        header = pieces(day["header"].replace(",", "."), "¾")
        kilograms = at(header, 6)
        pounds = kg_to_lbs(kilograms) if kilograms else ""
        text = "<Day>\n" + elements(
            Date=at(header, 9), KG=self.shape(kilograms, "###.00") if kilograms else "",
            LBS=self.shape(pounds, "###.00") if pounds else "") + "<FoodItems>\n"
        totals = [0] * 8
        for fields, count in self.eaten(day):
            products = [single(single(read(at(fields, 2 + i))) * count) for i in range(8)]
            totals = [single(total + product) for total, product in zip(totals, products)]
            gram, kj, _, protein, fat_u, fat_s, carbs, sodium = products
            text += "<FoodItem>\n" + elements(
                Product=at(fields, 0), DB=at(fields, 12), POD=at(fields, 13), X=count,
                Gram=self.whole(gram), Kj=self.whole(kj), Kcal=self.whole(totals[2]),
                FatU=self.whole(fat_u, 2), FatS=self.whole(fat_s, 2),
                Protein=self.whole(protein, 2), Sodium=self.text_of(sodium),
                Carbs=self.whole(carbs, 2)) + "</FoodItem>\n"
        gram, kj, kcal, protein, fat_u, fat_s, carbs, sodium = [
            single(read(written(float(total), 7))) for total in totals]
        text += "</FoodItems>\n<Totals>\n" + elements(
            Gram=self.whole(gram), Kj=self.whole(kj), Kcal=self.whole(kcal),
            FatU=self.whole(fat_u), FatS=self.whole(fat_s), Protein=self.whole(protein),
            Sodium=self.whole(sodium, 2), Carbs=self.whole(carbs)) + "</Totals>\n"
        if self.user["diary"] == "1":
            text += elements(Notes=day["notes"])
        return text + "</Day>\n"


def enumerate_parts(day):
    return (("0", day["morning"]), ("1", day["afternoon"]), ("2", day["evening"]))


def elements(**values):
    return "".join(f"<{name}>{value}</{name}>\n" for name, value in values.items())


def clean(text):
    for accented, plain in zip("áäéëíïóöúü", "aaeeiioouu"):
        text = text.replace(accented, plain)
    for removed in "?@#%^&*()'€$£¦":
        text = text.replace(removed, "")
    return text


def html_page(user, days):
    page = Writer(user, 650)
    return (page.head(*page.dates(days), len(days)) + page.person(len(days)) + page.index(days)
            + (page.graphs(days) if user["graphs"] == "1" else "")
            + "".join(map(page.day, days)) + page.footer())


def dta_file(user, days):
    page = Writer(user, 750)
    graphs = page.graphs(days) if user["graphs"] == "1" and days else ""
    return page.index(days) + graphs + "".join(map(page.day, days))


# A line break that stands in a value, kept apart from those of the layout until the end.
RETURN, FEED = "\ue00d", "\ue00a"


def plain(text):
    """A cell of the tables as the text that it stands for."""
    for written_so, meant in (("\\r", RETURN), ("\\n", FEED), ("\\t", "\t"), ("|", "½"), ("~", "¾")):
        text = text.replace(written_so, meant)
    return text


def file_of(text):
    """Lines of the layout end in both marks, values keep theirs."""
    crossed = text.replace("\n", "\r\n").replace(RETURN, "\r").replace(FEED, "\n")
    return crossed.encode("cp1252")


def rows(path):
    with path.open(encoding="utf-8", newline="") as file:
        for row in csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE):
            yield {name: plain(cell) for name, cell in row.items()}


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("reports", type=Path)
    folder = parser.parse_args().reports
    all_days = list(rows(folder / "days.tsv"))
    for user in rows(folder / "users.tsv"):
        user["profile"] = dict(zip(PROFILE, pieces(user["profile"], "½")))
        days = [day for day in all_days if day["user"] == user["user"]]
        for kind, text in (("html", html_page(user, days)), ("dta", dta_file(user, days)),
                           ("xml", Writer(user, None).xml(days))):
            (folder / f"{user['user']}.{kind}").write_bytes(file_of(text))


if __name__ == "__main__":
    main()
