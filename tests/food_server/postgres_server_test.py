"""Two servers before one PostgreSQL that the test starts for itself: together, while the database is
away, and when their store is migrated.

The argument is the server program.
"""
import re
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

from postgres import Postgres

SERVER = Path(sys.argv[1]).resolve()
FOODS = Path(__file__).resolve().parents[2] / "data/foods"
HEADER = "name\tunit\tgram\tkj\tkcal\tprotein\tfat_u\tfat_s\tcarbs\tsodium\tgroup\tremark\n"
LIMIT = 90
FOOD = "kj=100&kcal=24&vvet=1&ovet=1&kdr=1&ew=1&nat=0,1&opmerking=Kelvora FOOD&gepost=me"


class Server:
    """One server; requests go over bare sockets, with blanks as they are typed."""

    def __init__(self, folder, name, store, *lines):
        self.configuration = folder / f"{name}.conf"
        self.log = folder / f"{name}.log"
        self.configuration.write_text("\n".join(["port = 0", f"store = {store}", *lines, ""]))
        with open(self.log, "wb") as log:
            self.process = subprocess.Popen([SERVER, "--config", self.configuration], stderr=log,
                                            stdout=subprocess.DEVNULL)
        self.port = int(wait_for(self.find_port).group(1))

    def find_port(self):
        assert self.process.poll() is None, self.log.read_text()
        return re.search(r"port (\d+)", self.log.read_text())

    def ask(self, target):
        """Status and body of the answer."""
        with socket.create_connection(("127.0.0.1", self.port), timeout=60) as connection:
            connection.sendall(f"GET {target} HTTP/1.1\r\nHost: x\r\nConnection: close\r\n\r\n".encode())
            answer = b""
            while part := connection.recv(65536):
                answer += part
        head, _, body = answer.partition(b"\r\n\r\n")
        return int(head.split()[1]), body

    def search(self, term):
        """The names that are found, or the status of another answer."""
        status, body = self.ask(f"/modules/kvzoek.php?item={term}")
        if status != 200:
            return status
        return [line.split(b"\xbd")[0].decode("cp1252") for line in body.split(b"\xbc")[:-1]]

    def submit(self, name):
        return self.ask(f"/modules/swadd.php?naam={name}&{FOOD}")

    def run(self, *arguments):
        return subprocess.run([SERVER, "--config", self.configuration, *arguments], capture_output=True,
                              text=True, check=False, timeout=LIMIT)

    def end(self):
        self.process.terminate()
        assert self.process.wait(timeout=60) == 0, self.log.read_text()


def wait_for(condition):
    end = time.monotonic() + LIMIT
    while time.monotonic() < end:
        found = condition()
        if found:
            return found
        time.sleep(0.05)
    raise AssertionError(f"waited in vain for {condition}")


def migrate(*arguments):
    return subprocess.run([SERVER, "migrate", *arguments], capture_output=True, text=True, check=False,
                          timeout=LIMIT)


