#!/usr/bin/env python3
"""Writes the sample tables: make_dbf_samples.py FOLDER makes staff.dbf with staff.dbt, and cities.dbf.

The people are invented, from a fixed seed, so that the files come out the same each time.
"""
import random
import struct
import sys
from datetime import date, timedelta
from pathlib import Path

BLOCK = 512
LANGUAGE_DRIVER_1252 = 0x03


def descriptor(name, kind, width, decimals=0):
    return struct.pack("<11sc4xBB14x", name.encode("ascii"), kind.encode("ascii"), width, decimals)


def table(version, fields, records):
    """The bytes of a table; each record is a string of the fields' widths, with the deleted flag in front."""
    length = 1 + sum(field[2] for field in fields)
    head = struct.pack("<B3BIHH17xB2x", version, 126, 11, 21, len(records), 33 + 32 * len(fields), length,
                       LANGUAGE_DRIVER_1252)
    head += b"".join(descriptor(*field) for field in fields) + b"\r"
    body = b"".join(record.encode("cp1252") for record in records)
    assert len(body) == length * len(records)
    return head + body + b"\x1a"


FIRST = """Adele Anton Beate Bruno Carla César Doris Edith Emil Fanny Felix Gerda Hanna Hugo Ines Jakob Jana Jörg
Karla Konrad Lena Lotte Ludwig Maja Malte Mathilde Nils Nora Olga Oskar Paul Paula René Rosa Sven Thea Timo
Ursula Valentin Zoë""".split()
LAST = """Adler Bachmann Berger Brandt Busch Dahl Ebner Falk Fischer Fuchs Gärtner Groß Haas Hahn Hoffmann Huber
Jäger Keller Klein Koch Kühn Lang Lindner Maurer Möller Neumann Ott Peters Pfeiffer Reuter Richter Sauer Schäfer
Schilling Seidel Sommer Stark Thiel Ulrich Vogel Wagner Weiß Winter Wolf Zimmermann""".split()
DEPARTMENTS = ["Accounts", "Archive", "Dispatch", "Laboratory", "Legal", "Purchasing", "Sales", "Workshop"]
NOTES = [
    "Works mornings only.",
    "Speaks French and Italian; takes the calls from the branch in Lyon.",
    "On parental leave until further notice.\r\nCovered by the colleagues of the same department.",
    "Keeper of the keys of the main building.",
    "Moved here from the branch when it was closed.",
    "First aider. The certificate is renewed every two years.",
]

STAFF_FIELDS = [("ID", "N", 5), ("LASTNAME", "C", 20), ("FIRSTNAME", "C", 15), ("BORN", "D", 8),
                ("DEPT", "C", 12), ("SALARY", "N", 9, 2), ("ACTIVE", "L", 1), ("NOTES", "M", 10)]


def staff(count=300):
    rng = random.Random(1972)
    records, blocks = [], []
    for number in range(1, count + 1):
        born = date(1955, 1, 1) + timedelta(days=rng.randrange(18000))
        block = ""
        if rng.random() < 0.25:
            block = str(1 + len(blocks))
            blocks.append(rng.choice(NOTES).encode("cp1252") + b"\x1a\x1a")
        mark = "*" if number in (57, 211) else " "
        active = rng.choice("TTTTTTTF") if number % 40 else " "
        records.append(f"{mark}{number:5d}{rng.choice(LAST):20s}{rng.choice(FIRST):15s}{born:%Y%m%d}"
                       f"{rng.choice(DEPARTMENTS):12s}{rng.randrange(190000, 780000) / 100:9.2f}{active}"
                       f"{block:>10s}")
    memo = struct.pack("<I", 1 + len(blocks)).ljust(BLOCK, b"\0")
    memo += b"".join(block.ljust(BLOCK, b"\0") for block in blocks)
    return table(0x83, STAFF_FIELDS, records), memo


