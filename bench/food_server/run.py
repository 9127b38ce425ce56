#!/usr/bin/env python3
"""How many searches a second the food server answers, and how long the slowest hundredth takes.

    bench/food_server/run.py <server> [--stores sqlite,postgres] [--foods 8789,1000000]
                             [--seconds 10] [--rate 300] [--steps]

Starts the server on each store with each table of foods (see foods.py) and drives it with wrk over the
loopback, two threads and 64 connections: as fast as it answers, and at a rate; with --steps with 1 to
512 connections as well. Nothing is kept between two searches. Prints tables in Markdown. wrk and the
server, and PostgreSQL where it is asked, share the machine. Everything lies in a temporary folder and
is gone with it.
"""
import argparse
import re
import socket
import subprocess
import sys
import tempfile
import time
import urllib.request
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))
sys.path.insert(0, str(HERE.parents[1] / "tests/food_server"))
import foods  # noqa: E402
from postgres import Postgres  # noqa: E402

TERMS = 20000
STEPS = (1, 2, 4, 8, 16, 32, 64, 128, 256, 512)
READING_LIMIT = 1800
# As a database server of its own would be set; what it keeps stays on the disk here too.
DATABASE = {"shared_buffers": "512MB", "fsync": "on", "synchronous_commit": "on",
            "full_page_writes": "on", "max_wal_size": "4GB"}


def memory_of(processes):
    """What these processes hold together in MB; pages that they share count once."""
    total = 0
    for process in processes:
        try:
            rollup = Path(f"/proc/{process}/smaps_rollup").read_text()
        except (FileNotFoundError, ProcessLookupError):
            continue
        total += int(re.search(r"^Pss:\s+(\d+)", rollup, re.M).group(1))
    return total / 1024


def free_port():
    with socket.socket() as one:
        one.bind(("127.0.0.1", 0))
        return one.getsockname()[1]


class Server:
    """The server on one store, with all its foods read."""

    def __init__(self, program, folder, table, store):
        self.port = free_port()
        configuration = folder / "server.conf"
        configuration.write_text(f"port = {self.port}\nstore = {store}\nfoods = {table.parent}\n"
                                 "log = error\n")
        began = time.monotonic()
        self.process = subprocess.Popen([program, "--config", configuration])
        try:
            self.wait_for_foods(began + READING_LIMIT)
        except BaseException:
            self.end()
            raise
        self.reading = time.monotonic() - began

    def wait_for_foods(self, until):
        while time.monotonic() < until and self.process.poll() is None:
            try:
                if self.metric("kelvora_food_server_foods") > 0:
                    return
            except OSError:
                pass
            time.sleep(0.2)
        raise RuntimeError("the server has read no foods")

    def metric(self, name):
        with urllib.request.urlopen(f"http://127.0.0.1:{self.port}/metrics", timeout=10) as answer:
            found = re.search(rf"^{name} (\d+)", answer.read().decode(), re.M)
        return int(found.group(1)) if found else 0

    def drive(self, terms, connections, seconds, rate=None):
        rest = [str(round(connections * 1000 / rate))] if rate else []
        output = subprocess.run(
            ["wrk", "-t", str(min(2, connections)), "-c", str(connections), "-d", f"{seconds}s",
             "--timeout", "10s", "-s", HERE / "search.lua", f"http://127.0.0.1:{self.port}", "--", terms,
             *rest],
            check=True, capture_output=True, text=True, timeout=seconds + 60).stdout
        line = re.search(r"^figures (.*)$", output, re.M).group(1)
        figures = {name: int(value) for name, value in (part.split("=") for part in line.split())}
        figures["rate"] = (figures["requests"] - figures["refused"]) * 1e6 / figures["microseconds"]
        return figures

    def end(self):
        self.process.terminate()
        try:
            self.process.wait(timeout=60)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()


def row(*cells):
    print("| " + " | ".join(str(cell) for cell in cells) + " |", flush=True)


def figures_row(first, figures, *more):
    row(*first, f"{figures['rate']:,.0f}", f"{figures['p50'] / 1000:.1f} ms",
        f"{figures['p99'] / 1000:.1f} ms", f"{figures['most'] / 1000:.0f} ms",
        figures["refused"], figures["broken"] + figures["late"], *more)


def measure(options, store, count, table, terms, folder):
    """One store with one table; the rows of its steps."""
    postgres = Postgres(DATABASE) if store == "postgres" else None
    server = None
    try:
        if postgres:
            postgres.start()
            name = postgres.fresh()
        else:
            name = f"sqlite:{folder}/foods.db"
        server = Server(options.server, folder, table, name)
        if postgres:
            postgres.sql("VACUUM ANALYZE", "foods_1")
        server.drive(terms, 16, 2)
        figures = server.drive(terms, 64, options.seconds)
        at_rate = server.drive(terms, 64, options.seconds, options.rate)
        processes = [server.process.pid] + (postgres.processes() if postgres else [])
        figures_row([store, f"{count:,}"], figures, f"{memory_of(processes[:1]):.0f} MB",
                    f"{memory_of(processes[1:]):.0f} MB" if postgres else "", f"{server.reading:.0f} s")
        figures_row([store, f"{count:,}"], at_rate, "", "", "")
        if not options.steps:
            return []
        return [(store, f"{count:,}", step, server.drive(terms, step, max(3, options.seconds // 2)))
                for step in STEPS]
    finally:
        if server:
            server.end()
        if postgres:
            postgres.__exit__()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("server", type=Path)
    parser.add_argument("--stores", default="sqlite,postgres")
    parser.add_argument("--foods", default=f"{foods.PUBLISHED_COUNT},1000000")
    parser.add_argument("--seconds", type=int, default=10)
    parser.add_argument("--rate", type=int, default=300)
    parser.add_argument("--steps", action="store_true")
    options = parser.parse_args()
    options.server = options.server.resolve()
    base, source = foods.base_rows()
    base_names = [cells[0] for cells in base]
    print(f"{len(base):,} foods {source}; larger tables are made up of their words\n")
    row("store", "foods", "searches/s", "p50", "p99", "longest", "503", "broken or late", "memory",
        "of the database", "until the foods are read")
    row(*["---"] * 2, *["---:"] * 9)
    steps = []
    for count in map(int, options.foods.split(",")):
        with tempfile.TemporaryDirectory(prefix="kelvora-load-") as temporary:
            folder = Path(temporary)
            (folder / "foods").mkdir()
            table = folder / "foods" / "Foods.tsv"
            rows = base if count == len(base) else foods.made_up_rows(count, base_names)
            names = foods.write(rows, table)
            terms = folder / "terms"
            terms.write_text("\n".join(foods.terms(names, TERMS)) + "\n", encoding="utf-8")
            del names, rows
            for store in options.stores.split(","):
                (folder / store).mkdir()
                steps += measure(options, store, count, table, terms, folder / store)
    if steps:
        print()
        row("store", "foods", "connections", "searches/s", "p50", "p99", "longest", "503", "broken or late")
        row(*["---"] * 2, *["---:"] * 7)
        for store, count, step, figures in steps:
            figures_row([store, count, step], figures)


if __name__ == "__main__":
    main()
