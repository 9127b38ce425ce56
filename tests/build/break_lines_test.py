#!/usr/bin/env python3
"""Shows that breaking lines finds what tests miss: how a line is broken, and a whole run on a small
tree of which it is known what its test notices."""
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))
import break_lines  # noqa: E402
from breaks import breaks_of, switched  # noqa: E402

SUM = """int calls = 0;
bool seen = false;
void Note() { ++calls; }
int Sum(int last) {
  int sum = 0;
  for (int i = 1; i <= last; i += 1) {
    sum += i;
  }
  if (last > 90) {
    seen = true;
  }
  Note();
  return sum;
}
constexpr int kUntested = 7;
int Untested() { return kUntested; }
"""
TEST = """#include <unistd.h>
int Sum(int last);
extern int calls;
int main() {
  alarm(20);
  return Sum(4) == 10 && Sum(100) == 5050 && calls == 2 ? 0 : 1;
}
"""


def broken(line):
    return {way.line for way in breaks_of(line)}


class Lines(unittest.TestCase):
    def test_each_kind_of_break(self):
        self.assertEqual(broken("  if (found) {"), {"  if (!(found)) {"})
        self.assertEqual(broken("  return a < b;"), {"  return a <= b;"})
        self.assertEqual(broken("  return a != b;"), {"  return a == b;"})
        self.assertEqual(broken("  return a && !b;"), {"  return a || !b;", "  return a && b;"})
        self.assertEqual(broken("  return a + b;"), {"  return a - b;"})
        self.assertEqual(broken("constexpr double kShare = 0.5;"), {"constexpr double kShare = 1.5;"})
        self.assertEqual(broken("  return false;"), {"  return true;"})
        self.assertEqual(broken("  list.Clear();"), {"  ;"})
        self.assertEqual(broken("  box->value = name;"), {"  ;"})

    def test_texts_comments_and_declarations_stay(self):
        for line in ("", '  Show("1 < 2 && 3");', "  // if (a < 1) Clear();", "#include <array>",
                     "  Text user(name);", "  const Text user = name;", "  template <int 3>",
                     "  case '1':", "  return kPart2;", "  std::vector<int> rows;"):
            self.assertFalse(broken(line) - {"  ;"}, line)
        self.assertFalse(broken("  Text user(name);"))

    def test_the_sound_line_stands_beside_the_broken_one(self):
        self.assertEqual(switched("  list.Clear();", "  ;", "T"),
                         "  { if (T) { ; } else { list.Clear(); } }")
        self.assertEqual(switched("  return a < b;", "  return a <= b;", "T"),
                         "  { if (T) return a <= b; return a < b; }")
        self.assertIn("T ? static_cast<bool>(!(a)) : static_cast<bool>(a)",
                      switched("  if (a) {", "  if (!(a)) {", "T"))
        self.assertIsNone(switched("      a + 1,", "      a - 1,", "T"))
        self.assertIsNone(switched("constexpr int kA = 1;", "constexpr int kA = 2;", "T"))

    def test_a_seed_decides_what_is_drawn(self):
        def first(seed):
            changes = break_lines.drawn(ROOT, ["src/storage"], seed)
            return [next(changes) for _ in range(20)]
        self.assertEqual(first(3), first(3))
        self.assertNotEqual(first(3), first(4))


class SmallTree(unittest.TestCase):
    def test_what_a_test_misses_survives(self):
        with tempfile.TemporaryDirectory() as root:
            folder = Path(root, "src", "food")
            folder.mkdir(parents=True)
            (folder / "sum.cpp").write_text(SUM)
            Path(root, "test.cpp").write_text(TEST)
            test = break_lines.Step([f"{root}/test"])
            project = break_lines.Project(
                Path(root), ["c++", "-std=c++20", "src/food/sum.cpp", "test.cpp", "-o", "test"],
                lambda path: [test])
            break_lines.check_sound(project, ["src/food/sum.cpp"])
            done = break_lines.break_lines(project, ["src/food"], 100, 1, 2)
            self.assertEqual((folder / "sum.cpp").read_text(), SUM)
        missed = {change.line for change in done if not change.noticed_by}
        lines = SUM.split("\n")
        self.assertEqual(missed, {n for n, line in enumerate(lines, 1)
                                  if "seen" in line or "> 90" in line or "kUntested =" in line})
        noticed = {lines[change.line - 1].strip() for change in done if change.noticed_by}
        self.assertEqual(noticed, {"int calls = 0;", "int sum = 0;", "sum += i;", "Note();",
                                   "for (int i = 1; i <= last; i += 1) {"})
        self.assertIn("0 noticed" if not noticed else f"{len(noticed)} noticed",
                      break_lines.report(done))

    def test_a_tree_whose_tests_fail_already_says_nothing(self):
        with tempfile.TemporaryDirectory() as root:
            failing = break_lines.Step(["false"])
            project = break_lines.Project(Path(root), ["true"], lambda path: [failing])
            with self.assertRaises(SystemExit):
                break_lines.check_sound(project, ["src/food/sum.cpp"])


if __name__ == "__main__":
    unittest.main()
