#!/usr/bin/env python3
"""The house rules that a compiler does not see: includes run one way between the rooms, the window-free part names no
window headers, files stay short. includes.py ROOT"""
import os
import re
import sys

# Each room and the rooms whose headers it may include.
MAY_INCLUDE = {
    "framework": {"framework"},
    "grid": {"grid", "framework"},
    "lookup": {"lookup", "grid", "framework"},
    "search": {"search"},
    "editorcore": {"editorcore", "lookup", "grid", "framework"},
    "dataeditor": {"dataeditor", "editorcore", "lookup", "search", "grid", "framework"},
    "host": {"host", "dataeditor", "search", "editorcore", "lookup", "grid", "framework"},
}
# Single headers that a room may include beside those: the host's, which everyone may know, and the scope of dialogs.
MAY_ALSO = {"lookup": {"editorcore/AppInterface.h", "editorcore/ResourceScope.h"}}
LONGEST = 800  # lines
INCLUDE = re.compile(r'^\s*#\s*include\s+["<]([^">]+)[">]', re.M)
PLATFORM_TEST = re.compile(r"^\s*#\s*if.*(_WIN32|__linux__|_MSC_VER|__MINGW)", re.M)


def sources(root):
    for room in [*MAY_INCLUDE, "tests", "bench", "tools"]:
        for folder, _, names in os.walk(os.path.join(root, room)):
            for name in names:
                if name.endswith((".cpp", ".h")):
                    path = os.path.join(folder, name)
                    with open(path, encoding="utf-8") as file:
                        yield room, os.path.relpath(path, root), file.read()


def faults(room, path, text):
    if text.count("\n") > LONGEST:
        yield f"{path} has over {LONGEST} lines: a concern in it wants a file of its own"
    if PLATFORM_TEST.search(text):
        yield f"{path} tests for the platform: a seam is a file"
    for header in INCLUDE.findall(text):
        target = header.split("/")[0]
        known = MAY_INCLUDE.get(room, {target}) | ({target} if header in MAY_ALSO.get(room, ()) else set())
        if target in MAY_INCLUDE and target not in known:
            yield f"{path} includes {header}: {room} may not know {target}"
        if path.startswith("framework/core/") and header == "windows.h" and not path.endswith("_win.cpp"):
            yield f"{path} includes windows.h: the core needs no window"


def main(root):
    found = [fault for source in sources(root) for fault in faults(*source)]
    print("\n".join(found) or "the includes run one way")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
