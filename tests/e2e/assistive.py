"""What a screen reader sees of the program, asked for over the accessibility bus of a test's own desktop.

Make an `Assistive` before the program starts. Debian's modules for it belong to Debian's Python:
`with_debians_python` goes on under that one, where another has started the test.
"""
import os
import subprocess
import sys
import time


def with_debians_python():
    try:
        import gi  # noqa: F401
    except ImportError:
        debians = "/usr/bin/python3"
        if sys.executable == debians:
            raise
        os.execv(debians, [debians, *sys.argv])


class Assistive:
    def __init__(self, desktop):
        # A session bus of its own, which starts the accessibility bus when it is asked for. Both end
        # with the process.
        bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"],
                               env=desktop.environment, stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL, text=True)
        desktop.processes.append(bus)
        desktop.environment |= {"DBUS_SESSION_BUS_ADDRESS": bus.stdout.readline().strip(),
                                "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        os.environ.update(desktop.environment)
        import pyatspi
        self.at, self.desktop = pyatspi, desktop

    def program(self):
        """The program, once it is on the bus."""
        root = self.at.Registry.getDesktop(0)
        self.desktop.wait_for("the program on the accessibility bus", lambda: root.childCount)
        return root.getChildAtIndex(0)

    def showing(self, node=None):
        """Everything that shows, each before what it holds."""
        node = node or self.program()
        yield node
        for child in node:
            if child is not None and child.getState().contains(self.at.STATE_SHOWING):
                yield from self.showing(child)

    def tree(self, node=None):
        """The role and the name of everything that shows."""
        return [(part.getRoleName(), part.name) for part in self.showing(node)]

    def focus(self):
        """The role and the name of what has the focus."""
        # What is around it may say so as well, and so does the current entry of each list.
        focus = None
        for part in self.showing():
            entry = part.getRoleName() in {"table cell", "list item"}
            if not entry and part.getState().contains(self.at.STATE_FOCUSED):
                focus = part.getRoleName(), part.name
        return focus

    def path_of_focus(self):
        """The names of what has the focus and of what is around it."""
        names = []
        for part in self.showing():
            if part.getState().contains(self.at.STATE_FOCUSED):
                names.append(part.name)
        return names

    def expect_focus(self, role, name):
        try:
            self.desktop.wait_for(f"the focus on {role} {name}",
                                  lambda: self.focus() == (role, name), seconds=20)
        except AssertionError as failure:
            raise AssertionError(f"{failure}: it is on {self.focus()}") from None

    def hear(self, event, act):
        """The names of what told of an event of that kind while `act` was done and soon after."""
        heard = []

        def note(told):
            heard.append(told.source.name)

        self.at.Registry.registerEventListener(note, event)
        act()
        end = time.monotonic() + 20
        while time.monotonic() < end and not heard:
            self.at.Registry.pumpQueuedEvents()
            from gi.repository import GLib
            while GLib.MainContext.default().iteration(False):
                pass
            time.sleep(0.02)
        self.at.Registry.deregisterEventListener(note, event)
        return heard
