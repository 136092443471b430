#!/usr/bin/env python3
"""Kills the host at many moments around a save and checks that the file is the old one or the new one, whole:
kill_during_save.py HOST-PROGRAM TABLE-MAKER WORK-FOLDER MOMENTS."""
import hashlib
import os
import shutil
import struct
import subprocess
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import hostdriver  # noqa: E402
from hostdriver import Host  # noqa: E402

RECORDS = 200000
FIELDS = 20


def check(path, old, new, rest):
    """`rest` is the hash of everything behind the first record. Answers which of the two the file is."""
    with open(path, "rb") as file:
        data = file.read()
    count, head, length = struct.unpack_from("<IHH", data, 4)
    assert count == RECORDS, f"the header speaks of {count} records"
    assert len(data) - (head + count * length) in (0, 1), f"the file has {len(data)} bytes"
    assert hashlib.sha1(data[head + length:head + count * length]).hexdigest() == rest, "another record changed"
    first = data[head:head + length]
    assert first in (old, new), "the first record is neither the old one nor the new one"
    return "new" if first == new else "old"


def first_record(path):
    with open(path, "rb") as file:
        data = file.read()
    count, head, length = struct.unpack_from("<IHH", data, 4)
    return data[head:head + length], hashlib.sha1(data[head + length:head + count * length]).hexdigest(), data


def save_and_kill(program, path, delay):
    with Host(program, path) as host:
        host.await_table(os.path.basename(path))
        host.type("kept")
        host.keys("Down")
        host.await_table(os.path.basename(path), modified=True)
        host.keys("ctrl+s")
        time.sleep(delay)  # the moment that is tried, not a wait
        host.kill()


def main(program, maker, folder, moments):
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    path = os.path.join(folder, "kill.dbf")
    windows_path = "Z:" + path.replace("/", "\\")
    subprocess.run([os.path.join(hostdriver.ROOT, "tools", "wine-run"), maker, windows_path, str(RECORDS),
                    str(FIELDS)], check=True)
    old, rest, pristine = first_record(path)
    # One save that is let go on gives the new file, and the time that a save takes.
    with Host(program, path) as host:
        host.await_table("kill.dbf")
        host.type("kept")
        host.keys("Down")
        host.await_table("kill.dbf", modified=True)
        started = time.monotonic()
        host.keys("ctrl+s")
        host.await_table("kill.dbf")
    span = time.monotonic() - started
    new, new_rest, _ = first_record(path)
    assert new_rest == rest and new != old, "the save changed what it should"
    seen = {"old": 0, "new": 0, "left behind": 0}
    for moment in range(moments):
        with open(path, "wb") as file:
            file.write(pristine)
        save_and_kill(program, path, span * 1.2 * moment / moments)
        seen[check(path, old, new, rest)] += 1
        for name in os.listdir(folder):
            if name not in ("kill.dbf", "killdbf.@layout"):
                seen["left behind"] += 1
                os.remove(os.path.join(folder, name))
    print(f"{moments} kills over {span * 1.2:.2f} s: {seen}")
    assert seen["old"] > 0 and seen["new"] > 0, "the moments did not straddle the save"


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2], sys.argv[3], int(sys.argv[4]))
