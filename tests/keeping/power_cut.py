#!/usr/bin/env python3
"""No power cut loses a day, or an edit that was kept before it.

The argument is power_cut_editor. It edits and saves a day on a file system in an image behind a loop
device; the image lies in a file system of this test's own, which logs every write and every flush
that reaches it, in their order. A cut disk is then made anew: what was written up to some moment, or
what was flushed by then and an arbitrary part of what was written since. Each is mounted, as after a
start of the machine, and the editor starts anew on it: it must find the day whole, with the last edit
that had been kept by then. A disk that only says that it flushed must be seen to lose edits.

Needs to be root, with loop devices and file systems in user space; skipped otherwise.
"""
import os
import random
import stat
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

SKIPPED = 77
IMAGE_BYTES = 8 << 20
EDITS = 24
CUTS = 160
SEED = 20041105


def skip(why):
    print("skipped:", why)
    sys.exit(SKIPPED)


def run(*command):
    return subprocess.run([str(part) for part in command], check=True, capture_output=True, text=True)


class Disk:
    """The bytes of the image, and the log: (offset, bytes) of each write, None for each flush."""

    def __init__(self, start):
        self.start = bytes(start)
        self.now = bytearray(start)
        self.log = []

    def write(self, data, offset):
        self.now[offset:offset + len(data)] = data
        self.log.append((offset, bytes(data)))

    def flush(self):
        self.log.append(None)

    def replayed(self, kept):
        """The image with those writes alone, given by their places in the log."""
        image = bytearray(self.start)
        for place in kept:
            if self.log[place] is not None:
                offset, data = self.log[place]
                image[offset:offset + len(data)] = data
        return image


def operations_on(disk, fusepy):
    class OneFile(fusepy.Operations):
        def getattr(self, path, fh=None):
            if path == "/":
                return {"st_mode": stat.S_IFDIR | 0o700, "st_nlink": 2}
            if path == "/image":
                return {"st_mode": stat.S_IFREG | 0o600, "st_nlink": 1, "st_size": IMAGE_BYTES}
            raise fusepy.FuseOSError(2)

        def readdir(self, path, fh):
            return [".", "..", "image"]

        def read(self, path, size, offset, fh):
            return bytes(disk.now[offset:offset + size])

        def write(self, path, data, offset, fh):
            disk.write(data, offset)
            return len(data)

        def fsync(self, path, datasync, fh):
            disk.flush()
            return 0

    return OneFile()


def new_image(folder):
    path = folder / "new"
    with open(path, "wb") as file:
        file.truncate(IMAGE_BYTES)
    run("mkfs.ext4", "-q", "-b", "1024", "-E", "lazy_itable_init=0,lazy_journal_init=0", path)
    mounted = folder / "made"
    mounted.mkdir()
    run("mount", "-o", "loop", path, mounted)
    for name in ("users", "state"):
        (mounted / name).mkdir()
    run("umount", mounted)
    return path.read_bytes()


def edited(editor, folder, disk):
    """Lets the editor work on the logged disk; where in the log each edit was kept."""
    mounted = folder / "disk"
    mounted.mkdir()
    run("mount", "-o", "loop,commit=1", folder / "fuse" / "image", mounted)
    try:
        process = subprocess.Popen([editor, "edit", mounted, str(EDITS)], stdin=subprocess.PIPE,
                                   stdout=subprocess.PIPE, text=True)
        kept = {}
        for line in process.stdout:
            kept[int(line)] = len(disk.log)
            process.stdin.write("\n")
            process.stdin.flush()
        assert process.wait() == 0, "the editor failed"
        return kept
    finally:
        run("umount", mounted)


def last_edit_on(editor, image, folder):
    """What a new start finds on a disk of these bytes."""
    path, mounted = folder / "cut", folder / "disk"  # a copy knows the path of its day
    path.write_bytes(image)
    run("mount", "-o", "loop", path, mounted)
    try:
        return int(run(editor, "find", mounted).stdout)
    finally:
        run("umount", mounted)


def cut_at(disk, moment, rng):
    """The writes that are on the disk if the power goes at this place of the log."""
    flushed = max((i for i in range(moment) if disk.log[i] is None), default=0)
    if rng.random() < 0.5:
        return range(moment)
    since = [i for i in range(flushed, moment) if rng.random() < 0.5]
    rng.shuffle(since)
    return list(range(flushed)) + since


def check(editor, folder, disk, kept):
    first, end = kept[1], kept[EDITS]
    rng = random.Random(SEED)
    moments = sorted(rng.randrange(first, end + 1) for _ in range(CUTS))
    partial = without_file = 0
    for moment in moments:
        writes = cut_at(disk, moment, rng)
        partial += not isinstance(writes, range)
        least = max(number for number, place in kept.items() if place <= moment)
        found = last_edit_on(editor, disk.replayed(writes), folder)
        assert found >= least, f"cut at {moment} of {end}: edit {found}, kept was {least}"
    print(f"{CUTS} power cuts over {EDITS} edits, {end - first} writes and flushes; "
          f"{partial} with a part of the unflushed writes: nothing lost")
    return first, end


def check_that_it_can_fail(editor, folder, disk, kept):
    """A disk that said of the last two flushes before an edit was kept that they were done loses it."""
    lost = 0
    for number in range(5, 9):
        flushes = [i for i in range(kept[number]) if disk.log[i] is None]
        lost += last_edit_on(editor, disk.replayed(range(flushes[-3])), folder) < number
    assert lost > 0, "the flushes before an edit is kept are of no use"


def fuse_module():
    """Debian's module belongs to Debian's Python: goes on under that one, if another was started."""
    try:
        import fusepy
        return fusepy
    except ImportError:
        debians = "/usr/bin/python3"
        if sys.executable == debians:
            raise
        os.execv(debians, [debians, *sys.argv])


def main():
    editor = Path(sys.argv[1]).resolve()
    if os.geteuid() != 0:
        skip("not root")
    if not (os.access("/dev/fuse", os.W_OK) and os.access("/dev/loop-control", os.W_OK)):
        skip("no loop devices, or no file systems in user space")
    fusepy = fuse_module()

    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        disk = Disk(new_image(folder))
        (folder / "fuse").mkdir()
        server = threading.Thread(target=lambda: fusepy.FUSE(
            operations_on(disk, fusepy), str(folder / "fuse"), foreground=True, nothreads=True),
            daemon=True)
        server.start()
        while not os.path.ismount(folder / "fuse"):
            assert server.is_alive(), "no file system in user space"
            time.sleep(0.01)
        try:
            kept = edited(editor, folder, disk)
        finally:
            run("umount", folder / "fuse")
        check(editor, folder, disk, kept)
        check_that_it_can_fail(editor, folder, disk, kept)


if __name__ == "__main__":
    main()
