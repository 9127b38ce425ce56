"""Shows that every rule for the starter foods is able to fail.

A small set of foods that meets all rules is broken in one way after another;
the rule that is meant has to notice, and no other one.
"""

from food_rules import EXPECTED_CATEGORIES, STATED_CATEGORIES, check
from food_tables import COLUMNS, EXCEPTION_COLUMNS, RANGE_COLUMNS, RULES


class Sample:
    """A small set of foods that meets all rules, for the cases to break."""

    CATEGORY = "Cheese"
    WINE = "Wine, beer and spirits"
    PLAIN = "Food 06, of meat"

    def __init__(self):
        self.rows = {}
        for category in EXPECTED_CATEGORIES:
            self.rows[category] = [COLUMNS[:]] + [
                [self.name(i, category), "1 slice", "100", "418", "100", "5",
                 "3", "2", "9", "0.1", category, f"voedsel {i:02}"]
                for i in range(1, 17)]
        self.set("carbs", "0", category=self.WINE)
        self.set("fat_u", "0", category=self.WINE)
        self.exceptions = [EXCEPTION_COLUMNS[:],
                           [self.WINE, self.name(5, self.WINE), "alcohol"]]
        self.plain = [EXCEPTION_COLUMNS[:],
                      ["Meat", self.PLAIN, "ready to eat"]]
        self.set("name", self.PLAIN, row=6, category="Meat")
        self.ranges = [RANGE_COLUMNS[:],
                       ["Meat", self.name(4, "Meat"), "fat", "5", "5"]]
        self.rewrite = lambda data: data

    @classmethod
    def name(cls, number, category):
        tail = "" if category == cls.CATEGORY else f" {category}"
        state = ", fried" if category in STATED_CATEGORIES else ""
        return f"Food {number:02}{tail}{state}"

    def set(self, column, value, row=5, category=CATEGORY):
        self.rows[category][row][COLUMNS.index(column)] = value

    def check(self):
        files = {f"{category}.tsv": self.encode(rows)
                 for category, rows in self.rows.items()}
        broken = f"{self.CATEGORY}.tsv"
        if broken in files:
            files[broken] = self.rewrite(files[broken])
        return check(files, *(rows and self.encode(rows)
                              for rows in (self.exceptions, self.plain,
                                           self.ranges)))

    @staticmethod
    def encode(rows):
        return "".join("\t".join(r) + "\n" for r in rows).encode("utf-8")


def setting(category=Sample.CATEGORY, row=5, **values):
    """A case that gives one food other values."""
    def change(sample):
        for column, value in values.items():
            sample.set(column, value, row, category)
    return change


def rewriting(old, new, count=1):
    """A case that replaces bytes of one file."""
    def change(sample):
        def rewrite(data):
            assert old in data, f"{old!r} is not in the sample"
            return data.replace(old, new, count)
        sample.rewrite = rewrite
    return change


def add_category(name):
    def change(sample):
        header, *rows = sample.rows["Fish"]
        sample.rows[name] = [header] + [[f"Other {row[0]}"] + row[1:]
                                        for row in rows]
    return change


def keep_categories(count):
    def change(sample):
        for category in EXPECTED_CATEGORIES[:-count]:
            del sample.rows[category]
    return change


def shorten_files(sample):
    for rows in sample.rows.values():
        del rows[16:]


def drop_category(sample):
    del sample.rows[Sample.CATEGORY]
    sample.rows["Fish"] += [
        [f"Food {i}, fried"] + sample.rows["Fish"][1][1:]
        for i in range(17, 33)]


def drop_last_line_end(sample):
    sample.rewrite = lambda data: data[:-1]


def add_exception(*fields):
    return lambda sample: sample.exceptions.append(list(fields))


def add_plain(*fields):
    return lambda sample: sample.plain.append(list(fields))


def add_range(*fields):
    return lambda sample: sample.ranges.append(list(fields))


