#!/usr/bin/env python3
"""A day without the internet, under a tracer: nothing that a person does there opens a way to the
network, while a search does.

Starts the program, makes a user and a day, eats, saves and ends under strace, which notes every call
that has to do with sockets. What the display and the desktop speak over lies on this machine; an
address of the internet must not be among the calls. Then the same trace of one search on a server of
the loopback, so that a trace which sees nothing is found out. The argument is the built program.
"""
import re
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))

from desktop import Desktop
from food_server import Server
from internet import INTERNET_LIST, TERM
from one_day import MORNING, end, make_user_and_day, open_first_day, row
from with_servers import ProgramWithServers

INTERNET = re.compile(r"\b(AF_INET6?|PF_INET6?|AF_PACKET)\b")


def traced(copy):
    """A script that runs the program under the tracer, and the trace."""
    trace, script = copy.folder / "trace", copy.folder / "traced"
    script.write_text(f'#!/bin/sh\nexec strace -f -e trace=network -o "{trace}" "{copy.program}"\n',
                      encoding="ascii")
    script.chmod(0o755)
    return script, trace


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop, Server() as server, tempfile.TemporaryDirectory() as folder:
        copy = ProgramWithServers(program, folder)
        # Known servers, so that only asking is what is missing.
        copy.know(dutch=server.address("hits"), english=server.address("hits"))
        # A sanitized program can't look for leaks while somebody traces it.
        leaks = desktop.environment.get("ASAN_OPTIONS", "")
        desktop.environment["ASAN_OPTIONS"] = ":".join(filter(None, [leaks, "detect_leaks=0"]))
        script, trace = traced(copy)
        process = desktop.start(script, first_run=True)
        make_user_and_day(desktop)
        desktop.click(row(1))
        desktop.drag(row(1), MORNING)
        desktop.keys("ctrl+s")
        end(desktop, process)
        calls = trace.read_text(encoding="utf-8", errors="replace").splitlines()
        assert any("AF_UNIX" in call for call in calls), "the tracer does not see the display"
        found = [call for call in calls if INTERNET.search(call)]
        assert not found, f"calls to the internet: {found}"
        assert not server.requests, server.requests

        process = desktop.start(script)
        open_first_day(desktop)
        desktop.click(INTERNET_LIST)
        desktop.click(TERM)
        desktop.type("x")
        desktop.keys("Return")
        desktop.wait_for("the request", lambda: server.requests)
        end(desktop, process)
        calls = trace.read_text(encoding="utf-8", errors="replace").splitlines()
        assert any(INTERNET.search(call) for call in calls), "the tracer does not see a search"
    print(f"no network unless it is asked for: {len(calls)} calls seen; as it must be")


if __name__ == "__main__":
    main()