CITIES = [
    ("Amsterdam", "Netherlands", 52.3728, 4.8936), ("Ankara", "Turkey", 39.9300, 32.8500),
    ("Athens", "Greece", 37.9842, 23.7281), ("Barcelona", "Spain", 41.3828, 2.1769),
    ("Belgrade", "Serbia", 44.8178, 20.4569), ("Berlin", "Germany", 52.5200, 13.4050),
    ("Bern", "Switzerland", 46.9480, 7.4474), ("Bogotá", "Colombia", 4.7111, -74.0722),
    ("Brussels", "Belgium", 50.8467, 4.3525), ("Bucharest", "Romania", 44.4325, 26.1039),
    ("Budapest", "Hungary", 47.4925, 19.0514), ("Buenos Aires", "Argentina", -34.6033, -58.3817),
    ("Cairo", "Egypt", 30.0444, 31.2358), ("Cape Town", "South Africa", -33.9253, 18.4239),
    ("Dublin", "Ireland", 53.3500, -6.2603),
    ("Düsseldorf", "Germany", 51.2333, 6.7833), ("Genève", "Switzerland", 46.2017, 6.1469),
    ("Göteborg", "Sweden", 57.7075, 11.9675), ("Helsinki", "Finland", 60.1708, 24.9375),
    ("Jakarta", "Indonesia", -6.1750, 106.8275), ("København", "Denmark", 55.6761, 12.5683),
    ("Köln", "Germany", 50.9364, 6.9528), ("Lima", "Peru", -12.0600, -77.0375),
    ("Lisbon", "Portugal", 38.7253, -9.1500), ("London", "United Kingdom", 51.5072, -0.1275),
    ("Madrid", "Spain", 40.4169, -3.7033), ("Málaga", "Spain", 36.7194, -4.4200),
    ("Melbourne", "Australia", -37.8142, 144.9631), ("Mexico City", "Mexico", 19.4333, -99.1333),
    ("Montréal", "Canada", 45.5089, -73.5542), ("Nairobi", "Kenya", -1.2864, 36.8172),
    ("New Delhi", "India", 28.6139, 77.2089), ("New York", "United States", 40.7128, -74.0061),
    ("Oslo", "Norway", 59.9133, 10.7389), ("Paris", "France", 48.8567, 2.3522),
    ("Prague", "Czechia", 50.0875, 14.4214), ("Québec", "Canada", 46.8139, -71.2081),
    ("Reykjavík", "Iceland", 64.1467, -21.9400), ("Rome", "Italy", 41.8933, 12.4828),
    ("Santiago", "Chile", -33.4372, -70.6506), ("São Paulo", "Brazil", -23.5504, -46.6339),
    ("Seoul", "South Korea", 37.5600, 126.9900), ("Sofia", "Bulgaria", 42.7000, 23.3300),
    ("Stockholm", "Sweden", 59.3294, 18.0686), ("Sydney", "Australia", -33.8678, 151.2100),
    ("Tokyo", "Japan", 35.6897, 139.6922), ("Tunis", "Tunisia", 36.8064, 10.1817),
    ("Vienna", "Austria", 48.2083, 16.3725), ("Warsaw", "Poland", 52.2300, 21.0111),
    ("Wellington", "New Zealand", -41.2889, 174.7772), ("Zürich", "Switzerland", 47.3744, 8.5411),
]
CITY_FIELDS = [("NAME", "C", 20), ("COUNTRY", "C", 20), ("LATITUDE", "N", 8, 4), ("LONGITUDE", "N", 9, 4),
               ("VISITED", "L", 1), ("SEEN", "D", 8)]


def cities():
    return table(0x03, CITY_FIELDS, [f" {name:20s}{country:20s}{latitude:8.4f}{longitude:9.4f} {'':8s}"
                                     for name, country, latitude, longitude in CITIES])


def main(folder):
    people, notes = staff()
    (folder / "staff.dbf").write_bytes(people)
    (folder / "staff.dbt").write_bytes(notes)
    (folder / "cities.dbf").write_bytes(cities())


if __name__ == "__main__":
    main(Path(sys.argv[1]))
