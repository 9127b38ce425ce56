"""The food server as a process, and requests as raw bytes."""
import os
import re
import signal
import socket
import subprocess
import threading
import time
from pathlib import Path

LIMIT = 60  # seconds that anything may take on a busy machine
END = b" HTTP/1.1\r\nHost: here\r\nConnection: close\r\n\r\n"
SEARCH = b"/modules/kvzoek.php?item="
SUBMIT = b"/modules/swadd.php?"


def wait_for(what, holds, limit=LIMIT):
    until = time.monotonic() + limit
    while True:
        result = holds()
        if result:
            return result
        assert time.monotonic() < until, f"no {what} within {limit} s"
        time.sleep(0.05)


def connect(port, source="127.0.0.1"):
    return socket.create_connection(("127.0.0.1", port), timeout=LIMIT, source_address=(source, 0))


def read_all(connection):
    """What comes until the server ends the connection."""
    pieces = []
    try:
        while piece := connection.recv(1 << 16):
            pieces.append(piece)
    except ConnectionResetError:
        pass
    return b"".join(pieces)


class Answer:
    def __init__(self, reply):
        self.raw = reply
        head, _, self.body = reply.partition(b"\r\n\r\n")
        lines = head.decode("latin-1").split("\r\n")
        self.status = int(lines[0].split()[1]) if reply else None
        self.headers = {key.lower(): value for key, _, value in
                        (line.partition(": ") for line in lines[1:])}

    @property
    def foods(self):
        """The names of the foods of a reply to a search."""
        return [line.split(b"\xbd")[0].decode("cp1252") for line in self.body.split(b"\xbc")[:-1]]


def submission(name, **changed):
    values = {"naam": name, "kj": "1000", "kcal": "238", "vvet": "1.50", "ovet": "2.25",
              "kdr": "30.00", "ew": "10.00", "nat": "0.100", "opmerking": "Kelvora FOOD",
              "gepost": "piet"} | changed
    return "&".join(f"{key}={value}" for key, value in values.items()).encode("cp1252")


class FoodServer:
    """Started on a port of the system's choice; `foods` are folders."""

    def __init__(self, program, folder, store, foods, ready=True, **settings):
        self.program = program
        self.configuration = Path(folder) / "server.conf"
        lines = [f"{key} = {value}" for key, value in ({"port": 0, "store": store} | settings).items()]
        lines += [f"foods = {one}" for one in foods]
        self.configuration.write_text("\n".join(lines) + "\n")
        self.start(ready)

    def start(self, ready=True):
        self.log = []
        self.process = subprocess.Popen([self.program, "--config", self.configuration],
                                        stderr=subprocess.PIPE, text=True, errors="replace")
        self.reader = threading.Thread(target=self.read_log, args=(self.process.stderr,))
        self.reader.start()
        self.port = int(wait_for("port", lambda: self.said(r"port (\d+)$")).group(1))
        if ready:
            wait_for("health", lambda: self.get(b"/health").status == 200)

    def read_log(self, stream):
        for line in stream:
            self.log.append(line.rstrip("\n"))

    def said(self, pattern):
        """The first line of the log with the pattern."""
        if self.process.poll() is not None and not self.log:
            raise AssertionError("the server ended without a word")
        return next((found for line in self.log if (found := re.search(pattern, line))), None)

    def send(self, data, source="127.0.0.1"):
        with connect(self.port, source) as connection:
            try:
                connection.sendall(data)
            except (ConnectionResetError, BrokenPipeError):
                pass
            return Answer(read_all(connection))

    def get(self, target, source="127.0.0.1"):
        return self.send(b"GET " + target + END, source)

    def search(self, term):
        return self.get(SEARCH + (term.encode("cp1252") if isinstance(term, str) else term))

    def submit(self, name, source="127.0.0.1", **changed):
        return self.get(SUBMIT + submission(name, **changed), source)

    def review(self, *arguments, status=0):
        result = subprocess.run([self.program, "--config", self.configuration, "review", *arguments],
                                capture_output=True, text=True, timeout=LIMIT)
        assert result.returncode == status, result
        return result.stdout

    def metric(self, name):
        text = self.get(b"/metrics").body.decode()
        return float(re.search(rf"^kelvora_food_server_{re.escape(name)} (\S+)$", text,
                               re.MULTILINE).group(1))

    def memory(self):
        """Kilobytes that the process has of the machine's memory."""
        status = Path(f"/proc/{self.process.pid}/status").read_text()
        return int(re.search(r"VmRSS:\s+(\d+)", status).group(1))

    def end(self, how=signal.SIGTERM):
        if self.process.poll() is None:
            self.process.send_signal(how)
        status = self.process.wait(LIMIT)
        self.reader.join()
        self.process.stderr.close()
        return status

    def reload(self):
        self.process.send_signal(signal.SIGHUP)

    def __enter__(self):
        return self

    def __exit__(self, failure, *_):
        status = self.end()
        assert failure or status == 0, f"the server ended with {status}: {self.log[-5:]}"
