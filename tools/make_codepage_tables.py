#!/usr/bin/env python3
"""Writes host/sources/dbf/CodePageTables.cpp from the character maps of Python's own codecs."""
import sys

PAGES = [437, 737, 850, 852, 857, 860, 861, 863, 865, 866, 874,
         1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258]


def upper_half(page):
    for byte in range(0x80, 0x100):
        try:
            yield ord(bytes([byte]).decode(f"cp{page}"))
        except UnicodeDecodeError:
            # The platform's own conversion gives the unassigned bytes of these pages to the control
            # characters of the same number where they lie below 0xA0.
            yield byte if page >= 1250 and byte < 0xA0 else 0


def main(out):
    out.write("// Made by tools/make_codepage_tables.py; change that and run it again.\n")
    out.write('#include "CodePageTables.h"\n\nnamespace dbf {\nnamespace {\n\n')
    out.write("// clang-format off\n")
    out.write("constexpr CodePage kPages[] = {\n")
    for page in PAGES:
        out.write(f"    {{{page}, {{\n")
        codes = [f"0x{code:04X}" for code in upper_half(page)]
        for start in range(0, 128, 12):
            out.write("        " + ", ".join(codes[start:start + 12]) + ",\n")
        out.write("    }},\n")
    out.write("};\n// clang-format on\n\n} // namespace\n\n")
    out.write("std::span<const CodePage> codePageTables() { return kPages; }\n\n} // namespace dbf\n")


if __name__ == "__main__":
    with open(sys.argv[1], "w", encoding="ascii", newline="\n") as target:
        main(target)
