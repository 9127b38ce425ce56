"""Installs a build into a folder of its own and looks at it as a desktop would.

Arguments: the build folder and the folder of the starter foods' tables. The list of files stands
here by hand; only the databases follow the tables, one file for each, and the help its pages.
"""
import gzip
import os
import re
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path
from xml.etree import ElementTree

PROGRAM = "usr/lib/kelvora-food/kelvora-food"
LINK = "usr/bin/kelvora-food"
DESKTOP = "usr/share/applications/kelvora-food.desktop"
METAINFO = "usr/share/metainfo/io.brelux.kelvorafood.metainfo.xml"
ICONS = "usr/share/icons/hicolor"
DOC = "usr/share/doc/kelvora-food"
MANUAL = "usr/share/man/man1/kelvora-food.1.gz"
IMPORT = {"usr/lib/kelvora-food/kelvora-food-import", "usr/bin/kelvora-food-import",
          "usr/share/man/man1/kelvora-food-import.1.gz"}
FILES = IMPORT | {PROGRAM, LINK, DESKTOP, METAINFO, f"{DOC}/copyright", f"{DOC}/changelog.gz", MANUAL,
         f"{ICONS}/scalable/apps/kelvora-food.svg",
         f"{ICONS}/48x48/apps/kelvora-food.png", f"{ICONS}/64x64/apps/kelvora-food.png",
         f"{ICONS}/128x128/apps/kelvora-food.png"}
HOME_FOLDERS = [".config/Brelux", "Documents/Kelvora FOOD/My Users",
                "Documents/Kelvora FOOD/My Reports", "Documents/Kelvora FOOD/My Language"]
BUILD, TABLES = map(Path, sys.argv[1:3])
SOURCE = Path(__file__).resolve().parents[2]


class Installation(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="kelvora-install-")
        cls.addClassCleanup(folder.cleanup)
        cls.root = Path(folder.name)
        subprocess.run(["cmake", "--install", BUILD, "--component", "desktop", "--prefix", "/usr"], check=True,
                       env=os.environ | {"DESTDIR": folder.name}, stdout=subprocess.DEVNULL)

    def databases(self):
        return {f"usr/lib/kelvora-food/Databases/{table.stem}.dat"
                for table in TABLES.glob("*.tsv")}

    def help_files(self):
        """The pages that are written and that of the search, the style, the script, the pictures."""
        prose = SOURCE / "help"
        names = {"style.css", "search.js"}
        names |= {str(picture.relative_to(prose)) for picture in prose.glob("pictures/*/*.png")}
        for language in ("en", "nl"):
            names |= {f"{language}/{page.name}" for page in (prose / "en").glob("*.html")}
            names.add(f"{language}/search.html")
        return {f"usr/lib/kelvora-food/help/{name}" for name in names}

    def test_holds_the_listed_files_and_no_other(self):
        installed = {str(path.relative_to(self.root)) for path in self.root.rglob("*")
                     if path.is_symlink() or not path.is_dir()}
        self.assertEqual(installed, FILES | self.databases() | self.help_files())

    def test_no_database_is_empty(self):
        self.assertTrue(self.databases())
        for name in self.databases():
            self.assertGreater(Path(self.root, name).stat().st_size, 0, name)

    def test_the_link_leads_to_the_program_wherever_it_is_installed(self):
        link = Path(self.root, LINK)
        self.assertEqual(os.readlink(link), "../lib/kelvora-food/kelvora-food")
        self.assertEqual(link.resolve(), Path(self.root, PROGRAM).resolve())
        self.assertTrue(os.access(link, os.X_OK))

    def test_the_import_without_a_window_runs_through_its_link(self):
        run = subprocess.run([Path(self.root, "usr/bin/kelvora-food-import"), "--version"], text=True,
                             check=True, capture_output=True)
        self.assertTrue(run.stdout.startswith("kelvora-food-import (Kelvora FOOD) "), run.stdout)

    def test_pixel_icons_have_the_size_of_their_folder(self):
        for size in (48, 64, 128):
            png = Path(self.root, f"{ICONS}/{size}x{size}/apps/kelvora-food.png").read_bytes()
            self.assertEqual(png[:8], b"\x89PNG\r\n\x1a\n")
            # The header chunk opens with width and height.
            self.assertEqual((int.from_bytes(png[16:20], "big"), int.from_bytes(png[20:24], "big")),
                             (size, size))

    def accepts(self, *command):
        answer = subprocess.run(command, text=True, check=False, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT)
        self.assertEqual(answer.returncode, 0, answer.stdout)
        return answer.stdout

    def test_the_menu_entry_is_valid(self):
        self.assertEqual(self.accepts("desktop-file-validate", Path(self.root, DESKTOP)), "")

    def test_the_software_centre_entry_is_valid(self):
        self.accepts("appstreamcli", "validate", "--no-net", Path(self.root, METAINFO))

    def test_the_manual_page_is_read_without_a_warning(self):
        page = Path(self.root, MANUAL)
        answer = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", page], text=True, check=True,
                                capture_output=True, env=os.environ | {"MANWIDTH": "80"})
        self.assertEqual(answer.stderr, "")
        self.assertIn("kelvora-food - diary of food and nutrition", answer.stdout)

    def test_all_that_names_a_version_names_the_same(self):
        version = re.search(r"project\(kelvora-food VERSION ([\d.]+)",
                            Path(SOURCE, "CMakeLists.txt").read_text()).group(1)
        changes = gzip.decompress(Path(self.root, DOC, "changelog.gz").read_bytes()).decode()
        self.assertTrue(changes.startswith(f"kelvora-food ({version}) "), changes)
        self.assertIn(f"Kelvora FOOD {version}",
                      gzip.decompress(Path(self.root, MANUAL).read_bytes()).decode())
        releases = ElementTree.parse(Path(self.root, METAINFO)).findall("releases/release")
        self.assertEqual(releases[0].get("version"), version)

    def test_starts_through_the_link_and_makes_its_folders_in_an_empty_home(self):
        with tempfile.TemporaryDirectory(prefix="kelvora-home-") as home:
            environment = {name: value for name, value in os.environ.items()
                           if not name.startswith("XDG_")}
            environment |= {"HOME": home, "QT_QPA_PLATFORM": "offscreen", "LANG": "C.UTF-8"}
            # It asks a question at its first start, and so runs until it is ended.
            process = subprocess.Popen([Path(self.root, LINK)], env=environment,
                                       stderr=subprocess.DEVNULL)
            try:
                wanted = [Path(home, folder) for folder in HOME_FOLDERS]
                end = time.monotonic() + 60
                while time.monotonic() < end and process.poll() is None:
                    if all(folder.is_dir() for folder in wanted):
                        break
                    time.sleep(0.05)
                self.assertEqual([folder for folder in wanted if not folder.is_dir()], [])
                self.assertIsNone(process.poll(), "the program ended by itself")
                self.assertEqual(Path(f"/proc/{process.pid}/exe").resolve(),
                                 Path(self.root, PROGRAM).resolve())
            finally:
                process.kill()
                process.wait()


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
