#!/usr/bin/env python3
"""A PostgreSQL of its own for one test: a cluster in a temporary folder, on a socket in that folder.

    postgres.py

makes and starts one, prints the store line that reaches it, and obeys lines on its standard input:
"stop" and "start" the server, "freeze" it so that it takes connections and answers nothing, "thaw"
it, "fresh" for a store line of a new, empty database. Each is answered by one line when it is done.
The end of the input ends all of it.

    postgres.py COMMAND...

runs a command with "--store" and a store line behind it, and ends with its status.

PostgreSQL refuses to run as root; then it runs as the user of Debian's package, or as nobody.
"""
import os
import pwd
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

USERS = ("postgres", "nobody")
# Nothing here outlives a test, so nothing waits for the disk.
SETTINGS = {"fsync": "off", "synchronous_commit": "off", "full_page_writes": "off",
            "listen_addresses": "", "max_connections": "60", "logging_collector": "off",
            "shared_buffers": "32MB"}
LIMIT = 120


def programs():
    """The folder of the newest server that is installed."""
    found = sorted(Path("/usr/lib/postgresql").glob("*/bin/postgres"),
                   key=lambda path: int(path.parts[-3]))
    if not found:
        raise FileNotFoundError("no PostgreSQL below /usr/lib/postgresql")
    return found[-1].parent


def other_user():
    """The user to run as, where we are root."""
    if os.geteuid() != 0:
        return None
    names = {entry.pw_name for entry in pwd.getpwall()}
    return pwd.getpwnam(next(name for name in USERS if name in names))


class Postgres:
    def __init__(self, settings=None):
        self.settings = SETTINGS | (settings or {})
        self.programs = programs()
        self.user = other_user()
        self.databases = 0
        self.server = None
        self.folder = tempfile.TemporaryDirectory(prefix="kelvora-pg-", dir="/tmp")
        self.root = Path(self.folder.name)
        self.data = self.root / "data"
        self.log = self.root / "log"
        if self.user:
            os.chown(self.root, self.user.pw_uid, self.user.pw_gid)
        subprocess.run(self.as_user([self.programs / "initdb", "-D", self.data, "-U", "kelvora", "-A", "trust",
                                     "-E", "UTF8", "--locale", "C", "--no-sync", "--no-instructions"]),
                       check=True, stdout=subprocess.DEVNULL, cwd="/")

    def as_user(self, command):
        command = [str(part) for part in command]
        if not self.user:
            return command
        # The server ends with whoever started it, however that ends.
        return ["setpriv", f"--reuid={self.user.pw_uid}", f"--regid={self.user.pw_gid}",
                "--clear-groups", "--pdeathsig=INT", *command]

    def start(self):
        assert self.server is None
        options = [part for name, value in self.settings.items() for part in ("-c", f"{name}={value}")]
        with open(self.log, "ab") as log:
            self.server = subprocess.Popen(
                self.as_user([self.programs / "postgres", "-D", self.data, "-k", self.root, *options]),
                stdin=subprocess.DEVNULL, stdout=log, stderr=log, cwd="/", start_new_session=True)
        end = time.monotonic() + LIMIT
        while subprocess.run([self.programs / "pg_isready", "-q", "-h", self.root], check=False).returncode:
            if self.server.poll() is not None or time.monotonic() > end:
                raise RuntimeError(self.log.read_text(errors="replace")[-2000:])
            time.sleep(0.05)

    def stop(self):
        """Ends it at once, and every connection with it."""
        if self.server is None:
            return
        self.thaw()
        self.server.send_signal(signal.SIGINT)
        try:
            self.server.wait(timeout=LIMIT)
        finally:
            self.server = None

    def processes(self):
        """The server and those it has started, one for each connection among them."""
        path = Path(f"/proc/{self.server.pid}/task/{self.server.pid}/children")
        return [self.server.pid, *map(int, path.read_text().split())]

    def signal_all(self, number):
        for process in self.processes():
            try:
                os.kill(process, number)
            except ProcessLookupError:
                pass

    def freeze(self):
        """From now on it answers nothing; whoever connects waits."""
        self.signal_all(signal.SIGSTOP)

    def thaw(self):
        self.signal_all(signal.SIGCONT)

    def sql(self, text, database="postgres"):
        """What psql prints, without its frame."""
        return subprocess.run([self.programs / "psql", "-X", "-q", "-A", "-t", "-v", "ON_ERROR_STOP=1",
                               "-h", str(self.root), "-U", "kelvora", "-d", database, "-c", text],
                              check=True, capture_output=True, text=True).stdout.strip()

    def fresh(self):
        """The store line of a new, empty database."""
        self.databases += 1
        name = f"foods_{self.databases}"
        self.sql(f"CREATE DATABASE {name} TEMPLATE template0")
        return f"postgresql:///{name}?host={self.root}&user=kelvora"

    def __enter__(self):
        try:
            self.start()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        try:
            self.stop()
        finally:
            shutil.rmtree(self.root, ignore_errors=True)
            self.folder.cleanup()


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    with Postgres() as postgres:
        if len(sys.argv) > 1:
            command = [*sys.argv[1:], "--store", postgres.fresh()]
            sys.exit(subprocess.run(command, check=False).returncode)
        print(postgres.fresh(), flush=True)
        for line in sys.stdin:
            word = line.strip()
            if word == "fresh":
                print(postgres.fresh(), flush=True)
            elif word in ("start", "stop", "freeze", "thaw"):
                getattr(postgres, word)()
                print(word, flush=True)
            else:
                sys.exit(f"unknown word: {word}")


if __name__ == "__main__":
    main()
