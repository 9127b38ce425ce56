#!/usr/bin/env python3
"""Work that was not saved outlives the program, whatever ends it.

Makes a user and a day under a tracer of system calls, eats and writes into the diary, and kills the
program without a warning; the next start offers what was not saved and opens the day with it. Then
the program is asked to end by SIGTERM, and ends with 0; the offer is kept for later. The trace must show each copy synced before it gets its name, and the copy
there before a save deletes the day. The argument is the built program.
"""
import os
import re
import signal
import sys
import time
from pathlib import Path

from day_file_reader import FIELD_END, LINE_END, pieces, read_day_file
from desktop import Desktop
from one_day import MORNING, end, make_user_and_day, row

DIARY_BUTTON = (389, 65)
CALLS = "openat,rename,renameat,renameat2,unlink,unlinkat,fsync,fdatasync"


def traced(program, folder):
    """A script that runs the program under the tracer, and the trace."""
    trace, script = folder / "trace", folder / "traced"
    script.write_text(f'#!/bin/sh\nexec strace -f -y -e trace={CALLS} -o "{trace}" "{program}"\n',
                      encoding="ascii")
    script.chmod(0o755)
    return script, trace


def child_of(process):
    """The program that the tracer runs."""
    (child,) = Path(f"/proc/{process.pid}/task/{process.pid}/children").read_text().split()
    return int(child)


def copies(desktop):
    folder = Path(desktop.home.name, ".local", "state", "kelvora-food")
    return sorted(folder.glob("*.copy")) if folder.is_dir() else []


def wait_for_copy(desktop, words):
    """Until the one copy holds these bytes; how long that took since now."""
    began = time.monotonic()
    desktop.wait_for(f"a copy with {words}", lambda: [
        copy for copy in copies(desktop) if words in copy.read_bytes()])
    return time.monotonic() - began


def foods_of(day):
    return [pieces(line, FIELD_END)[0].decode("cp1252")
            for line in pieces(read_day_file(day)[3], LINE_END)]


def steps_of(trace):
    """What the traced program did to copies and days, one letter a call: (w)rite a copy beside,
    (s)ync, (r)ename, (u)nlink a copy; (D)elete a day, (W)rite a day, (S)ync a day."""
    letters = ""
    for line in trace.read_text(encoding="utf-8", errors="replace").splitlines():
        if "= -1" in line:
            continue
        copy, day = "kelvora-food/" in line, ".kvf" in line
        if re.search(r"openat\(.*O_CREAT", line):
            letters += "w" if copy else "W" if day else ""
        elif re.search(r"f(data)?sync\(", line):
            letters += "S" if day else "s" if copy and ".new" in line else ""
        elif re.search(r"rename", line):
            letters += "r" if copy else ""
        elif re.search(r"unlink", line):
            letters += "u" if copy else "D" if day else ""
    return letters


def answer_offer(desktop, *keys):
    desktop.window("^Kelvora FOOD$")
    desktop.settle()
    desktop.keys(*keys)


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        home = Path(desktop.home.name)
        files = home / "Documents" / "Kelvora FOOD" / "My Users" / "Anna" / "Files"
        # A sanitized program can't look for leaks while somebody traces it.
        leaks = desktop.environment.get("ASAN_OPTIONS", "")
        desktop.environment["ASAN_OPTIONS"] = ":".join(filter(None, [leaks, "detect_leaks=0"]))
        script, trace = traced(program, home)

        process = desktop.start(script, first_run=True)
        make_user_and_day(desktop)
        wait_for_copy(desktop, b"Anna")  # a new day lies nowhere else
        (copy,) = copies(desktop)
        assert copy.stat().st_mode & 0o777 == 0o600, oct(copy.stat().st_mode)
        assert copy.parent.stat().st_mode & 0o777 == 0o700, oct(copy.parent.stat().st_mode)
        desktop.keys("ctrl+s")
        assert not copies(desktop), "a saved day has a copy"
        desktop.click(row(0))
        desktop.drag(row(0), MORNING)
        desktop.keys("ctrl+s")
        (day,) = files.glob("*.kvf")
        saved = foods_of(day)
        assert len(saved) == 1, saved
        assert not copies(desktop), "a saved day has a copy"
        desktop.click(row(1))
        desktop.drag(row(1), MORNING)
        desktop.click(DIARY_BUTTON)
        desktop.type("Slept well, walked 5 km")
        late = wait_for_copy(desktop, b"Slept well, walked 5 km")
        os.kill(child_of(process), signal.SIGKILL)
        process.wait(timeout=20)
        steps = steps_of(trace)
        assert re.fullmatch(r"(wsr)+WSu(wsr)+DWSu(wsr)+", steps), steps
        assert foods_of(day) == saved, "a copy is no save"

        process = desktop.start(program)
        answer_offer(desktop, "Tab", "space")  # open the day with it
        desktop.keys("ctrl+s")
        desktop.keys("Tab", "space")  # take the diary over first
        foods, notes = foods_of(day), read_day_file(day)[1]
        assert len(foods) == 2 and foods[0] == saved[0], foods
        assert notes == b"Slept well, walked 5 km", notes
        assert not copies(desktop), "a saved day has a copy"

        desktop.click(row(2))
        desktop.drag(row(2), MORNING)
        process.send_signal(signal.SIGTERM)
        assert process.wait(timeout=20) == 0, f"SIGTERM ended it with {process.returncode}"
        assert foods_of(day) == foods
        (copy,) = copies(desktop)

        process = desktop.start(program)
        answer_offer(desktop, "Escape")
        assert copies(desktop) == [copy], "what is kept for later is gone"
        end(desktop, process)

        assert foods_of(day) == foods
    print(f"unsaved work outlives the program; the last words were kept {late:.1f} s after the last "
          f"look; calls {steps}; as it must be")


if __name__ == "__main__":
    main()