class TwoServers(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.postgres = cls.enterClassContext(Postgres())
        cls.folder = Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="kelvora-two-")))

    def setUp(self):
        self.store = self.postgres.fresh()
        self.foods = self.folder / self.id().rpartition(".")[2]
        self.foods.mkdir()
        self.put("Bread", "Rye bread")

    def put(self, *names):
        table = self.foods / "Foods.tsv"
        rows = "".join(f"{name}\t1 slice\t30\t290\t69\t3\t1\t0.2\t12\t0.15\tBread\t\n" for name in names)
        new = table.with_suffix(".new")
        new.write_text(HEADER + rows)
        new.rename(table)

    def server(self, name, *lines):
        server = Server(self.folder, name, self.store, f"foods = {self.foods}", *lines)
        self.addCleanup(server.end)
        return server

    def pair(self, *lines):
        servers = self.server("one", *lines), self.server("two", *lines)
        for server in servers:
            wait_for(lambda: server.search("bread") == ["Bread", "Rye bread"])
        return servers

    def test_serve_the_same_foods_and_submissions_and_count_them_together(self):
        one, two = self.pair("submissions_per_hour = 3")
        self.put("Bread", "Oat bread")
        for server in (one, two):
            wait_for(lambda: server.search("oat") == ["Oat bread"])
            self.assertEqual(server.search("rye"), [])
        answers = [server.submit(f"Corn bread {n}") for n, server in enumerate((one, two, one))]
        self.assertEqual([(status, body[:2]) for status, body in answers], [(200, b"OK")] * 3)
        for server in (one, two):
            status, body = server.submit("Corn bread 4")
            self.assertEqual((status, body[:2]), (429, b"RE"))
        self.assertEqual(one.search("corn"), [])
        numbers = [line.split("\t")[0] for line in two.run("review", "list").stdout.splitlines()]
        self.assertEqual(len(numbers), 3)
        self.assertEqual(two.run("review", "accept", numbers[1]).returncode, 0)
        self.assertEqual((one.search("corn"), two.search("corn")), (["Corn bread 1"],) * 2)

    def test_say_so_while_the_database_is_away_and_serve_again_when_it_is_back(self):
        one, two = self.pair()
        for away, back in (("stop", "start"), ("freeze", "thaw")):
            getattr(self.postgres, away)()
            try:
                for server in (one, two):
                    self.assertEqual(server.search("bread"), 503)
                    self.assertEqual(server.submit("Corn bread")[0], 503)
                    self.assertEqual(server.ask("/health")[0], 503)
                    self.assertIn(b"store_up 0", server.ask("/metrics")[1])
            finally:
                getattr(self.postgres, back)()
            for server in (one, two):
                wait_for(lambda: server.search("bread") == ["Bread", "Rye bread"])
                wait_for(lambda: server.ask("/health")[0] == 200)
            self.assertEqual(two.submit(f"Bread after {back}")[1][:2], b"OK")
        self.assertEqual(len(one.run("review", "list").stdout.splitlines()), 2)

    def test_start_again_with_the_foods_of_before_without_reading_them(self):
        one, _ = self.pair()
        one.process.send_signal(signal.SIGKILL)
        one.process.wait()
        self.doCleanups_of(one)
        three = self.server("three")
        wait_for(lambda: three.search("bread") == ["Bread", "Rye bread"])
        self.assertNotIn("can be searched", three.log.read_text())

    def doCleanups_of(self, server):
        """A server that was killed isn't ended once more."""
        self._cleanups = [one for one in self._cleanups if one[0] != server.end]

    def test_migrates_both_ways(self):
        files = [f"sqlite:{self.folder}/{name}.db" for name in ("from", "back", "nothing")]
        server = Server(self.folder, "embedded", files[0], f"foods = {FOODS}")
        try:
            wait_for(lambda: server.search("buttermilk")[:1] == ["Buttermilk"]
                     if server.ask("/health")[0] == 200 else None)
            for name in ("Corn bread", "Maize bread"):
                self.assertEqual(server.submit(name)[1][:2], b"OK")
            self.assertEqual(server.run("review", "accept", "2").returncode, 0)
            before = server.search("bread")
        finally:
            server.end()
        there = migrate(files[0], self.store)
        self.assertEqual(there.returncode, 0, there.stderr)
        self.assertRegex(there.stdout, r"^\d{3} foods and 2 submissions copied; the checksum of both "
                                       r"stores is [0-9a-f]{16}\n$")
        again = migrate(files[0], self.store)
        self.assertEqual((again.returncode, again.stdout), (1, ""))
        self.assertIn("isn't empty", again.stderr)
        self.assertEqual(migrate("--replace", files[0], self.store).stdout, there.stdout)
        back = migrate(self.store, files[1])
        self.assertEqual(back.stdout, there.stdout)
        self.foods = FOODS
        moved = self.server("moved")
        self.assertEqual(wait_for(lambda: moved.search("bread")), before)
        self.assertIn("Maize bread", before)
        nothing = migrate(files[2], files[1])
        self.assertEqual(nothing.returncode, 1)
        self.assertFalse(Path(files[2].partition(":")[2]).exists())
        for wrong in ([], [files[0]], ["--all", *files[:2]], files):
            self.assertEqual(migrate(*wrong).returncode, 2, wrong)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
