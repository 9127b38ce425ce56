"""A desktop of its own for one end-to-end test: a virtual display, a window manager, the program.

Real windows, real mouse and keyboard; nothing here knows the program's code. Everything that is
started is ended again by its process id. On a failure the last picture of the screen is kept.
"""
import os
import struct
import subprocess
import tempfile
import time
from pathlib import Path

WIDTH, HEIGHT = 1024, 768
SETTINGS_TITLE = "^Kelvora FOOD settings$"

SPLASH = r"^Kelvora FOOD [0-9]+\.[0-9]+$"
WIZARD = "^(Kelvora FOOD wizard|Wizard van Kelvora FOOD)$"


class Desktop:
    """The display with its window manager; use it as a context manager."""

    def __init__(self, size=(WIDTH, HEIGHT)):
        self.size = size
        self.processes = []
        self.home = tempfile.TemporaryDirectory(prefix="kelvora-e2e-")
        self.environment = None

    def __enter__(self):
        # On a busy machine a display may not come up; another one does.
        for attempt in range(3):
            try:
                self.start_display()
                return self
            except AssertionError:
                self.end_processes()
                if attempt == 2:
                    self.home.cleanup()
                    raise

    def start_display(self):
        reading, writing = os.pipe()
        self.processes.append(subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{self.size[0]}x{self.size[1]}x24",
             "-fbdir", self.home.name, "-nocursor"],
            pass_fds=[writing], stderr=subprocess.DEVNULL))
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        assert number, "the virtual display ended at once"
        display = ":" + number
        runtime = Path(self.home.name, "run")
        runtime.mkdir(mode=0o700, exist_ok=True)
        self.environment = {
            "PATH": os.environ["PATH"], "HOME": self.home.name, "DISPLAY": display,
            "XDG_RUNTIME_DIR": str(runtime), "LANG": "C.UTF-8", "QT_SCALE_FACTOR": "1",
        }
        # The sanitizers of an instrumented build keep their own settings.
        for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"):
            if name in os.environ:
                self.environment[name] = os.environ[name]
        self.processes.append(subprocess.Popen(
            ["openbox"], env=self.environment, stderr=subprocess.DEVNULL))
        self.wait_for("a window manager", lambda: "_NET_SUPPORTING_WM_CHECK(WINDOW)" in
                      self.output("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), seconds=15)

    def __exit__(self, failure, *_):
        if failure:
            picture = Path(tempfile.gettempdir(), f"kelvora-e2e-failure-{os.getpid()}.png")
            self.output("import", "-window", "root", str(picture))
            print("the screen at the failure:", picture)
        self.end_processes()
        self.home.cleanup()

    def end_processes(self):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(timeout=10)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
        self.processes.clear()

    def launch(self, program, locale="C.UTF-8", scale=1):
        """Starts the program under a locale and waits for nothing."""
        process = subprocess.Popen([program], env=self.environment | {
            "LANG": locale, "QT_SCALE_FACTOR": str(scale)})
        self.processes.append(process)
        return process

    def start(self, program, locale="C.UTF-8", first_run=False, wizard=True):
        """Starts the program under a locale, waits for its main window and the end of the splash,
        answers the first run (the box, then the settings, which Return saves as they stand) and
        closes the wizard where one comes up."""
        process = self.launch(program, locale)
        self.window("^Kelvora FOOD$")
        # The splash plays until its own end, whatever else is up.
        self.no_window(SPLASH)
        self.settle()
        if first_run:
            self.keys("Return")
            self.window(SETTINGS_TITLE)
            self.keys("Return")
            self.no_window(SETTINGS_TITLE)
            self.settle()
        if wizard:
            self.window(WIZARD)
            self.settle()
            self.keys("Escape")
            self.no_window(WIZARD)
        return process

    def layout(self, layout):
        """Gives the keyboard another layout. A letter that no key has is typed by giving it to a spare
        key for a moment: a program that is busy for longer than that reads another letter."""
        subprocess.run(["setxkbmap", "-layout", layout], env=self.environment, check=True)

    def shows(self, title):
        """Whether a visible window has that title now."""
        return bool(self.output("xdotool", "search", "--onlyvisible", "--name", title))

    def output(self, *command):
        try:
            return subprocess.run(command, env=self.environment, check=False, text=True, timeout=30,
                                  stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
        except subprocess.TimeoutExpired:
            return ""

    def wait_for(self, what, condition, seconds=30):
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            if condition():
                return
            time.sleep(0.05)
        raise AssertionError(f"waited in vain for {what}")

    def window(self, title):
        """Waits until a visible window has that title (a regular expression)."""
        self.wait_for(f"the window {title}",
                      lambda: self.output("xdotool", "search", "--onlyvisible", "--name", title))

    def no_window(self, title):
        self.wait_for(f"the end of the window {title}", lambda: not
                      self.output("xdotool", "search", "--onlyvisible", "--name", title))

    def screen(self):
        """What the display holds now, as it keeps it: a header, then four bytes a pixel. No pointer
        is drawn into it."""
        return Path(self.home.name, "Xvfb_screen0").read_bytes()

    def picture(self):
        """The whole screen as raw RGB bytes."""
        screen = self.screen()
        header = struct.unpack_from(">25I", screen)
        length, height, line, colours = header[0], header[5], header[12], header[19]
        assert line == self.size[0] * 4, "a line of the screen ends in something else"
        pixels = screen[length + colours * 12:][:line * height]
        picture = bytearray(len(pixels) // 4 * 3)
        for colour in range(3):
            picture[colour::3] = pixels[2 - colour::4]
        return bytes(picture)

    def at_work(self):
        """Whether the display, the window manager or a program runs or waits for the processor or
        the disk now, rather than for events."""
        for process in self.processes:
            try:
                status = Path(f"/proc/{process.pid}/stat").read_text()
            except FileNotFoundError:
                continue
            if status.rpartition(")")[2].split()[0] in "RD":
                return True
        return False

    def settle(self, seconds=30):
        """Waits until the screen has stood still, and nobody has been at work, for a moment; for long
        work more than the usual seconds."""
        end = time.monotonic() + seconds
        before, since = self.screen(), time.monotonic()
        while time.monotonic() < end:
            time.sleep(0.04)
            now = self.screen()
            if now != before or self.at_work():
                before, since = now, time.monotonic()
            elif time.monotonic() - since > 0.3:
                return
        raise AssertionError("the screen never stands still")

    def keys(self, *keys):
        self.output("xdotool", "key", "--delay", "40", *keys)
        self.settle()

    def type(self, text):
        self.output("xdotool", "type", "--delay", "40", text)
        self.settle()

    def click(self, place, *held_keys):
        self.output("xdotool", "mousemove", str(place[0]), str(place[1]))
        for key in held_keys:
            self.output("xdotool", "keydown", key)
        self.output("xdotool", "click", "1")
        for key in held_keys:
            self.output("xdotool", "keyup", key)
        self.settle()

    def drag(self, start, end):
        """Drags with the left button, in steps as a hand would."""
        self.output("xdotool", "mousemove", str(start[0]), str(start[1]), "mousedown", "1")
        for step in range(1, 21):
            x = start[0] + (end[0] - start[0]) * step // 20
            y = start[1] + (end[1] - start[1]) * step // 20
            self.output("xdotool", "mousemove", str(x), str(y))
            time.sleep(0.03)
        time.sleep(0.2)
        self.output("xdotool", "mouseup", "1")
        self.settle()


def region(picture, left, top, right, bottom):
    """The pixels of a rectangle of a picture."""
    return [picture[(y * WIDTH + left) * 3:(y * WIDTH + right) * 3] for y in range(top, bottom)]
