"""Installs the food server of a build into a folder of its own, starts it as its service would, and
holds its page, its manual and its example configuration to what the program knows.

The argument is the build folder.
"""
import gzip
import os
import re
import subprocess
import sys
import tempfile
import time
import unittest
import urllib.request
from pathlib import Path

BUILD = Path(sys.argv[1])
SOURCE = Path(__file__).resolve().parents[2]
PROGRAM = "usr/bin/kelvora-food-server"
CONFIGURATION = "etc/kelvora-food-server.conf"
SERVICE = "usr/lib/systemd/system/kelvora-food-server.service"
MANUAL = "usr/share/man/man1/kelvora-food-server.1.gz"
DOC = "usr/share/doc/kelvora-food-server"
FOODS = "usr/share/kelvora-food-server/foods"
FILES = {PROGRAM, CONFIGURATION, SERVICE, MANUAL, "usr/lib/sysusers.d/kelvora-food-server.conf",
         f"{DOC}/copyright", f"{DOC}/changelog.gz"}
PAGE = (SOURCE / "docs/food_server.md").read_text()


def known_keys():
    """The table of keys in the program's source, and the default of each number and text."""
    text = (SOURCE / "tools/food_server/configuration.cpp").read_text()
    table = re.search(r"kKeys = \{(.*?)\};", text, re.S).group(1)
    return re.findall(r'"(\w+)"', table)


def known_defaults():
    text = (SOURCE / "tools/food_server/configuration.h").read_text()
    struct = re.search(r"struct Configuration \{(.*?)\n\};", text, re.S).group(1)
    found = dict(re.findall(r"^ *[\w:<>]+ (\w+)(?: = ([^;]+))?;", struct, re.M))
    found["log"] = found["log"].removeprefix("LogLevel::")
    return {key: value.strip('"') for key, value in found.items()}


class FoodServer(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="kelvora-server-install-")
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        cls.root = cls.folder / "root"
        subprocess.run(["cmake", "--install", BUILD, "--component", "server", "--prefix", "/usr"],
                       check=True, env=os.environ | {"DESTDIR": str(cls.root)},
                       stdout=subprocess.DEVNULL)

    def configuration(self, name, text):
        path = self.folder / name
        path.write_text(text)
        return path

    def refusal_of(self, text):
        """The status and the line with which the program refuses a configuration."""
        path = self.configuration("refused.conf", text)
        run = subprocess.run([self.root / PROGRAM, "--config", path, "review", "list"],
                             capture_output=True, text=True, check=False, timeout=60)
        return run.returncode, run.stderr

    def test_holds_the_listed_files_and_the_starter_foods(self):
        installed = {str(path.relative_to(self.root)) for path in self.root.rglob("*")
                     if not path.is_dir()}
        tables = {f"{FOODS}/{table.name}" for table in (SOURCE / "data/foods").glob("*.tsv")}
        self.assertEqual(installed, FILES | tables)

    def test_page_manual_and_example_have_the_keys_of_the_program_and_their_defaults(self):
        defaults = known_defaults()
        self.assertEqual(set(defaults), set(known_keys()))
        rows = dict(re.findall(r"^\| `(\w+)` \| (?:`([^`]*)`|none) \|", PAGE, re.M))
        self.assertEqual(rows, defaults)
        manual = gzip.decompress((self.root / MANUAL).read_bytes()).decode()
        section = re.search(r"\.SH CONFIGURATION(.*?)\.SH ", manual, re.S).group(1)
        self.assertEqual(re.findall(r"^\.B (\w+)$", section, re.M), known_keys())
        example = dict(re.findall(r"^#?(\w+) = (.*)$", (self.root / CONFIGURATION).read_text(), re.M))
        self.assertEqual(set(example), set(defaults))
        for key, value in example.items():
            if key != "foods":
                self.assertEqual(value, defaults[key], key)

    def test_the_program_knows_each_key_and_no_other(self):
        store = f"store = sqlite:{self.folder}/keys.db\n"
        for key in known_keys():
            if key != "store":
                status, line = self.refusal_of(store + f"{key} =\n")
                self.assertEqual((status, "has no value" in line), (2, True), key)
        status, line = self.refusal_of(store + "colour = red\n")
        self.assertEqual(status, 2)
        self.assertIn("refused.conf:2: ", line)

    def test_the_manual_is_read_without_a_warning(self):
        answer = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", self.root / MANUAL], text=True,
                                check=True, capture_output=True, env=os.environ | {"MANWIDTH": "80"})
        self.assertEqual(answer.stderr, "")

    def test_the_manual_and_the_list_of_changes_are_of_this_version(self):
        version = re.search(r"project\(kelvora-food VERSION ([\d.]+)",
                            (SOURCE / "CMakeLists.txt").read_text()).group(1)
        changes = gzip.decompress((self.root / DOC / "changelog.gz").read_bytes()).decode()
        self.assertTrue(changes.startswith(f"kelvora-food-server ({version}) "))
        self.assertIn(f"Kelvora FOOD {version}",
                      gzip.decompress((self.root / MANUAL).read_bytes()).decode())

    def test_the_service_gives_away_little(self):
        """By systemd's own count from 0 to 10, of which a plain service has 9.6."""
        run = subprocess.run(["systemd-analyze", "security", "--offline=yes", "--threshold=15",
                              self.root / SERVICE], check=False, capture_output=True, text=True)
        self.assertEqual(run.returncode, 0, run.stdout[-300:] + run.stderr)

    def test_answers_with_the_example_and_the_foods_of_the_package(self):
        """With the places of the folder in the place of those of a system."""
        example = (self.root / CONFIGURATION).read_text().replace("/usr/", f"{self.root}/usr/")
        path = self.configuration("example.conf", example.replace("#port = 8080", "port = 0") +
                                  f"store = sqlite:{self.folder}/foods.db\n")
        with open(self.folder / "log", "w+") as log:
            server = subprocess.Popen([self.root / PROGRAM, "--config", path], stderr=log, cwd="/")
            try:
                port = self.waits(lambda: re.search(r"port (\d+)", (self.folder / "log").read_text()),
                                  server).group(1)
                address = f"http://127.0.0.1:{port}"
                self.waits(lambda: self.found(address, "karnemelk"), server)
                self.assertIn(b"Buttermilk", self.found(address, "karnemelk"))
            finally:
                server.terminate()
                self.assertEqual(server.wait(timeout=60), 0)

    def found(self, address, term):
        try:
            with urllib.request.urlopen(f"{address}/modules/kvzoek.php?item={term}", timeout=30) as reply:
                return reply.read()
        except urllib.error.HTTPError:
            return b""

    def waits(self, condition, server):
        end = time.monotonic() + 60
        while time.monotonic() < end and server.poll() is None:
            found = condition()
            if found:
                return found
            time.sleep(0.05)
        self.fail((self.folder / "log").read_text())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
