#!/usr/bin/env python3
"""Each script asks the system for no more than what stands under its headings.

The package tools of the system are replaced by ones that know no package and write down what they are
asked to install.
"""
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
TOOL = "tools/install_packages"
RECORDING = '#!/bin/sh\n[ "$1" = install ] && printf "%s\\n" "$@" >> "$RECORD"\nexit 0\n'


def installed(*headings):
    """What the tool asks to install, and how it ends."""
    with tempfile.TemporaryDirectory() as folder:
        scripts = {"dpkg-query": "#!/bin/sh\nexit 1\n", "apt-get": RECORDING, "id": "#!/bin/sh\necho 0\n"}
        for name, text in scripts.items():
            Path(folder, name).write_text(text)
            Path(folder, name).chmod(0o755)
        record = Path(folder, "record")
        environment = os.environ | {"PATH": f"{folder}:{os.environ['PATH']}", "RECORD": str(record)}
        ended = subprocess.run([ROOT / TOOL, *headings], env=environment, check=False,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        words = record.read_text().split() if record.exists() else []
        return {word for word in words if not word.startswith("-")} - {"install"}, ended.returncode


def headings_of(script):
    line = next(line for line in (ROOT / script).read_text().splitlines() if line.startswith(TOOL))
    return line.split()[1:]


class Packages(unittest.TestCase):
    def test_running_installs_nothing_that_only_tests_need(self):
        packages, code = installed(*headings_of("run"))
        self.assertEqual(code, 0)
        self.assertLessEqual({"g++", "cmake", "qt6-base-dev", "libqt6svg6"}, packages)
        self.assertFalse(packages & {"clang-14", "libgtest-dev", "xvfb", "chromium", "lintian",
                                     "clang-format", "libbenchmark-dev", "dpkg-dev"})

    def test_making_the_package_needs_its_tools_too(self):
        packages, _ = installed(*headings_of("packaging/make_deb"))
        self.assertEqual(packages - installed(*headings_of("run"))[0], {"dpkg-dev"})

    def test_testing_and_measuring_install_every_line(self):
        lines = (ROOT / "packages.txt").read_text().split("\n")
        every = {line for line in lines if line and not line.startswith("#")}
        for script in ("test", ".ci/run", "bench/run"):
            self.assertEqual(installed(*headings_of(script)), (every, 0), script)

    def test_a_heading_that_is_not_there_fails(self):
        self.assertEqual(installed("Build", "Sail"), (set(), 1))


if __name__ == "__main__":
    unittest.main()
