#!/usr/bin/env python3
"""What independent readers say of the reports that the program is held to.

xmllint reads the XML files and the pages of tests/oracles/reports, tidy the pages. What is laid down to be malformed
must be, and for no other reason: names and dates of the head go into the file as they are, and the
file names no encoding, so that a letter beyond ASCII is one too many for a strict reader. The
argument is the folder of the reports.
"""
import re
import subprocess
import sys
import unittest
from pathlib import Path

REPORTS = Path(sys.argv.pop(1))
PLAIN = ["anna", "cora", "dirk", "faas"]
# Accents that are cleaned away nowhere: in the head, and letters that the cleaning doesn't know.
ACCENTED = ["elin", "gijs"]


def judged(data, *arguments):
    """What xmllint says of it; nothing if it has nothing to say."""
    told = subprocess.run(["xmllint", "--noout", *arguments, "-"], input=data, check=False,
                          stderr=subprocess.PIPE, stdout=subprocess.DEVNULL)
    return told.returncode, told.stderr.decode("latin-1")


def tidied(name):
    """What tidy has to say of a page, a line each."""
    told = subprocess.run(["tidy", "-quiet", "-errors", "-latin1", REPORTS / name], check=False,
                          stderr=subprocess.PIPE, stdout=subprocess.DEVNULL)
    return [line for line in told.stderr.decode("latin-1").splitlines() if line.startswith("line ")]


def read(name):
    return (REPORTS / name).read_bytes()


def with_encoding(data):
    return data.replace(b'<?xml version="1.0"?>',
                        b'<?xml version="1.0" encoding="windows-1252"?>', 1)


class Xml(unittest.TestCase):
    def test_plain_ones_are_well_formed(self):
        for user in PLAIN:
            self.assertEqual(judged(read(user + ".xml")), (0, ""), user)

    def test_accents_are_all_that_is_wrong_with_others(self):
        for user in ACCENTED:
            status, words = judged(read(user + ".xml"))
            self.assertNotEqual(status, 0, user)
            self.assertIn("not proper UTF-8", words)
            self.assertEqual(judged(with_encoding(read(user + ".xml"))), (0, ""), user)

    def test_a_name_with_marks_of_xml_makes_it_malformed(self):
        status, words = judged(with_encoding(read("bram.xml")))
        self.assertNotEqual(status, 0)
        self.assertIn("mismatch: x line 5 and Username", words)
        self.assertIn("xmlParseEntityRef: no name", words)

    def test_cleaned_values_hold_no_ampersand(self):
        # The head is not cleaned, and comes first.
        values = read("bram.xml").partition(b"</Details>")[2]
        self.assertNotIn(b"&", values)
        self.assertIn(b"]]>", values)


class Pages(unittest.TestCase):
    """The index has its name once more with each day, and days of one date and weight share theirs."""

    def test_nothing_but_repeated_names_is_wrong_with_plain_ones(self):
        for user in PLAIN + ACCENTED:
            _, words = judged(read(user + ".html"), "--html")
            for error in re.findall(r"error : (.*)", words):
                self.assertRegex(error, r"^ID #\S* already defined$", user)

    def test_tidy_finds_an_older_manner_of_writing_and_no_error(self):
        older = [r"missing <!DOCTYPE> declaration",
                 r"<(p|tr|body)> attribute \"\w+\" not allowed for HTML5",
                 r"<center> element removed from HTML5",
                 r"missing <td>",  # a graph without bars
                 r"trimming empty <b>",  # a weight that is empty
                 r"<a> anchor \"#[^\"]*\" already defined"]  # two days of one date and weight
        for user in PLAIN + ACCENTED:
            for line in tidied(user + ".html"):
                self.assertRegex(line, f"^line \\d+ column \\d+ - Warning: ({'|'.join(older)})$", user)

    def test_tidy_takes_what_a_user_wrote_for_tags(self):
        errors = [line.partition(" - ")[2] for line in tidied("bram.html") if "Error" in line]
        self.assertEqual(errors, ["Error: <x> is not recognized!",
                                  "Error: <spek> is not recognized!",
                                  "Error: <spek> is not recognized!"])

    def test_what_a_user_wrote_is_not_escaped(self):
        _, words = judged(read("bram.html"), "--html")
        self.assertIn("Tag x invalid", words)

    def test_every_tag_of_the_layout_is_closed(self):
        for user in PLAIN + ACCENTED:
            for ending in (".html", ".dta"):
                page = read(user + ending)
                for tag in (b"table", b"tr", b"td", b"p", b"center", b"a", b"b", b"i"):
                    opened = len(re.findall(rb"<" + tag + rb"[ >]", page))
                    self.assertEqual(opened, page.count(b"</" + tag + b">"), (user, ending, tag))


if __name__ == "__main__":
    unittest.main()
