#!/usr/bin/env python3
"""What ships is hardened: its image may be loaded anywhere and runs no data, the guard of the stack is linked in, and the
program asks for no more rights than its user has and takes no library from the current folder. hardening.py PROGRAM LIBRARY..."""
import struct
import sys

HIGH_ENTROPY, DYNAMIC_BASE, NO_EXECUTE = 0x20, 0x40, 0x100
OF_THE_PROGRAM = [b"asInvoker", b"supportedOS", b"SetDllDirectoryA", b"SetSearchPathMode"]


def missing(path, wanted):
    with open(path, "rb") as file:
        image = file.read()
    header = struct.unpack_from("<I", image, 0x3C)[0]
    flags = struct.unpack_from("<H", image, header + 24 + 70)[0]
    for flag, name in ((HIGH_ENTROPY, "high entropy"), (DYNAMIC_BASE, "dynamic base"), (NO_EXECUTE, "no execution of data")):
        if not flags & flag:
            yield name
    for text in [b"stack smashing detected", *wanted]:
        if text not in image:
            yield text.decode()


def main(program, *libraries):
    faults = [f"{path}: {what}" for path in (program, *libraries)
              for what in missing(path, OF_THE_PROGRAM if path == program else [])]
    print("\n".join(faults) or "hardened")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
