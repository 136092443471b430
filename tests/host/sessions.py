"""What sessions at the sample host share. A script of sessions is called with HOST-PROGRAM WORK-FOLDER [TEST...]."""
import csv
import io
import os
import subprocess
import sys
import unittest

import hostdriver
from hostdriver import Host

PROGRAM, WORK = sys.argv[1], sys.argv[2]
READER = os.path.join(hostdriver.ROOT, "tests", "host", "sources", "read_dbf.py")

# Panes of the status bar.
MESSAGE, RECORD, SELECTION, FIELD, MODE, MODIFIED = range(6)

# Child windows of the grid.
CELLS, TOP_HEADING, SIDE_HEADING, CORNER, V_SCROLL, H_SCROLL, HINT, TABS, EDIT_BOX = 1, 2, 3, 4, 5, 6, 7, 8, 237


# Tried in so many ways on each cell of many letters that the library gives up on it, after a while.
ENDLESS = r"(\w|\w\w)*(\w|\w\w)*(\w|\w\w)*(\w|\w\w)*(\w|\w\w)*(?=~)"


def records(path):
    """The fields and records as a reader of its own sees them, one list of texts a line."""
    text = subprocess.run([sys.executable, READER, path, "cp1252"], capture_output=True, check=True).stdout
    return [line.split("|") for line in text.decode().splitlines()]


def gdal_values(path):
    """The records as GDAL reads them, by field name."""
    text = subprocess.run(["ogr2ogr", "-f", "CSV", "/vsistdout/", path], capture_output=True, check=True).stdout
    return list(csv.DictReader(io.StringIO(text.decode("utf-8", "replace"))))


def bytes_of(path):
    with open(path, "rb") as file:
        return file.read()


def write_table(path, fields, records):
    """Writes a table of text fields (name, width); the records are texts as wide as all fields together."""
    width = 1 + sum(size for _, size in fields)
    head = bytes([3, 126, 1, 1]) + len(records).to_bytes(4, "little") + (33 + 32 * len(fields)).to_bytes(2, "little")
    head = (head + width.to_bytes(2, "little")).ljust(32, b"\0")
    for name, size in fields:
        head += name.encode().ljust(11, b"\0") + b"C" + bytes(4) + bytes([size]) + bytes(15)
    with open(path, "wb") as file:
        file.write(head + b"\r" + b"".join(b" " + record.encode() for record in records) + b"\x1a")


def forget(section):
    """Takes back what the host keeps in a section of its settings."""
    subprocess.run(["/usr/lib/wine/wine64", "reg", "delete", rf"HKCU\Software\Orvane\Orvane Tables\{section}", "/f"],
                   env=hostdriver.environment(), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


class Cells:
    """Where the cells of the grid in front stand on the screen, learnt from the box that edits the current cell."""

    def __init__(self, host, edit_key):
        self.host = host
        self.edit_key = edit_key

    def current(self):
        """Left, top, right, bottom of the current cell, lines between cells included."""
        self.host.keys(self.edit_key)
        left, top, right, bottom = self.host.await_window(id=EDIT_BOX)["rect"]
        self.host.keys("Escape")
        self.host.await_no_window(id=EDIT_BOX)
        return left, top, right + 1, bottom + 1

    def area(self, part=CELLS):
        return self.host.await_window(id=part)["rect"]


class Session(unittest.TestCase):
    def setUp(self):
        self.folder = os.path.join(WORK, self._testMethodName)

    def start(self, *files):
        host = Host(PROGRAM, *files)
        self.addCleanup(host.kill)
        return host

    def open(self, *samples):
        self.path = hostdriver.fresh_copy(self.folder, *samples)
        host = self.start(self.path)
        host.await_table(os.path.basename(self.path))
        return host

    def open_staff(self):
        self.host = self.open("staff.dbf", "staff.dbt")
        self.cells = Cells(self.host, "Right")
        return self.host

    def search_endlessly(self):
        self.host.keys("ctrl+f")
        self.host.await_title("Find")
        self.host.type(ENDLESS)
        self.host.keys("alt+x", "Return")

    def save_and_close(self):
        self.host.keys("ctrl+s")
        self.host.await_table(os.path.basename(self.path))
        self.host.keys("alt+F4")
        self.host.await_end()


def run():
    unittest.main(argv=sys.argv[:1] + sys.argv[3:], verbosity=2)
