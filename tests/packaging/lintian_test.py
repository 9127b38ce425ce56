"""Makes the Debian packages of a build and shows them to Debian's own checker.

The argument is the build folder. What the checker remarks below a warning is left to it.
"""
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

BUILD = Path(sys.argv[1])


def lint(package):
    """The checker's lines about a package that are errors or warnings."""
    answer = subprocess.run(["lintian", "--allow-root", "--tag-display-limit", "0", package], text=True,
                            check=False, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return [line for line in answer.stdout.splitlines() if not line.startswith("N: ")]


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="kelvora-package-")
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        previous = os.umask(0o022)
        subprocess.run(["cpack", "--config", BUILD / "CPackConfig.cmake", "-B", cls.folder], check=True,
                       cwd=BUILD, stdout=subprocess.DEVNULL)
        os.umask(previous)
        (cls.package,) = cls.folder.glob("kelvora-food_*.deb")
        (cls.server,) = cls.folder.glob("kelvora-food-server_*.deb")

    def test_has_no_error_and_no_warning(self):
        self.assertEqual(lint(self.package), [])

    def test_that_of_the_food_server_has_no_error_and_no_warning(self):
        self.assertEqual(lint(self.server), [])

    def test_neither_package_needs_the_other_or_has_a_file_of_it(self):
        def field(package, name):
            return subprocess.run(["dpkg-deb", "--field", package, name], check=True, text=True,
                                  capture_output=True).stdout

        def files(package):
            lines = subprocess.run(["dpkg-deb", "--contents", package], check=True, text=True,
                                   capture_output=True).stdout.splitlines()
            return {line.split(maxsplit=5)[5] for line in lines if not line.endswith("/")}

        for package in (self.package, self.server):
            for name in ("Pre-Depends", "Depends", "Recommends"):
                self.assertNotIn("kelvora", field(package, name))
        self.assertNotIn("qt", field(self.server, "Depends").lower())
        self.assertIn("./usr/bin/kelvora-food-server", files(self.server))
        self.assertEqual(files(self.package) & files(self.server), set())
        self.assertEqual([name for name in files(self.package) if "server" in name], [])

    def test_the_checker_sees_what_is_missing(self):
        """The same package without its manual page and its list of changes."""
        tree = self.folder / "tree"
        subprocess.run(["dpkg-deb", "--raw-extract", self.package, tree], check=True)
        (tree / "usr/share/man/man1/kelvora-food.1.gz").unlink()
        (tree / "usr/share/doc/kelvora-food/changelog.gz").unlink()
        less = self.folder / "less.deb"
        subprocess.run(["dpkg-deb", "--root-owner-group", "--build", tree, less], check=True,
                       stdout=subprocess.DEVNULL)
        found = "\n".join(lint(less))
        self.assertIn("no-manual-page", found)
        self.assertIn("no-changelog", found)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
