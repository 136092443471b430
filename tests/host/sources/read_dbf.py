#!/usr/bin/env python3
"""Prints the records of a table as text, read with nothing but struct: a second opinion on what was written.

Usage: read_dbf.py FILE ENCODING. Each record is a line, its fields separated by |, a mark * in front of deleted
ones. Exits with 1 and a message when the file is not exactly what its header says.
"""
import struct
import sys


def main(path, encoding):
    data = open(path, "rb").read()
    version, year, month, day, count, head, length = struct.unpack_from("<B3BIHH", data)
    if not (1 <= month <= 12 and 1 <= day <= 31):
        sys.exit("no date in the header")
    fields, at = [], 32
    while data[at] != 0x0D:
        name, kind, width, decimals = struct.unpack_from("<11sc4xBB", data, at)
        fields.append((name.split(b"\0")[0].decode(encoding), kind.decode(), width, decimals))
        at += 32
    if length != 1 + sum(field[2] for field in fields):
        sys.exit("the record length does not fit the fields")
    if len(data) != head + count * length + 1 or data[-1] != 0x1A:
        sys.exit(f"the file has {len(data)} bytes, its header speaks of {head + count * length + 1}")
    out = [" ".join(f"{name}:{kind}{width}.{decimals}" for name, kind, width, decimals in fields)]
    for number in range(count):
        record = data[head + number * length:head + (number + 1) * length]
        cells, start = [], 1
        for _, kind, width, _ in fields:
            cells.append(record[start:start + width].decode(encoding).strip())
            start += width
        out.append((record[:1].decode() + "|".join(cells)).strip())
    sys.stdout.buffer.write(("\n".join(out) + "\n").encode("utf-8"))


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
