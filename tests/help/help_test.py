"""Looks at the help that was made: links, pictures, words, boxes and codes, in both languages.

Arguments: the folder of the made help. What the program can show is read from its sources
(sources.py), not from what makes the help; tidy and Chromium say whether the pages are sound.
"""
import re
import subprocess
import sys
import unittest
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote

import sources

sys.path.append(str(sources.ROOT / "tests" / "e2e"))
from browser import Browser  # noqa: E402

HELP = Path(sys.argv[1]).resolve()
LANGUAGES = ("en", "nl")
PHONE, DESK = 360, 1280
# Windows without a page of their own: F1 leads to the first one.
WITHOUT_A_PAGE = {"KV_data"}


class Page(HTMLParser):
    """What a page refers to, its anchors, and its texts by what holds them."""

    VOID = {"meta", "link", "img", "br", "input", "hr", "col"}

    def __init__(self, path):
        super().__init__()
        self.path = path
        self.references, self.anchors, self.pictures = [], [], []
        self.captions, self.boxes, self.titles, self.codes = [], [], [], []
        self.text, self.open = "", []
        self.language = None
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        self.references += [attributes[name] for name in ("href", "src") if name in attributes]
        self.anchors += [attributes["id"]] if "id" in attributes else []
        self.pictures += [attributes] if tag == "img" else []
        self.language = attributes["lang"] if tag == "html" else self.language
        self.text += " "
        for kept, begins in [(self.captions, attributes.get("class") == "ui"),
                             (self.boxes, tag == "blockquote"), (self.titles, tag == "h1"),
                             (self.codes, tag == "code")]:
            if begins:
                kept.append("")
        if tag not in self.VOID:
            self.open.append((tag, attributes.get("class")))

    def handle_endtag(self, tag):
        while self.open and self.open.pop()[0] != tag:
            pass
        self.text += " "

    def handle_data(self, data):
        self.text += data
        tags = [tag for tag, _ in self.open]
        if any(kind == "ui" for _, kind in self.open):
            self.captions[-1] += data
        if "blockquote" in tags:
            self.boxes[-1] += data + " "
        if "h1" in tags:
            self.titles[-1] += data
        if "code" in tags:
            self.codes[-1] += data


def caption(text):
    """A caption without what is only for its place: blanks, a colon or dots at its end."""
    return sources.plain(text).rstrip(" :.…")


