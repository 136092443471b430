#!/usr/bin/env python3
"""Kills the host at many moments around a save and checks that the file is the old one or the new one, whole:
kill_during_save.py HOST-PROGRAM TABLE-MAKER WORK-FOLDER MOMENTS."""
import os
import shutil
import struct
import subprocess
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import hostdriver  # noqa: E402
from hostdriver import Host  # noqa: E402

RECORDS = 600000  # a save long enough to be hit in its middle
FIELDS = 20


def layout_of(data):
    count, head, length = struct.unpack_from("<IHH", data, 4)
    return count, head, length


def check(path, pristine):
    """Answers which of the two files it is; anything else is a lost record."""
    with open(path, "rb") as file:
        data = file.read()
    if data == pristine:
        return "old"
    count, head, length = layout_of(data)
    assert (count, head, length) == layout_of(pristine), f"the header speaks of {count} records"
    assert len(data) == len(pristine), f"the file has {len(data)} bytes"
    end = head + count * length
    assert data[head + length:end] == pristine[head + length:end], "another record changed"
    assert data[head + 1:].startswith(b"kept "), "the first record is neither the old one nor the new one"
    return "new"


def edit(host, path):
    name = os.path.basename(path)
    host.await_table(name)
    host.type("kept")
    host.keys("Down")
    host.await_table(name, modified=True)


def save_and_kill(program, path, delay):
    with Host(program, path) as host:
        edit(host, path)
        key = subprocess.Popen(["xdotool", "key", "ctrl+s"], env=host.env)
        time.sleep(delay)  # the moment that is tried, not a wait
        host.kill()
        key.wait()


def main(program, maker, folder, moments):
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    path = os.path.join(folder, "kill.dbf")
    windows_path = "Z:" + path.replace("/", "\\")
    subprocess.run([os.path.join(hostdriver.ROOT, "tools", "wine-run"), maker, windows_path, str(RECORDS),
                    str(FIELDS)], check=True)
    with open(path, "rb") as file:
        pristine = file.read()
    # One save that is let go on gives the time that a save takes.
    with Host(program, path) as host:
        edit(host, path)
        started = time.monotonic()
        host.keys("ctrl+s")
        host.await_table("kill.dbf")
        span = 1.2 * (time.monotonic() - started)
    seen = {"old": 0, "new": 0, "left behind": 0}
    found = check(path, pristine)
    assert found == "new", "a save that goes on to its end writes the new file"
    for moment in range(moments):
        if found == "new":
            with open(path, "wb") as file:
                file.write(pristine)
        save_and_kill(program, path, span * moment / moments)
        found = check(path, pristine)
        seen[found] += 1
        for name in os.listdir(folder):
            if name not in ("kill.dbf", "killdbf.@layout"):
                seen["left behind"] += 1
                os.remove(os.path.join(folder, name))
    print(f"{moments} kills over {span:.2f} s: {seen}")
    assert seen["old"] > 0 and seen["new"] > 0, "the moments did not straddle the save"


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2], sys.argv[3], int(sys.argv[4]))
