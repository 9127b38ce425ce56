#!/usr/bin/env python3
"""Every form and every bad input, over real sockets against the running food server.

    requests_test.py PROGRAM [--store LINE]

LINE names an empty store as the configuration does; without one it is SQLite in a temporary folder.
"""
import argparse
import resource
import signal
import struct
import subprocess
import sys
import tempfile
import threading
import time
import unittest
from pathlib import Path

from running_server import (END, LIMIT, SEARCH, SUBMIT, Answer, FoodServer, connect, read_all,
                            submission, wait_for)

HEAD = "name unit gram kj kcal protein fat_u fat_s carbs sodium group remark".replace(" ", "\t")
VALUES = "\t1 piece\t50\t420\t100\t1\t2\t3\t4\t0.5\tTest\t"
TABLE = {"Rice": "rijst", "Brown rice": "zilvervliesrijst", "Licorice": "drop", "Rice cake": "rijstwafel",
         "Crème fraîche": "zure room", "Ham & egg": "ham en ei", "Yoghurt 0%": "yoghurt",
         "Melon, 1/4": "meloen"}
MANY = 230  # foods with one word, more than one reply takes
ARGUMENTS = None
HOSTILE = [b"'", b'"', b"';DROP TABLE food_a;--", b"\" OR 1=1 --", b"rice\" OR \"ham", b"rice*", b"^rice",
           b"NEAR(rice ham)", b"rice AND", b"NOT rice", b"words:rice", b"{words}:rice", b"-rice", b"(rice",
           b"%s%n%x", b"\xbd\xbe\xbc", b"\xbc", b"<script>alert(1)</script>", b"\xff\xfe\x80", b"\xc3", b"\xc3\x28",
           b"\xe2\x82", b"\xf0\x9f\x8d\x9e", b"&", b"&&item=x", b"#", b"?item=", b"\\", b"\\x00", b"%00", b"$1",
           b":rice", b"rice ham egg yoghurt crome", b"a" * 8000, b"a " * 4000, b"\t", b"\x01\x02\x7f", b"''''",
           b"../../etc/passwd", b"{{7*7}}", b"${x}", b"|", b"!rice", b"rice & ham", b"rice <-> ham", b"ri:*"]


def table(foods):
    return "\n".join([HEAD, *(name + VALUES + remark for name, remark in foods.items())]) + "\n"


def database(*names):
    line = "½1 piece½50½420½100½1½2½3½4½0.5½Test½½¾"
    text = "".join(name + line for name in names).encode("cp1252")
    return struct.pack("<IH", 1, len(text)) + text


