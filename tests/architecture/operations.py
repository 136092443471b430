#!/usr/bin/env python3
"""Every public operation of the grid control and its cell types, of the editors and of the lookup tables is called, or as
a notification awaited, by name in some test of these rooms. operations.py ROOT"""
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
# Rooms of which every exported class is looked at.
ROOMS = ["editorcore", "dataeditor", "lookup"]
# How the trees of lookup tables keep themselves: tests look at the trees.
STORAGE = ["CLookupNode", "CPoolCodes", "CPoolText"]
# Files of random work: it calls much and says of nothing what it should do.
RANDOM = re.compile(r"Random|EditorRun|EditorRandom")
TESTS = ["tests/grid", "tests/editorcore", "tests/dataeditor", "tests/lookup", "tests/lookup/options"]
EXPORTED = re.compile(r"^class ORVANE_API (\w+)\b(?!;)", re.M)
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
    sections = re.split(r"\n(public|protected|private):", found.group(1))
    public = "".join(body for access, body in zip(sections[1::2], sections[2::2]) if access == "public")
    body = NO_CODE.sub(";", INITIALISERS.sub(")", public))
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
            if name.endswith((".cpp", ".h")) and not RANDOM.match(name):
                tests += read(root, os.path.join(folder, name))
    classes = dict(CLASSES)
    for room in ROOMS:
        for name in sorted(os.listdir(os.path.join(root, room))):
            path = f"{room}/{name}"
            if name.endswith(".h") and (exported := EXPORTED.findall(read(root, path))):
                classes[path] = [name for name in exported if name not in STORAGE]
    missing, count = [], 0
    for path, names in classes.items():
        header = read(root, path)
        for name in names:
            listed = operations(header, name)
            count += len(listed)
            missing += [f"{name}::{operation} is in no test" for operation in listed if not is_tested(operation, tests)]
    print("\n".join(missing) or f"all {count} operations are in tests")
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
