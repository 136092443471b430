#!/usr/bin/env python3
"""Every public operation of the grid control and of its cell types is called, or as a notification awaited, by name in
some test of the grid or the editor. operations.py ROOT"""
import os
import re
import sys

CLASSES = {
    "grid/UGCtrl.h": ["CUGCtrl"],
    "grid/UGCellType.h": ["CUGCellType"],
    "grid/UGButtonType.h": ["CUGButtonType"],
    "grid/UGCheckBoxType.h": ["CUGCheckBoxType"],
    "grid/UGDropListType.h": ["CUGDropListType"],
    "grid/UGEllipsisType.h": ["CUGEllipsisType"],
    "grid/UGSpinButtonType.h": ["CUGSpinButtonType"],
    "grid/UGShownTypes.h": ["CUGProgressType", "CUGAutoFontType", "CUGArrowType"],
}
TESTS = ["tests/grid", "tests/editorcore"]
OPERATION = re.compile(r"[\s*&~](?P<name>[A-Z]\w*)\(")
NO_CODE = re.compile(r"//[^\n]*|\{[^{}]*\}")  # comments and the bodies of inline operations
INITIALISERS = re.compile(r"\)\s*:[^;{]*")  # of constructors


def read(root, path):
    with open(os.path.join(root, path), encoding="utf-8") as file:
        return file.read()


def operations(header, name):
    found = re.search(rf"class ORVANE_API {name}\b[^;{{]*\{{(.*?)\n\}};", header, re.S)
    if found is None:
        sys.exit(f"{name} is not where it was: tell operations.py")
    body = INITIALISERS.sub(")", found.group(1).split("\npublic:", 1)[1])
    body = NO_CODE.sub(";", re.split(r"\n(?:protected|private):", body)[0])
    names = [match.group("name") for match in OPERATION.finditer(body)]
    return [operation for operation in dict.fromkeys(names) if operation != name]


def is_tested(operation, tests):
    called = rf"(?:\.|->|::){operation}\b"
    # Recorded lists of events leave out the "On"; an override in a test is asked by the control.
    awaited = rf'["( ]{operation[2:]}\(|\b{operation}\([^;]*\) override' if operation.startswith("On") else None
    return any(re.search(pattern, tests) for pattern in (called, awaited) if pattern)


def main(root):
    tests = ""
    for folder in TESTS:
        for name in sorted(os.listdir(os.path.join(root, folder))):
            # Random events call much and say of nothing what it should do.
            if name.endswith((".cpp", ".h")) and not name.startswith("Random"):
                tests += read(root, os.path.join(folder, name))
    missing, count = [], 0
    for path, names in CLASSES.items():
        header = read(root, path)
        for name in names:
            listed = operations(header, name)
            count += len(listed)
            missing += [f"{name}::{operation} is in no test" for operation in listed if not is_tested(operation, tests)]
    print("\n".join(missing) or f"all {count} operations are in tests")
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
