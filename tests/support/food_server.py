#!/usr/bin/env python3
"""A food server for the tests, on the loopback: real sockets, and as many ways to misbehave as a
server has. The first part of the path says which: a client whose server is

    http://127.0.0.1:<port>/hits

asks for /hits/modules/kvzoek.php?item=... and gets three foods. It speaks over bare sockets, since
the ready-made servers refuse a target with blanks in it.

Run as a program it prints "PORT <port>", "SECURE <port>" of one that speaks TLS, "REFUSES <port>" of a port where nobody listens and "FULL
<port>" of one that takes no connection any more, then "REQUEST <hex>" for each request head as it
came, and ends with its input. As a module: Server, a context manager.
"""
import gzip
import itertools
import socket
import ssl
import struct
import sys
import threading
import time
from pathlib import Path

FIELD_END, FOOD_END = b"\xbd", b"\xbc"
CERTIFICATE = Path(__file__).with_name("test_server.pem")


def food(*fields):
    return b"".join(field + FIELD_END for field in fields) + FOOD_END


def plain_food(name, kilocalories=b"10"):
    return food(name, b"1 piece", b"100", b"42", kilocalories, b"1", b"2", b"3", b"4", b"0.5", b"0",
                b"")


HITS = b"".join(plain_food(name) for name in (b"Appeltaart", b"Appelmoes", b"Cr\xe8me br\xfbl\xe9e"))
TEN_THOUSAND = b"".join(plain_food(b"Food %d" % i) for i in range(10_000))


def reply(body, status=b"200 OK", headers=(), length=None):
    lines = [b"HTTP/1.1 " + status, b"Content-Type: text/plain", *headers,
             b"Content-Length: %d" % (len(body) if length is None else length)]
    return b"\r\n".join(lines) + b"\r\n\r\n" + body


def redirect(place, status=b"302 Found"):
    return reply(b"This page stands elsewhere.", status, [b"Location: " + place])


def wait_for_end(connection):
    """Keeps silent until the client goes."""
    while connection.recv(65536):
        pass


# What each path does besides the plain replies: it gets the connection and the target.
def hang_in_headers(connection, _):
    connection.sendall(b"HTTP/1.1 200 OK\r\nContent-Ty")
    wait_for_end(connection)


def hang_in_body(connection, _):
    connection.sendall(reply(HITS, length=len(HITS) + 100))
    wait_for_end(connection)


def slow(connection, _):
    for byte in reply(plain_food(b"Slow food")):
        connection.sendall(bytes([byte]))
        time.sleep(0.01)


def reset(connection, _):
    connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))


def reset_in_body(connection, target):
    connection.sendall(reply(HITS, length=len(HITS) + 100))
    reset(connection, target)


def endless(connection, _):
    connection.sendall(b"HTTP/1.1 200 OK\r\n\r\n")
    while True:
        connection.sendall(plain_food(b"Again") * 1000)


def endless_headers(connection, _):
    connection.sendall(b"HTTP/1.1 200 OK\r\n")
    while True:
        connection.sendall(b"X-Again: and again\r\n" * 1000)


def chunked(connection, _):
    connection.sendall(b"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n")
    for i in range(0, len(HITS), 7):
        piece = HITS[i:i + 7]
        connection.sendall(b"%x\r\n%s\r\n" % (len(piece), piece))
    connection.sendall(b"0\r\n\r\n")


def bad_chunks(connection, _):
    connection.sendall(b"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nxyz\r\n" + HITS)


def until_the_end(connection, _):
    connection.sendall(b"HTTP/1.1 200 OK\r\n\r\n" + HITS)


def whole_server(connection, target):
    """Finds foods and takes those that are offered."""
    connection.sendall(REPLIES["accepted" if b"/swadd.php" in target else "hits"])


def count_down(connection, target):
    """/redirect_<n>/...: leads to n - 1, the last one to the foods."""
    _, name, rest = target.split(b"/", 2)
    left = int(name.rpartition(b"_")[2])
    place = b"/redirect_%d/%s" % (left - 1, rest) if left > 1 else b"/hits/" + rest
    connection.sendall(redirect(place))


