"""The printing system of tests/support, started for one test and ended with it, and PDFs read by
programs that share nothing with the one that made them."""
import socket
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

SERVER = Path(__file__).resolve().parents[1] / "support" / "print_server.py"
TWIPS_OF_POINT = 20


def listens(place):
    with socket.socket(socket.AF_UNIX) as client:
        return client.connect_ex(place) == 0


class PrintServer:
    """Use it as a context manager inside that of a desktop, whose programs print on it then."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.folder = None
        self.process = None

    def __enter__(self):
        self.folder = tempfile.TemporaryDirectory(prefix="kelvora-print-")
        self.process = subprocess.Popen([sys.executable, SERVER, self.folder.name],
                                        stderr=subprocess.DEVNULL)
        place = str(Path(self.folder.name, "socket"))
        self.desktop.environment["CUPS_SERVER"] = place
        self.desktop.wait_for("a printing system", lambda: listens(place))
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait(timeout=30)
        self.folder.cleanup()

    def printed(self, queue):
        return sorted(Path(self.folder.name, "printed").glob(f"{queue}-*.pdf"),
                      key=lambda path: int(path.stem.partition("-")[2]))

    def wait_for(self, queue, count):
        self.desktop.wait_for(f"job {count} of {queue}",
                              lambda: len(self.printed(queue)) >= count)
        return self.printed(queue)[count - 1]


def words_of(pdf):
    """The words of a PDF of one page, each with its left and top edges in twips."""
    text = subprocess.run(["pdftotext", "-bbox", pdf, "-"], check=True,
                          stdout=subprocess.PIPE).stdout
    root = ElementTree.fromstring(text)
    pages = root.findall(".//{*}page")
    assert len(pages) == 1, f"{len(pages)} pages"
    return [(word.text, float(word.get("xMin")) * TWIPS_OF_POINT,
             float(word.get("yMin")) * TWIPS_OF_POINT) for word in pages[0].findall("{*}word")]


def fonts_of(pdf):
    """The names of its fonts, all embedded."""
    table = subprocess.run(["pdffonts", pdf], check=True, text=True,
                           stdout=subprocess.PIPE).stdout.splitlines()[2:]
    rows = [line.split() for line in table]
    assert all(row[4] == "yes" for row in rows), table
    return {row[0].rpartition("+")[2] for row in rows}
