#!/usr/bin/env python3
"""The internet, as a person uses it, with a food server on the loopback.

Searches for a food, drags what was found into the morning and keeps it in the own list with a value
of one's own; offers a new food to the server, which takes it; looks for a newer version on a server
that has one, on one that has none and on one that keeps silent, and says how long each took. What
the server was asked is compared byte by byte; what was kept is read from outside. The argument is the
built program.
"""
import struct
import sys
import tempfile
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))

from day_file_reader import LINE_END, pieces, read_day_file
from desktop import Desktop
from food_server import Server
from one_day import MORNING, end, make_user_and_day
from own_food import DETAILS, EDIT, NEW_FOOD, boxes, enter_new_food
from with_servers import ProgramWithServers

INTERNET_LIST, TERM, FIRST_FOUND = (320, 150), (140, 226), (80, 302)
UPDATE = (797, 65)
ERROR = "^Error"

# What the server finds first, as it sends it and as it is kept with 20 grams of protein per 100.
FOUND = "Appeltaart½1 piece½100½42½10½1½2½3½4½0.5½0½½"
KEPT = "Appeltaart½1 piece½100½42½10½20.00½2.00½3.00½4.00½0.500½0½½"
NEW = "Muesli½1 bowl½40½600½143½4.00½2.20½1.00½24.00½0.080½0½½"
HEADERS = "\r\nHost: 127.0.0.1:{}\r\nUser-Agent: Kelvora FOOD/2.24\r\nAccept: */*\r\n\r\n"


def request(server, target):
    head = f"GET {target} HTTP/1.1" + HEADERS.format(server.port)
    return head.encode("cp1252")


def expect_requests(desktop, server, *targets):
    """Waits until the server was asked for just these targets, and forgets them."""
    desktop.wait_for("the requests", lambda: len(server.requests) >= len(targets))
    expected = [request(server, target) for target in targets]
    assert server.requests == expected, f"{server.requests} is not {expected}"
    server.requests.clear()


def expect_box(desktop):
    """Waits for a box over the main window and answers it."""
    desktop.wait_for("a box", lambda: boxes(desktop) == 1)
    desktop.keys("Return")
    desktop.wait_for("the end of the box", lambda: boxes(desktop) == 0)


def own_list(home):
    data = (home / "Databases" / "Custom.dat").read_bytes()
    (length,) = struct.unpack_from("<H", data, 4)
    return [line.decode("cp1252") for line in pieces(data[6:6 + length], LINE_END)]


def settings(home):
    """The strings of the settings file."""
    data = Path(home, ".config", "Brelux", "kvfset.dat").read_bytes()
    strings, place = [], 4
    for _ in range(51):
        (length,) = struct.unpack_from("<H", data, place)
        strings.append(data[place + 2:place + 2 + length].decode("cp1252"))
        place += 2 + length
    return strings


def search_and_eat(desktop, server, user):
    desktop.click(INTERNET_LIST)
    desktop.click(TERM)
    desktop.type("appel taart")
    desktop.keys("Return")
    expect_requests(desktop, server, "/whole/modules/kvzoek.php?item=appel taart")
    desktop.settle()
    desktop.click(FIRST_FOUND)
    desktop.drag(FIRST_FOUND, MORNING)
    desktop.keys("ctrl+s")
    (day,) = (user / "Files").glob("*.kvf")
    morning = [line.decode("cp1252") for line in pieces(read_day_file(day)[3], LINE_END)]
    assert morning == [FOUND], morning


def keep(desktop, user):
    desktop.click(FIRST_FOUND)
    desktop.output("xdotool", "click", "--repeat", "2", "--delay", "60", "1")
    desktop.window(DETAILS)
    desktop.settle()
    desktop.keys("ctrl+Tab")
    desktop.click(EDIT)  # the first value is selected then, five before the protein
    desktop.keys("Tab", "Tab", "Tab", "Tab", "Tab")
    desktop.type("20")
    desktop.keys("Return")
    # Half a gram of sodium is no question; the box tells where the food is kept.
    expect_box(desktop)
    desktop.no_window(DETAILS)
    assert own_list(user) == [KEPT], own_list(user)


def offer(desktop, server, user):
    enter_new_food(desktop, "Muesli")
    # Per 100 grams as on the package, whatever the portion weighs.
    expect_requests(desktop, server,
                    "/whole/modules/swadd.php?naam=Muesli&kj=1500&kcal=357&vvet=2.50&ovet=5.50"
                    "&kdr=60.00&ew=10.00&nat=0.200&opmerking=Kelvora FOOD&gepost=anna")
    expect_box(desktop)
    assert not desktop.shows(ERROR), "an error for a food that was taken"
    desktop.keys("Escape")
    desktop.no_window(NEW_FOOD)
    assert own_list(user) == [KEPT, NEW], own_list(user)


def look_for_update(desktop, server, name):
    """Begins a check on a server of that kind and waits until it was asked. The moment when."""
    desktop.output("xdotool", "mousemove", str(UPDATE[0]), str(UPDATE[1]), "click", "1")
    desktop.wait_for("the question", lambda: server.requests)
    asked = time.monotonic()
    expect_requests(desktop, server, f"/{name}?version=2.24")
    return asked


def check_updates(desktop, copy, server, servers):
    desktop.click(UPDATE)  # no server is known for it yet: an error tells so
    expect_box(desktop)
    desktop.output("xdotool", "mousemove", str(UPDATE[0]), str(UPDATE[1]))
    desktop.settle()
    before = desktop.picture()
    for name in ("newer", "equal", "silent"):
        copy.know(**servers, update=server.address(name))
        asked = look_for_update(desktop, server, name)
        if name == "silent":
            desktop.wait_for("the window", lambda: desktop.picture() != before)
        if name == "newer":
            expect_box(desktop)
            desktop.output("xdotool", "mousemove", str(UPDATE[0]), str(UPDATE[1]))
        desktop.wait_for(f"the end of the check on a server that is {name}",
                         lambda: desktop.picture() == before)
        print(f"{name}: the window was gone {time.monotonic() - asked:.1f} s after the question")
        desktop.settle()
        assert boxes(desktop) == 0, "a box nobody needs"


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop, Server() as server, tempfile.TemporaryDirectory() as folder:
        copy = ProgramWithServers(program, folder)
        servers = {"dutch": server.address("whole")}
        copy.know(**servers)
        desktop.environment["USERNAME"] = "anna"
        user = Path(desktop.home.name, "Documents", "Kelvora FOOD", "My Users", "Anna")
        process = desktop.start(copy.program, first_run=True)
        make_user_and_day(desktop)
        search_and_eat(desktop, server, user)
        keep(desktop, user)
        offer(desktop, server, user)
        # Searches, submissions, and the bytes of the one reply: three foods.
        counters = settings(desktop.home.name)[25:28]
        assert counters == ["1", "1", "136"], counters
        check_updates(desktop, copy, server, servers)
        end(desktop, process)
    print("the internet, when it is asked: as it must be")


if __name__ == "__main__":
    main()