REPLIES = {
    "hits": reply(HITS),
    "found": reply(plain_food(b"Appeltaart")),
    "nothing": reply(b"Sorry, nothing here"),
    "empty": reply(b""),
    "ten_thousand": reply(TEN_THOUSAND),
    "status_404": reply(HITS, b"404 Not Found"),
    "status_500": reply(b"It broke", b"500 Internal Server Error"),
    "compressed": reply(gzip.compress(HITS, mtime=0), headers=[b"Content-Encoding: gzip"]),
    "longer_than_it_says": reply(HITS, length=len(HITS) // 3),
    "shorter_than_it_says": reply(HITS, length=len(HITS) + 10),
    "negative_length": reply(HITS, length=-5),
    "no_http": HITS,
    "nuls": reply(b"\0\0" + FIELD_END + b"\0" + FOOD_END),
    "three_fields": reply(food(b"Soup", b"1 plate", b"250")),
    "forty_fields": reply(food(*[b"%d" % i for i in range(40)])),
    "no_half": reply(b"Soup 1 plate" + FOOD_END),
    "megabyte": reply(plain_food(b"x" * 1_000_000)),
    "markup": reply(plain_food(b"<b>Bread</b> &amp; <img src='x'>")),
    "utf_8": reply("Crème½1 stuk½100½¼".encode()),
    "broken_utf_8": reply(b"\xff\xfe\xc3" + FIELD_END + FOOD_END),
    "line_ends": reply(b"Soup" + b"\xbe" + b"Bread" + FIELD_END + b"1\xbe" + FIELD_END + FOOD_END),
    "behind_the_last": reply(HITS + b"more"),
    "accepted": reply(b"OK"),
    "accepted_and_more": reply(b"OK, thanks"),
    "lower_case": reply(b"ok"),
    "newer": reply(b"3.00" + FIELD_END + b"http://example.org" + FIELD_END),
    "equal": reply(b"2.24" + FIELD_END),
    "cookie": reply(HITS, headers=[b"Set-Cookie: taste=sweet; Path=/"]),
    "to_a_relative_place": redirect(b"other.php?item=b c"),
    "to_ftp": redirect(b"ftp://127.0.0.1/foods"),
    "to_a_file": redirect(b"file:///etc/hostname"),
    "to_nowhere": redirect(b"http://"),
    "to_itself": redirect(b"/to_itself/modules/kvzoek.php"),
    "no_place": reply(HITS, b"302 Found"),
    "moved_for_good": redirect(b"/hits/", b"301 Moved Permanently"),
    "see_other": redirect(b"/hits/", b"303 See Other"),
    "kept_method": redirect(b"/hits/", b"307 Temporary Redirect"),
    "kept_for_good": redirect(b"/hits/", b"308 Permanent Redirect"),
    "multiple_choices": reply(HITS, b"300 Multiple Choices", [b"Location: /nothing/"]),
    "interim": b"HTTP/1.1 103 Early Hints\r\nLocation: /nothing/\r\n\r\n" + reply(HITS),
}
ACTS = {
    "silent": lambda connection, _: wait_for_end(connection),
    "closes": lambda connection, _: None,
    "hang_in_headers": hang_in_headers,
    "hang_in_body": hang_in_body,
    "slow": slow,
    "whole": whole_server,
    "reset": reset,
    "reset_in_body": reset_in_body,
    "endless": endless,
    "endless_headers": endless_headers,
    "chunked": chunked,
    "bad_chunks": bad_chunks,
    "until_the_end": until_the_end,
}


class Server:
    """Listens at 127.0.0.1:`port`; with `certificate`, one signed by nobody, it speaks TLS.
    `requests` are the heads as they came, each handed to `on_request` as well."""

    def __init__(self, on_request=lambda head: None, secure=False):
        self.on_request, self.requests = on_request, []
        self.context = None
        if secure:
            self.context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            self.context.load_cert_chain(CERTIFICATE)
        self.listening = socket.create_server(("127.0.0.1", 0))
        self.port = self.listening.getsockname()[1]
        threading.Thread(target=self.accept, daemon=True).start()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.listening.close()

    def address(self, path):
        return f"http://127.0.0.1:{self.port}/{path}"

    def accept(self):
        while True:
            try:
                connection, _ = self.listening.accept()
            except OSError:
                return
            threading.Thread(target=self.serve, args=[connection], daemon=True).start()

    def serve(self, connection):
        try:
            if self.context is not None:
                connection = self.context.wrap_socket(connection, server_side=True)
            with connection:
                head = b""
                while b"\r\n\r\n" not in head:
                    piece = connection.recv(65536)
                    if not piece:
                        return
                    head += piece
                self.requests.append(head)
                self.on_request(head)
                self.answer(connection, head[:head.index(b"\r\n")])
        except OSError:
            pass  # the client went, as some tests let it

    @staticmethod
    def answer(connection, line):
        target = line[len(b"GET "):line.rindex(b" HTTP/")]
        name = target.split(b"/")[1].partition(b"?")[0].decode("latin-1")
        if name in REPLIES:
            connection.sendall(REPLIES[name])
        elif name in ACTS:
            ACTS[name](connection, target)
        elif name.startswith("redirect_"):
            count_down(connection, target)
        else:
            connection.sendall(reply(b"no such path", b"404 Not Found"))


def refusing():
    """A port that is taken, but where nobody listens."""
    taken = socket.socket()
    taken.bind(("127.0.0.1", 0))
    return taken


def full():
    """A port whose queue of connections is full, so that none can be made, and what fills it."""
    listening = socket.socket()
    listening.bind(("127.0.0.1", 0))
    listening.listen(0)
    waiting = []
    for _ in range(4):
        client = socket.socket()
        client.setblocking(False)
        client.connect_ex(listening.getsockname())
        waiting.append(client)
    return listening, waiting


def main():
    lock = threading.Lock()

    def say(word, what):
        with lock:
            print(word, what, flush=True)

    taken, (listening, waiting) = refusing(), full()
    with Server(lambda head: say("REQUEST", head.hex())) as server, \
            Server(lambda head: None, secure=True) as secure:
        say("PORT", server.port)
        say("SECURE", secure.port)
        say("REFUSES", taken.getsockname()[1])
        say("FULL", listening.getsockname()[1])
        sys.stdin.read()
    for opened in itertools.chain([taken, listening], waiting):
        opened.close()


if __name__ == "__main__":
    main()
