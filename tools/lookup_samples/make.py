#!/usr/bin/env python3
"""Writes the sample lookup sources from the lists beside this script: make.py FOLDER makes occupations.dbf (an outline of
four levels), countries.dbf (one level) and education.dbf (two levels that combine freely)."""
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent))
from make_dbf_samples import table  # noqa: E402


def entries(name):
    """The lists of a file, parted by empty lines: code and description of each line."""
    lists = [[]]
    for line in (HERE / name).read_text(encoding="utf-8").splitlines():
        if line:
            lists[-1].append(line.split(" ", 1))
        else:
            lists.append([])
    return lists


def pairs(widths):
    """Fields CODE1, DESC1, CODE2, DESC2 and so on; widths of each pair."""
    fields = []
    for level, (code, description) in enumerate(widths, 1):
        fields += [(f"CODE{level}", "C", code), (f"DESC{level}", "C", description)]
    return fields


def widths_of(entries_of_level):
    return max(len(code) for code, _ in entries_of_level), max(len(text) for _, text in entries_of_level)


def table_of(rows, widths):
    fields = pairs(widths)
    return table(0x03, fields, [" " + "".join(f"{text:{field[2]}s}" for text, field in zip(row, fields)) for row in rows])


def outline(name):
    """Each code is one character longer than that above it; its level holds the last character alone."""
    lines = entries(name)[0]
    levels = max(len(code) for code, _ in lines)
    widths = [widths_of([(code[-1], text) for code, text in lines if len(code) == level + 1]) for level in range(levels)]
    rows = []
    for code, text in lines:
        row = [""] * (2 * levels)
        row[2 * len(code) - 2:2 * len(code)] = code[-1], text
        rows.append(row)
    return table_of(rows, widths)


def side_by_side(name):
    lists = entries(name)
    rows = []
    for i in range(max(map(len, lists))):
        rows.append([text for each in lists for text in (each[i] if i < len(each) else ("", ""))])
    return table_of(rows, [widths_of(each) for each in lists])


def main(folder):
    (folder / "occupations.dbf").write_bytes(outline("occupations.txt"))
    (folder / "countries.dbf").write_bytes(side_by_side("countries.txt"))
    (folder / "education.dbf").write_bytes(side_by_side("education.txt"))


if __name__ == "__main__":
    main(Path(sys.argv[1]))