class Requests(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.root = Path(cls.folder.name)
        cls.foods = cls.root / "foods"
        cls.foods.mkdir()
        (cls.foods / "Test.tsv").write_text(table(TABLE), encoding="utf-8")
        (cls.foods / "Many.dat").write_bytes(database(*(f"Soup {n:03}" for n in range(MANY))))
        cls.store = ARGUMENTS.store or f"sqlite:{cls.root}/foods.db"
        cls.server = FoodServer(ARGUMENTS.program, cls.root, cls.store, [cls.foods],
                                request_seconds=2)
        cls.address = 10

    @classmethod
    def tearDownClass(cls):
        status = cls.server.end()
        cls.folder.cleanup()
        assert status == 0, status

    def another(self, name, **settings):
        """One more server on the same store."""
        folder = self.root / name
        folder.mkdir(exist_ok=True)
        return FoodServer(ARGUMENTS.program, folder, self.store, [self.foods], **settings)

    def own_store(self, name, **settings):
        """A server with a store in a file of its own: of what is no matter of the store."""
        folder = self.root / name
        folder.mkdir(exist_ok=True)
        foods = settings.pop("foods", [self.foods])
        return FoodServer(ARGUMENTS.program, folder, f"sqlite:{folder}/foods.db", foods, **settings)

    def new_address(self):
        """One of this machine's addresses that nothing was submitted from."""
        Requests.address += 1
        return f"127.0.0.{Requests.address}"

    def unchecked(self):
        return {line.split("\t")[5] for line in self.server.review("list").splitlines()}

    # Searches

    def test_a_reply_is_food_lines_in_the_code_page(self):
        answer = self.server.search("crème")
        self.assertEqual(answer.body, "Crème fraîche½1 piece½50½420½100½1½2½3½4½0.5½Test½zure room½¼"
                         .encode("cp1252"))
        self.assertEqual(answer.status, 200)
        self.assertEqual(answer.headers["content-type"], "text/plain; charset=windows-1252")

    def test_relevance(self):
        self.assertEqual(self.server.search("rice").foods, ["Rice", "Rice cake", "Brown rice", "Licorice"])
        self.assertEqual(self.server.search("RIJST").foods, ["Rice", "Rice cake", "Brown rice"])
        self.assertEqual(self.server.search("rice brown").foods, ["Brown rice"])
        self.assertEqual(self.server.search("ri").foods, ["Rice", "Rice cake", "Brown rice"])

    def test_two_hundred_at_the_most(self):
        self.assertEqual(self.server.search("soup").foods, [f"Soup {n:03}" for n in range(200)])

    def test_terms_are_read_as_utf8_or_as_the_code_page(self):
        for term in (b"cr\xe8me", "crème".encode(), b"CREME", b"FRA\xceCHE", "Fraîche".encode()):
            self.assertEqual(self.server.search(term).foods, ["Crème fraîche"], term)

    def test_a_term_is_everything_behind_item_and_nothing_is_decoded(self):
        self.assertEqual(self.server.search("ham & egg").foods, ["Ham & egg"])
        self.assertEqual(self.server.search("ham&item=egg").foods, [])
        self.assertEqual(self.server.search("0%").foods, ["Yoghurt 0%"])
        self.assertEqual(self.server.search("brown%20rice").foods, [])
        self.assertEqual(self.server.search("brown+rice").foods, ["Brown rice"])
        self.assertEqual(self.server.search(" brown  rice ").foods, ["Brown rice"])
        self.assertEqual(self.server.search("melon, 1/4").foods, ["Melon, 1/4"])

    def test_no_hit_is_an_empty_text(self):
        for term in ("", " ", "xyzzy", "½¾¼", "-", "'"):
            answer = self.server.search(term)
            self.assertEqual((answer.status, answer.body), (200, b""), term)

    def test_a_search_without_item_is_refused(self):
        for target in (b"/modules/kvzoek.php", b"/modules/kvzoek.php?", b"/modules/kvzoek.php?Item=x"):
            self.assertEqual(self.server.get(target).status, 400)

    def test_hostile_terms_get_an_answer(self):
        for term in HOSTILE:
            self.assertEqual(self.server.search(term).status, 200, term)
        self.assertIsNone(self.server.said("fails"))
        self.assertEqual(self.server.search("rice").foods[0], "Rice")

    # Submissions

    def test_a_submission_is_found_when_it_is_accepted(self):
        source = self.new_address()
        answer = self.server.submit("Müsli pur", source, vvet="1,5")
        self.assertTrue(answer.body.startswith(b"OK"))
        self.assertEqual(self.server.search("müsli").foods, [])
        line = next(line for line in self.server.review("list").splitlines() if "Müsli" in line)
        number, _, state, address, sender, *_ = line.split("\t")
        self.assertEqual((state, address, sender), ("unchecked", source, "piet"))
        self.server.review("accept", number)
        self.assertEqual(self.server.search("MUSLI").body,
                         "Müsli pur½100 gram½100½1000½238½10.00½2.25½1.5½30.00½0.100½0½½¼".encode("cp1252"))
        self.server.review("correct", number, "remark=Ontbijtgranen", "name=Muesli pur")
        self.assertEqual(self.server.search("ontbijtgranen").foods, ["Muesli pur"])
        self.assertEqual(self.server.search("musli pur").foods, [])
        self.server.review("refuse", number)
        self.assertEqual(self.server.search("ontbijtgranen").foods, [])

    def test_an_ampersand_cuts_the_name_and_the_review_sees_the_rest(self):
        self.assertTrue(self.server.submit("Salt&pepper", self.new_address()).body.startswith(b"OK"))
        line = next(line for line in self.server.review("list").splitlines() if "\tSalt " in line)
        self.assertIn('(cut at "&")', line)
        self.assertIn("naam=Salt&pepper&kj=", self.server.review("show", line.split("\t")[0]))

    def test_bad_submissions_are_refused(self):
        whole = submission("Refused food")
        bad = [b"", b"&&&", b"naam=Refused food", whole.replace(b"&gepost=piet", b""),
               whole.replace(b"kj=", b"KJ="), whole + b"&kj=2", whole.replace(b"kj=1000", b"kj=1e3"),
               whole.replace(b"kj=1000", b"kj=-1"), whole.replace(b"vvet=1.50", b"vvet=99"),
               whole.replace(b"Refused", b"\xbd"), whole.replace(b"Refused", b"\xbe"),
               whole.replace(b"Refused", b"\xbc"), whole.replace(b"Refused food", b"  "),
               whole.replace(b"Refused", b"x" * 200), whole.replace(b"kj=1000", b"kj=';DROP TABLE"),
               whole.replace(b"piet", b"p" * 300), whole.replace(b"Refused", b"\xd0\xb1")]
        source = self.new_address()
        for query in bad:
            answer = self.server.get(SUBMIT + query, source)
            self.assertEqual((answer.status, answer.body[:8]), (400, b"REFUSED:"), query)
        self.assertNotIn("Refused food", self.unchecked())

    def test_forged_senders_dont_raise_the_limit_of_an_address(self):
        source, other = self.new_address(), self.new_address()
        with self.another("limited", submissions_per_hour=3) as server:
            answers = [server.submit(f"Food {n}", source, gepost=f"sender {n}") for n in range(5)]
            self.assertEqual([answer.status for answer in answers], [200, 200, 200, 429, 429])
            self.assertFalse(answers[3].body.startswith(b"OK"))
            self.assertEqual(server.submit("Food 9", other).status, 200)

    # Requests that are none

    def test_other_paths_and_methods(self):
        for path in (b"/", b"/../../etc/passwd", b"/modules/", b"/modules/../health", b"/modules/kvzoek.php/",
                     b"//modules/kvzoek.php?item=x", b"/%68ealth", b"http://here/health", b"*", b"/healthy"):
            self.assertEqual(self.server.get(path).status, 404, path)
        for method in (b"POST", b"PUT", b"DELETE", b"OPTIONS", b"TRACE", b"get", b"BREW"):
            answer = self.server.send(method + b" " + SEARCH + b"rice HTTP/1.1\r\nHost: here\r\n"
                                      b"Connection: close\r\nContent-Length: 0\r\n\r\n")
            self.assertEqual((answer.status, answer.headers["allow"]), (405, "GET, HEAD"), method)
        head = self.server.send(b"HEAD " + SEARCH + b"rice" + END)
        self.assertEqual((head.status, head.body), (200, b""))
        self.assertGreater(int(head.headers["content-length"]), 100)

    def test_a_body_is_passed_over(self):
        answer = self.server.send(b"GET " + SEARCH + b"rice cake HTTP/1.1\r\nHost: here\r\n"
                                  b"Connection: close\r\nContent-Length: 9\r\n\r\n123456789")
        self.assertEqual(answer.foods, ["Rice cake"])
        huge = b"POST " + SEARCH + b"x HTTP/1.1\r\nHost: here\r\nContent-Length: 10000000\r\n\r\n" + b"x" * 10_000_000
        self.assertIn(self.server.send(huge).status, (405, None))

    def test_old_versions_of_http(self):
        self.assertEqual(self.server.send(b"GET " + SEARCH + b"rice HTTP/1.0\r\n\r\n").status, 200)
        for data in (b"GET " + SEARCH + b"rice\r\n\r\n", b"GET /\r\n", b"\r\n\r\n\r\n", b"HELO here\r\n\r\n",
                     b"GET / HTTP/9.9\r\n\r\n", b"\x16\x03\x01\x02\x00\x01\x00\x01\xfc" + b"\x00" * 200):
            self.assertNotEqual(self.server.send(data).status, 200, data)

    def test_requests_behind_each_other(self):
        one = b"GET " + SEARCH + b"rice cake HTTP/1.1\r\nHost: here\r\n\r\n"
        answer = self.server.send(one * 20 + b"GET /health" + END)
        self.assertEqual(answer.raw.count(b"HTTP/1.1 200 OK"), 21)

    def test_ten_megabytes(self):
        before = self.server.memory()
        line = b"GET " + SEARCH + b"a" * 10_000_000 + END
        heads = b"GET " + SEARCH + b"rice HTTP/1.1\r\n" + b"X: " + b"y" * 10_000_000 + b"\r\n\r\n"
        many = b"GET " + SEARCH + b"rice HTTP/1.1\r\n" + b"X-Y: zzzz\r\n" * 1_000_000 + b"\r\n"
        for data in (line, heads, many):
            # The answer may be lost where the server has closed while more came in.
            self.assertIn(self.server.send(data).status, (400, 413, 414, 431, None))
        if "sanitized" not in ARGUMENTS.program:
            self.assertLess(self.server.memory() - before, 20_000)

    def test_cut_at_each_byte(self):
        for data in (b"GET " + SEARCH + b"rice" + END, b"GET " + SUBMIT + submission("Cut off food") + END):
            for size in range(len(data)):
                with connect(self.server.port, "127.0.0.9") as connection:
                    connection.sendall(data[:size])
        self.assertEqual(self.server.search("rice cake").foods, ["Rice cake"])
        self.assertNotIn("Cut off food", self.unchecked())

    # Connections

    def test_a_byte_now_and_then_holds_no_connection(self):
        with connect(self.server.port) as connection:
            connection.settimeout(0.3)
            data = iter(b"GET " + SEARCH + b"a" * 5000)
            until = time.monotonic() + LIMIT
            try:
                while time.monotonic() < until:
                    connection.sendall(bytes([next(data)]))
                    try:
                        if not connection.recv(1):
                            return
                    except TimeoutError:
                        pass
            except (ConnectionResetError, BrokenPipeError):
                return
        self.fail("the connection was never ended")

    def test_a_thousand_idle_connections(self):
        idle = [connect(self.server.port) for _ in range(1000)]
        self.assertEqual(self.server.search("rice cake").foods, ["Rice cake"])
        wait_for("end of idle connections", lambda: self.server.metric("connections") < 500)
        for connection in idle:
            connection.close()

    def test_a_full_server_lets_idle_connections_go_sooner(self):
        with self.own_store("crowded", connections=16, request_seconds=3600) as server:
            idle = [connect(server.port) for _ in range(32)]
            self.assertEqual(server.search("rice cake").foods, ["Rice cake"])
            for connection in idle:
                connection.close()

    def test_too_much_at_once_is_answered_with_503(self):
        with self.own_store("shedding", workers=1, queue=1) as server:
            statuses = []

            def shed():
                connections = [connect(server.port) for _ in range(200)]
                for connection in connections:
                    connection.sendall(b"GET " + SEARCH + b"soup" + END)
                statuses.extend(Answer(read_all(connection)).status for connection in connections)
                for connection in connections:
                    connection.close()
                return 503 in statuses

            wait_for("503", shed)
            self.assertEqual(set(statuses), {200, 503})
            self.assertEqual(server.metric('requests_total{kind="search",status="503"}'), statuses.count(503))
            self.assertEqual(server.search("rice cake").foods, ["Rice cake"])

    # The store

    def test_two_servers_on_one_store(self):
        source = self.new_address()
        with self.another("second") as second:
            self.assertEqual(second.submit("Shared food", source).status, 200)
            line = next(line for line in self.server.review("list").splitlines() if "Shared food" in line)
            second.review("accept", line.split("\t")[0])
            for server in (self.server, second):
                self.assertEqual(server.search("shared").foods, ["Shared food"])
        (self.foods / "More.dat").write_bytes(database("Late rice"))
        wait_for("new food", lambda: self.server.search("late").foods == ["Late rice"])
        self.assertEqual(self.server.search("shared").foods, ["Shared food"])
        (self.foods / "More.dat").unlink()
        wait_for("food gone", lambda: self.server.search("late").foods == [])

    def test_what_cant_be_read_leaves_the_foods(self):
        foods = self.root / "changing"
        foods.mkdir()
        (foods / "A.tsv").write_text(table({"Rice": "rijst"}), encoding="utf-8")
        with self.own_store("reading", foods=[foods]) as server:
            (foods / "B.dat").write_bytes(database("Bread")[:-3])
            wait_for("complaint", lambda: server.said("stay as they were: .*B.dat is cut short"))
            (foods / "B.dat").unlink()
            (foods / "A.tsv").rename(self.root / "away.tsv")
            wait_for("complaint", lambda: server.said("stay as they were: no folder holds a food"))
            foods.rmdir()
            wait_for("complaint", lambda: server.said("stay as they were: .*changing"))
            self.assertEqual(server.search("rice").foods, ["Rice"])
            foods.mkdir()
            (foods / "A.tsv").write_text(table({"Rye": "rogge"}), encoding="utf-8")
            server.reload()
            wait_for("new foods", lambda: server.search("rye").foods == ["Rye"])
            self.assertEqual(server.search("rice").foods, [])

    def test_what_was_answered_ok_outlives_a_kill(self):
        with self.another("killed", submissions_per_hour=0) as server:
            taken, threads = [], []

            def submit(first):
                for number in range(first, 100_000, 4):
                    try:
                        if server.submit(f"Kept {number}").body.startswith(b"OK"):
                            taken.append(f"Kept {number}")
                    except OSError:
                        return

            threads = [threading.Thread(target=submit, args=(first,)) for first in range(4)]
            for thread in threads:
                thread.start()
            wait_for("submissions", lambda: len(taken) >= 30)
            server.end(signal.SIGKILL)
            for thread in threads:
                thread.join()
            server.start()
            self.assertEqual(set(taken) - self.unchecked(), set())
            self.assertEqual(server.search("rice cake").foods, ["Rice cake"])

    def test_a_full_disk(self):
        disk = self.root / "disk"
        disk.mkdir()
        mount = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=3m", "food-server-test", disk],
                               capture_output=True, text=True)
        if mount.returncode != 0:
            self.skipTest("a small disk can't be mounted here: " + mount.stderr.strip())
        self.addCleanup(subprocess.run, ["umount", disk], check=True)
        filling = disk / "filling"
        with FoodServer(ARGUMENTS.program, disk, f"sqlite:{disk}/foods.db", [self.foods],
                        submissions_per_hour=0) as server:
            with filling.open("wb", buffering=0) as file, self.assertRaises(OSError):
                while True:
                    file.write(b"x" * 4096)
            taken = []
            for number in range(2000):
                answer = server.submit(f"Kept {number}")
                if not answer.body.startswith(b"OK"):
                    break
                taken.append(f"Kept {number}")
            self.assertEqual(answer.status, 503)
            self.assertEqual(server.search("rice cake").foods, ["Rice cake"])
            filling.unlink()
            self.assertEqual(server.submit("Kept at last").status, 200)
            listed = {line.split("\t")[5] for line in server.review("list").splitlines()}
            self.assertEqual(listed, {*taken, "Kept at last"})

    # The program

    def test_wrong_configurations(self):
        for lines, problem in (("prot = 1\n", ":1: no key is named \"prot\""),
                               ("\nport = x\n", ":2: \"port\" needs a number from 0 to 65535")):
            path = self.root / "wrong.conf"
            path.write_text(lines)
            result = subprocess.run([ARGUMENTS.program, "--config", path], capture_output=True,
                                    text=True, timeout=LIMIT)
            self.assertEqual(result.returncode, 2)
            self.assertEqual(result.stderr, f"kelvora-food-server: {path}{problem}\n")
        taken = self.root / "taken.conf"
        taken.write_text(f"port = {self.server.port}\nstore = sqlite:{self.root}/taken.db\n")
        for arguments, status in ((["--config", taken], 1), (["--config", "/nowhere/x.conf"], 2),
                                  (["--nonsense"], 2), (["eat"], 2), (["--help"], 0), (["--version"], 0)):
            result = subprocess.run([ARGUMENTS.program, *arguments], capture_output=True, text=True,
                                    timeout=LIMIT)
            self.assertEqual(result.returncode, status, result)
            self.assertEqual(bool(result.stderr), status != 0)

    def test_health_and_metrics(self):
        self.assertRegex(self.server.get(b"/health").body.decode(), r"^ok\nfoods \d+\n$")
        before = self.server.metric('requests_total{kind="search",status="200"}')
        self.server.search("rice")
        self.assertEqual(self.server.metric('requests_total{kind="search",status="200"}'), before + 1)
        self.assertEqual(self.server.metric("store_up"), 1)

    def test_ends_cleanly(self):
        with self.own_store("ending") as server:
            with connect(server.port):
                self.assertEqual(server.end(), 0)
            self.assertTrue(server.said("ending"))


def main():
    global ARGUMENTS
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--store")
    ARGUMENTS, rest = parser.parse_known_args()
    _, most = resource.getrlimit(resource.RLIMIT_NOFILE)
    resource.setrlimit(resource.RLIMIT_NOFILE, (most, most))
    unittest.main(argv=[sys.argv[0], *rest])


if __name__ == "__main__":
    main()
