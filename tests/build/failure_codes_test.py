#!/usr/bin/env python3
"""Shows that the check of the failure codes can fail: what it reads, and what it refuses."""
import sys
import unittest
from collections import defaultdict
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
from make_failure_codes import all_rows, codes_in, page, wrongly_shared  # noqa: E402

SOURCE = '''
void Load(Program& program,
          const std::string& path) {
  program.Guard("#FF1-2", [&] {});
}
// The code "#FF1-3" in a comment is none.
template <class Wanted>
bool Lists::Search(
    int depth) {
  return Collect("#F11-0", depth) && CodeOf("#F15-1", "#F14-1");
}
'''


class FailureCodes(unittest.TestCase):
    def test_codes_are_found_with_their_function(self):
        self.assertEqual(codes_in(SOURCE), [
            (("FF", 1, 2), "Load"), (("F", 11, 0), "Search"), (("F", 15, 1), "Search"),
            (("F", 14, 1), "Search")])

    def test_a_code_of_two_routines_is_refused(self):
        code = ("FF", 1, 2)
        self.assertEqual(wrongly_shared([(code, "A", "a"), (code, "B", "a")]), [code])
        self.assertEqual(wrongly_shared([(code, "A", "a"), (code, "A", "b")]), [])

    def test_the_two_conversions_may_share_theirs(self):
        code = ("FF", 11, 1)
        pair = [(code, "Lbs_To_Kg", "u"), (code, "Kg_To_Lbs", "u")]
        self.assertEqual(wrongly_shared(pair), [])
        self.assertEqual(wrongly_shared(pair + [(code, "Other", "u")]), [code])

    def test_the_given_codes_belong_to_their_routines(self):
        routines = defaultdict(set)
        for code, function, _ in all_rows():
            routines[code].add(function)
        for number, name in enumerate([
                "Save_Settings", "Load_Databases", "Load_Custom", "Load_Favorites",
                "Save_Favorites", "Save_Custom", "Load_Profile", "Save_Profile", "LoadDay",
                "SaveDay"]):
            self.assertIn(name, routines["FF", 1, number])
        for number, name in {0: "Refresh_Totalen", 2: "Kg_To_Stones", 3: "Gram_To_Oz",
                             4: "Oz_To_Gram", 5: "Meter_To_Feet_Inch", 6: "Feet_Inch_To_Meter",
                             7: "Bereken_BMI", 8: "Format_Datum", 9: "Dagen_Tussen"}.items():
            self.assertIn(name, routines["FF", 11, number])
        self.assertEqual(routines["FF", 8, 13], {"Check_Language_Files"})
        self.assertEqual(routines["F", 15, 7], {"DropOnDayPart"})

    def test_the_page_has_a_row_for_each(self):
        rows = all_rows()
        self.assertEqual(page(rows).count("| `#"), len(rows))
        self.assertGreater(len(rows), 40)


if __name__ == "__main__":
    unittest.main()