def drop_ranges(sample):
    sample.ranges = None


def rename_range_header(sample):
    sample.ranges[0][2] = "column"


def drop_exceptions(sample):
    sample.exceptions = None


def drop_plain(sample):
    sample.plain = None


def rename_exception_header(sample):
    sample.exceptions[0][2] = "why"


# (rule, what is broken, the change, rules that cannot but fire along with it)
CASES = [
    ("encoding", "Latin-1 bytes", rewriting(b"voedsel", b"vo\xebdsel"),
     {"food count"}),
    ("encoding", "byte order mark", rewriting(b"name", b"\xef\xbb\xbfname"),
     set()),
    ("line ends", "carriage return", rewriting(b"\n", b"\r\n"), set()),
    ("line ends", "no last line end", drop_last_line_end, set()),
    ("header", "other column name", rewriting(b"kj", b"kJ"), set()),
    ("columns", "field too many", setting(remark="a\tb"), set()),
    ("columns", "blank line", rewriting(b"\n", b"\n\n"), set()),
    ("empty", "no remark", setting(remark=""), set()),
    ("empty", "no number", setting(kcal=""), set()),
    ("spaces", "space at the end", setting(remark="kaas "), set()),
    ("spaces", "two spaces", setting(remark="oude  kaas"), set()),
    ("characters", "not in Windows-1252", setting(remark="ka\u0101s"), set()),
    ("characters", "fraction sign", setting(unit="\u00bd slice"), set()),
    ("characters", "double quote", setting(remark='"kaas"'), set()),
    ("characters", "no-break space", setting(remark="oude\u00a0kaas"), set()),
    ("characters", "control character", setting(remark="ka\x01as"), set()),
    ("number form", "decimal comma", setting(protein="5,1"), set()),
    ("number form", "trailing zero", setting(protein="5.0"), set()),
    ("number form", "leading zero", setting(protein="05"), set()),
    ("number form", "exponent", setting(gram="1e2"), set()),
    ("number form", "thousands mark", setting(gram="1,000"), set()),
    ("number form", "negative", setting(carbs="-9"), set()),
    ("number form", "decimals in gram", setting(gram="100.5"), set()),
    ("number form", "unit in the gram of a food with a range",
     setting("Meat", 4, gram="100 g"), set()),
    ("number form", "decimals in kj", setting(kj="418.4"), set()),
    ("number form", "decimals in kcal", setting(kcal="100.1"), set()),
    ("number form", "two decimals in fat_u", setting(fat_u="3.05"), set()),
    ("number form", "two decimals in fat_s", setting(fat_s="2.05"), set()),
    ("number form", "two decimals in carbs", setting(carbs="9.05"), set()),
    ("number form", "four decimals", setting(sodium="0.1234"), set()),
    ("name length", "41 characters",
     setting(name="Food 05 " + 33 * "x"), set()),
    ("name capital", "small first letter", setting(name="food 05"), set()),
    ("spelling", "English slip", setting(name="Food 05, Shaslik"), set()),
    ("spelling", "Dutch compound apart",
     setting(remark="Jong belegen kaas"), set()),
    ("search words", "plant drink without its Dutch milk",
     setting(row=16, name="Oat drink", remark="haverdrink, oat milk"), set()),
    ("search words", "plant drink without its English milk",
     setting(row=16, name="Oat drink", remark="haverdrink, havermelk"),
     set()),
    ("search words", "plant drink without its name in the shop",
     setting(row=16, name="Oat drink", remark="havermelk, oat milk"), set()),
    ("search words", "same word twice",
     setting(remark="haverdrank, Haverdrank"), set()),
    ("search words", "comma without a blank",
     setting(remark="haverdrank,havermelk"), set()),
    ("unit length", "15 characters", setting(unit="1 serving spoon"), set()),
    ("group", "other group", setting(group="Dairy"), set()),
    ("name twice", "same name", setting(name="Food 04"), set()),
    ("name twice", "same name but for capitals", setting(name="FOOD 04"),
     set()),
    ("name twice", "same name in another category",
     setting(name=Sample.name(5, "Fish")), set()),
    ("order", "name too early", setting(name="Food 03b"), set()),
    ("weight", "portion of 0 g",
     setting(gram="0", kj="0", kcal="0", protein="0", fat_u="0", fat_s="0",
             carbs="0", sodium="0"), set()),
    ("weight", "portion of 0 g with a range",
     setting("Meat", 4, gram="0", kj="0", kcal="0", protein="0", fat_u="0",
             fat_s="0", carbs="0", sodium="0"), set()),
    ("zero energy", "kJ without kcal",
     setting(kj="4", kcal="0", protein="0", fat_u="0", fat_s="0",
             carbs="0"), set()),
    ("energy ratio", "too low", setting(kj="409"), set()),
    ("energy ratio", "too high", setting(kj="431"), set()),
    ("nutrient weight", "more than the portion", setting(gram="18"), set()),
    ("energy sum", "nutrients too high", setting(carbs="14"), set()),
    ("energy sum", "nutrients too low", setting(carbs="3.7"), set()),
    ("energy sum", "16 kcal from nothing",
     setting(kj="67", kcal="16", protein="0", fat_u="0", fat_s="0",
             carbs="0"), set()),
    ("sodium", "more than salt holds", setting(sodium="40.001"), set()),
    ("sodium of pulses", "boiled beans with a tin's sodium",
     setting("Pulses", name="Food 05, cooked", sodium="0.031"), set()),
    ("sodium of pulses", "beans of a tin without sodium",
     setting("Pulses", name="Food 05, tinned", sodium="0.099"), set()),
    ("sodium of pulses", "boiled peas among the vegetables",
     setting("Vegetables", name="Food 05, peas, boiled"), set()),
    ("sodium of salted", "smoked without sodium",
     setting(name="Food 05, smoked", sodium="0.199"), set()),
    ("sodium of salted", "smoked with a capital",
     setting(row=16, name="Smoked food", sodium="0.199"), set()),
    ("sodium of salted", "unsalted with sodium",
     setting(name="Food 05, unsalted", sodium="0.051"), set()),
    ("state", "fish without a state",
     setting("Fish", name="Food 05, of fish"), set()),
    ("state", "a word that only ends like a state",
     setting("Meat", name="Food 05, overcooked"), set()),
    ("state", "beans among the vegetables",
     setting("Vegetables", name="Food 05, beans"), set()),
    ("category missing", "one file less", drop_category, set()),
    ("category ending", "ends with another", add_category("Smoked fish"),
     set()),
    ("category ending", "differs in capitals only", add_category("FISH"),
     set()),
    ("category characters", "not in Windows-1252",
     add_category("Kluski \u015bl"), set()),
    ("food count", "330 foods", shorten_files, set()),
    ("category count", "11 files", keep_categories(11),
     {"category missing", "food count"}),
    ("exception form", "no such file", drop_exceptions, {"energy sum"}),
    ("exception form", "no list of plain foods", drop_plain, {"state"}),
    ("exception form", "reason of the other list",
     lambda sample: sample.plain[1].__setitem__(2, "alcohol"), set()),
    ("exception form", "other header", rename_exception_header, set()),
    ("exception form", "two fields",
     add_exception("Cheese", "Food 05"), set()),
    ("exception form", "unknown reason",
     lambda sample: sample.exceptions[1].__setitem__(2, "guess"), set()),
    ("exception twice", "same food",
     add_exception(Sample.WINE, Sample.name(5, Sample.WINE), "alcohol"),
     set()),
    ("exception unknown", "no such food",
     add_exception("Cheese", "Food 99", "fibre"), set()),
    ("exception unneeded", "meets the rule",
     add_exception("Cheese", "Food 05", "fibre"), set()),
    ("exception unknown", "no such plain food",
     add_plain("Fish", "Food 99", "dish"), set()),
    ("exception unneeded", "plain food that says its state",
     add_plain("Fish", Sample.name(5, "Fish"), "dish"), set()),
    ("exception unneeded", "plain food that need not say its state",
     add_plain("Cheese", "Food 05", "dish"), set()),
    ("range", "too little",
     add_range("Cheese", "Food 05", "kcal", "100.1", "110"), set()),
    ("range", "too much", add_range("Cheese", "Food 05", "carbs", "8", "8.9"),
     set()),
    ("range", "more in a smaller portion",
     setting("Meat", 4, gram="50"), set()),
    ("range form", "no such file", drop_ranges, set()),
    ("range form", "other header", rename_range_header, set()),
    ("range form", "four fields", add_range("Cheese", "Food 05", "fat", "5"),
     set()),
    ("range form", "unknown nutrient",
     add_range("Cheese", "Food 05", "fibre", "0", "100"), set()),
    ("range form", "decimal comma",
     add_range("Cheese", "Food 05", "fat", "4,9", "5"), set()),
    ("range form", "bounds in the wrong order",
     add_range("Cheese", "Food 05", "fat", "6", "4"), set()),
    ("range unknown", "no such food",
     add_range("Cheese", "Food 99", "fat", "0", "100"), set()),
]

