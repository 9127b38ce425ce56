"""Makes a Debian package of a build and shows it to Debian's own checker.

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
        (cls.package,) = cls.folder.glob("*.deb")

    def test_has_no_error_and_no_warning(self):
        self.assertEqual(lint(self.package), [])

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
