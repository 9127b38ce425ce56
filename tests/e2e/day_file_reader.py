"""Reads a day file byte by byte; shares nothing with the program that wrote it."""
import struct

FIELD_END, LINE_END = b"\xbd", b"\xbe"


def read_day_file(path):
    """The six strings of a file that holds exactly one record and nothing behind it."""
    data = path.read_bytes()
    (count,) = struct.unpack_from("<i", data, 0)
    assert count == 1, f"{count} records"
    position, strings = 4, []
    for _ in range(6):
        (length,) = struct.unpack_from("<H", data, position)
        assert length != 0xFFFF, "a long string in a small day"
        position += 2
        strings.append(data[position:position + length])
        assert len(strings[-1]) == length, "the file ends inside a string"
        position += length
    assert position == len(data), f"{len(data) - position} bytes behind the record"
    return strings


def pieces(data, terminator):
    """What the terminator closes; all of the data must be closed."""
    assert data == b"" or data.endswith(terminator), "an unclosed end"
    return data.split(terminator)[:-1]