# Values on the very edge of a rule, which have to pass.
EDGES = [
    ("lowest ratio", setting(kj="410")),
    ("highest ratio", setting(kj="430")),
    ("nutrients weigh the portion", setting(gram="19")),
    ("energy 20 kcal too high", setting(carbs="16", fat_s="1")),
    ("energy 20 kcal too low", setting(carbs="6", fat_s="1")),
    ("sodium of salt", setting(sodium="40")),
    ("sodium of boiled beans",
     setting("Pulses", name="Food 05, cooked", sodium="0.03")),
    ("sodium of tinned beans",
     setting("Pulses", name="Food 05, tinned", sodium="0.1")),
    ("sodium of a cooked vegetable",
     setting("Vegetables", name="Food 05, cooked")),
    ("sodium of a salted food",
     setting(name="Food 05, salted", sodium="0.2")),
    ("sodium of an unsalted food",
     setting(name="Food 05, unsalted", sodium="0.05")),
    ("no state of a vegetable",
     setting("Vegetables", name="Food 05, of some kind")),
    ("search words of a plant drink",
     setting(row=16, name="Oat drink",
             remark="ongezoete haverdrink, havermelk, oat milk")),
    ("amounts on the bounds",
     add_range("Cheese", "Food 05", "carbs", "9", "9")),
    ("40 characters", setting(name="Food 05 " + 32 * "x")),
    ("14 characters", setting(unit="1 medium glass")),
    ("accents", setting(remark="cr\u00e8me br\u00fbl\u00e9e")),
]


def self_test():
    failures = []
    clean = Sample().check().violations
    if clean:
        failures.append(f"the unbroken sample gives {clean[0]}")
    for what, change in EDGES:
        sample = Sample()
        change(sample)
        for violation in sample.check().violations:
            failures.append(f"edge, {what}: {violation.what}")
    for rule, what, change, along in CASES:
        sample = Sample()
        change(sample)
        fired = {violation.rule for violation in sample.check().violations}
        if rule not in fired:
            failures.append(f"{rule}, {what}: does not fire")
        for other in sorted(fired - along - {rule}):
            failures.append(f"{rule}, {what}: {other} fires as well")
    for rule in sorted(RULES - {case[0] for case in CASES}):
        failures.append(f"{rule}: has no case")
    for failure in failures:
        print(f"self-test: {failure}")
    print(f"self-test: {len(RULES)} rules, {len(CASES)} broken cases, "
          f"{len(EDGES)} edge cases, {len(failures)} failures")
    return 1 if failures else 0