class Help(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.pages = {language: {path.stem: Page(path) for path in (HELP / language).glob("*.html")}
                     for language in LANGUAGES}

    def every_page(self):
        return [(language, name, page) for language in LANGUAGES
                for name, page in sorted(self.pages[language].items())]

    def test_every_page_is_there_in_both_languages(self):
        written = {path.stem for path in (sources.ROOT / "help" / "en").glob("*.html")}
        for language in LANGUAGES:
            self.assertEqual(set(self.pages[language]), written | {"search"})
        self.assertGreaterEqual(len(written), 20)

    def test_every_page_has_its_language_and_one_title(self):
        for language, name, page in self.every_page():
            self.assertEqual(page.language, language, name)
            self.assertEqual(len(page.titles), 1, name)
        for language in LANGUAGES:
            titles = [page.titles[0] for page in self.pages[language].values()]
            self.assertEqual(len(set(titles)), len(titles), "two pages have one title")

    def test_every_link_anchor_and_picture_leads_somewhere_here(self):
        files = {path.resolve(): None for path in HELP.rglob("*") if path.is_file()}
        used = set()
        for _, _, page in self.every_page():
            self.assertEqual(len(set(page.anchors)), len(page.anchors), page.path)
            for reference in page.references:
                self.assertNotRegex(reference, r"^(\w+:|/)", page.path)
                target, _, anchor = unquote(reference).partition("#")
                path = (page.path.parent / target).resolve() if target else page.path
                self.assertIn(path, files, reference)
                used.add(path)
                if anchor:
                    self.assertIn(anchor, self.pages[path.parent.name][path.stem].anchors, reference)
            for picture in page.pictures:
                self.assertTrue(picture["alt"], picture["src"])
        self.assertEqual({path.name for path in set(files) - used}, set(), "nothing leads to these")

    def test_style_and_script_ask_nobody(self):
        for name in ("style.css", "search.js"):
            text = (HELP / name).read_text(encoding="utf-8")
            self.assertNotRegex(text, r"//\w|url\(|@import|fetch|XMLHttpRequest")

    def test_tidy_finds_no_error(self):
        files = [page.path for _, _, page in self.every_page()]
        answer = subprocess.run(["tidy", "-e", "-q", "--show-warnings", "no", *files], text=True,
                                stderr=subprocess.PIPE, check=False)
        self.assertEqual(answer.stderr, "")
        self.assertLess(answer.returncode, 2)

    def test_every_caption_is_one_of_the_program(self):
        both = [*sources.table_texts().values(), *sources.own_texts().values()]
        for place, language in enumerate(LANGUAGES):
            known = {caption(texts[place]) for texts in both}
            with_places = [re.compile(".+".join(map(re.escape, each.split("…")))) for each in known
                           if "…" in each]
            wrong = {(words, name) for name, page in self.pages[language].items()
                     for words in page.captions if caption(words) not in known
                     and not any(each.fullmatch(caption(words)) for each in with_places)}
            self.assertEqual(wrong, set(), language)

    def test_every_failure_code_is_explained(self):
        listed = (sources.ROOT / "docs" / "failure_codes.md").read_text(encoding="utf-8")
        codes = set(re.findall(r"^\| `(#F+\d+-\d+)`", listed, re.MULTILINE))
        self.assertGreater(len(codes), 150)
        for language in LANGUAGES:
            explained = set(self.pages[language]["trouble"].codes)
            self.assertEqual(codes - explained, set(), language)

    def test_every_box_is_explained(self):
        texts = sources.table_texts() | {("own", name): words
                                         for name, words in sources.own_texts().items()}
        shown, fixed = sources.box_texts()
        self.assertGreater(len(shown), 200)
        for place, language in enumerate(LANGUAGES):
            words = " ".join(map(sources.plain, self.pages[language]["trouble"].boxes))
            missing = {key for key in shown if sources.plain(texts[key][place]) not in words}
            self.assertEqual(missing, set(), language)
            self.assertEqual({each for each in fixed if sources.plain(each) not in words}, set())

    def test_every_window_leads_to_a_page(self):
        table = (sources.SRC / "core" / "frame" / "help_pages.cpp").read_text(encoding="utf-8")
        pages = dict(re.findall(r'WindowPage\{"(\w+)", (?:"([\w-]+)"|kFirstHelpPage)\}', table))
        windows = set()
        for file in sources.SRC.rglob("*.cpp"):
            windows |= set(re.findall(r'(?:NameWidget\(this,|DayPartRow\{\S+) "(KV_\w+)"',
                                      file.read_text(encoding="utf-8")))
        self.assertGreater(len(windows), 15)
        self.assertEqual(windows - set(pages), WITHOUT_A_PAGE)
        self.assertLessEqual({page or "index" for page in pages.values()}, set(self.pages["en"]))

    def test_every_page_fits_a_phone_and_a_desk(self):
        with Browser(DESK) as browser:
            for language, name, page in self.every_page():
                browser.open(page.path)
                for width in (PHONE, DESK):
                    browser.ask("Emulation.setDeviceMetricsOverride", width=width, height=800,
                                deviceScaleFactor=1, mobile=False)
                    self.assertLessEqual(browser.evaluate("document.documentElement.scrollWidth"),
                                         width, f"{language}/{name} is wider than its window")
                self.assertTrue(browser.evaluate(
                    "Array.from(document.images).every(each => each.naturalWidth > 0)"))

    def test_the_search_finds_with_a_script_and_without(self):
        with Browser(DESK) as browser:
            for language, word, page in [("en", "sodium", "own-foods"), ("nl", "natrium", "own-foods")]:
                path = self.pages[language]["search"].path
                self.assertIn(f"{page}.html", self.row_of(path, word))
                browser.open(path)
                browser.evaluate(f"document.getElementById('word').value = '{word}';"
                                 "document.getElementById('word').dispatchEvent(new Event('input'))")
                shown = browser.evaluate("Array.from(document.querySelectorAll('.words li'))"
                                         ".filter(row => row.offsetParent)"
                                         ".map(row => row.firstElementChild.textContent)")
                self.assertIn(word, shown)
                self.assertTrue(all(word in each for each in shown), shown)

    @staticmethod
    def row_of(path, word):
        row = re.search(f"<li><b>{word}</b>.*?</li>", path.read_text(encoding="utf-8"))
        return row[0] if row else ""


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
