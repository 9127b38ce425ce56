#!/usr/bin/env python3
"""What scripts and documentation tell to run is there: files of the tree, and programs that the
preset they are looked for in builds."""
import json
import re
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SCRIPTS = ["run", "test", ".ci/run", "bench/run", "packaging/make_deb", "fuzz/run_long"]
PAGES = ["README.md", "fuzz/README.md", *(f"docs/{page.name}" for page in ROOT.glob("docs/*.md"))]
PROGRAM = re.compile(r"build/(\w+)/(?:bin|fuzz)/([\w-]+)")


def built_by(preset):
    """The targets of a preset, or None where it builds everything."""
    presets = json.loads((ROOT / "CMakePresets.json").read_text())["buildPresets"]
    return next(p for p in presets if p["name"] == preset).get("targets")


def commands(page):
    """The indented lines of a page: what it tells to type."""
    lines = (ROOT / page).read_text().splitlines()
    return [line.strip() for line in lines if line.startswith("    ")]


class Commands(unittest.TestCase):
    def test_a_preset_builds_the_programs_that_are_run_from_it(self):
        seen = set()
        for name in SCRIPTS + PAGES:
            for preset, program in PROGRAM.findall((ROOT / name).read_text()):
                seen.add((preset, program))
                targets = built_by(preset)
                self.assertTrue(targets is None or program in targets,
                                f"{name} runs {program}, which preset {preset} does not build")
        self.assertIn(("bench", "kelvora_window_bench"), seen)

    def test_the_scripts_of_the_pages_exist(self):
        seen = 0
        for page in PAGES:
            for command in commands(page):
                for word in re.findall(r"(?<![\w./])(?:\./)?(?:\w+/)*(?:\w+\.(?:py|sh)\b|"
                                       r"(?<=/)\w+(?![\w./]))", command):
                    path = word.removeprefix("./")
                    if path.startswith("build/"):
                        continue
                    seen += 1
                    self.assertTrue((ROOT / path).exists() or (ROOT / "src" / path).exists(),
                                    f"{page}: {command}")
        self.assertGreater(seen, 8)


if __name__ == "__main__":
    unittest.main()
