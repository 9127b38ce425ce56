"""A real browser without a screen, to look at the pages that the program writes.

Chromium is asked over a pipe: commands and answers are JSON, each ended by a zero byte. Nothing goes
over a network, and its profile is a folder that is gone afterwards.
"""
import base64
import json
import os
import shutil
import subprocess
import tempfile
from pathlib import Path

FLAGS = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
         "--disable-background-networking", "--disable-component-update", "--disable-sync",
         "--hide-scrollbars", "--remote-debugging-pipe"]


class Browser:
    """One page in a window of that size; use it as a context manager."""

    def __init__(self, width, height=768):
        self.size = (width, height)
        self.last_id = 0
        self.rest = b""

    def __enter__(self):
        self.profile = tempfile.mkdtemp(prefix="kelvora-browser-")
        asked, self.asking = os.pipe()
        self.answers, answering = os.pipe()

        def use_as_3_and_4():
            # Out of the way first, since either may be 3 or 4 already.
            reading, writing = os.dup(asked), os.dup(answering)
            while min(reading, writing) <= 4:
                reading, writing = os.dup(reading), os.dup(writing)
            os.dup2(reading, 3)
            os.dup2(writing, 4)

        width, height = self.size
        self.process = subprocess.Popen(
            ["chromium", *FLAGS, f"--user-data-dir={self.profile}",
             f"--window-size={width},{height}", "about:blank"],
            preexec_fn=use_as_3_and_4, close_fds=False, stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(asked)
        os.close(answering)
        targets = self.ask("Target.getTargets")["targetInfos"]
        page = next(target for target in targets if target["type"] == "page")
        self.session = self.ask("Target.attachToTarget", targetId=page["targetId"],
                                flatten=True)["sessionId"]
        self.ask("Page.enable")
        self.ask("Emulation.setDeviceMetricsOverride", width=width, height=height,
                 deviceScaleFactor=1, mobile=False)
        return self

    def __exit__(self, *_):
        self.process.terminate()
        try:
            self.process.wait(timeout=10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        os.close(self.asking)
        os.close(self.answers)
        shutil.rmtree(self.profile, ignore_errors=True)

    def ask(self, method, **parameters):
        """Gives a command and waits for its answer."""
        self.last_id += 1
        command = {"id": self.last_id, "method": method, "params": parameters}
        if getattr(self, "session", None):
            command["sessionId"] = self.session
        os.write(self.asking, json.dumps(command).encode() + b"\0")
        while True:
            message = self.message()
            if message.get("id") == self.last_id:
                assert "error" not in message, message["error"]
                return message["result"]

    def message(self):
        """The next answer or event."""
        while b"\0" not in self.rest:
            more = os.read(self.answers, 1 << 16)
            assert more, "the browser has ended"
            self.rest += more
        text, _, self.rest = self.rest.partition(b"\0")
        return json.loads(text)

    def open(self, address):
        """Opens an address, or a file by its path, and waits until it is loaded."""
        self.ask("Page.navigate", url=Path(address).as_uri() if "://" not in str(address) else address)
        self.wait_for("document.readyState == 'complete'")

    def evaluate(self, expression):
        """What a script in the page comes to."""
        answer = self.ask("Runtime.evaluate", expression=expression, returnByValue=True,
                          awaitPromise=True)
        assert "exceptionDetails" not in answer, answer["exceptionDetails"]
        return answer["result"].get("value")

    def wait_for(self, expression):
        self.evaluate("""new Promise(done => {
            const look = () => %s ? done() : setTimeout(look, 10);
            look();
        })""" % expression)

    def picture(self, path):
        """The whole page, however long."""
        shot = self.ask("Page.captureScreenshot", captureBeyondViewport=True)
        Path(path).write_bytes(base64.b64decode(shot["data"]))

    def print(self, path):
        pdf = self.ask("Page.printToPDF", printBackground=True)
        Path(path).write_bytes(base64.b64decode(pdf["data"]))
