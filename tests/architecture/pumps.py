#!/usr/bin/env python3
"""Every place of the grid and the editors that may let messages through (a box, a dialog, a menu, a loop over the
messages, a service of the host or work of the source that asks or takes long) has a scene in which the editor's window
is destroyed there. pumps.py ROOT"""
import collections
import os
import re
import sys

ROOMS = ["grid", "editorcore", "dataeditor"]  # lookup/ works without an editor
SCENES = "tests/dataeditor/EditorDestroyed_window_test.cpp"
HOST = (r"ms_pAppInterface->(?:ShowMessage|CheckAbort|SetEditorTitle|PromptSaveAs|PromptFieldOrder|PromptFieldVisibility"
        r"|ShowFindDialog|ShowReplaceDialog|EditFilter|SelectFilter|ShowFileInformation|OnGridHotKey)\(")
SOURCE = r"source->(?:Open|Close|Save|SaveAs|SetOption|InsertRows|DeleteRows)\("
PUMP = re.compile(r"\bAfxMessageBox\(|(?<![:\w])MessageBox\(|\.DoModal\(|\bPumpWindow\(|::DispatchMessageA?\(|"
                  r"\.TrackPopupMenu\(|\.DoDragDrop\(|" + HOST + "|" + SOURCE)
FUNCTION = re.compile(r"^(?!\s|//|#|namespace|class|struct|\})[^;=]*?(?:\b\w+::)*(~?\w+)\([^;]*$", re.M)
SCENE = re.compile(r'\bDies(?:WithoutMemory)?\("(\w+)"')
# How many places of a function have no scene, and why: no editor's command comes to them while its window lives, or
# nothing makes them happen.
NO_SCENE = {
    "Initialise": (1, "before there are editors"),
    "CEditorCore": (1, "the constructor: there is no window yet"),
    "OpenSource": (1, "its box is for an editor that was made without memory, and opens nothing"),
    "OpenTable": (1, "a source for which the grid has no slot is closed at once, and is nobody's"),
    "PumpWindow": (2, "the loop itself: its callers have scenes"),
    "DropSource": (1, "the editor's own end"),
    "SetFonts": (1, "no font of a valid description fails"),
    "Serialize": (1, "no layout file that opens refuses to be gone through"),
    "CellText": (1, "the text of a cell that was got is always had"),
}


def pumps(path):
    """How many places of each function pump, by the function's name."""
    found = collections.Counter()
    name = None
    with open(path, encoding="utf-8") as file:
        for line in file:
            begin = FUNCTION.match(line)
            if begin:
                name = begin.group(1)
            found[name] += len(PUMP.findall(line.split("//")[0]))
    return found


def main(root):
    found = collections.Counter()
    for room in ROOMS:
        for name in sorted(os.listdir(os.path.join(root, room))):
            if name.endswith((".cpp", ".h")):
                found += pumps(os.path.join(root, room, name))
    with open(os.path.join(root, SCENES), encoding="utf-8") as file:
        scenes = collections.Counter(SCENE.findall(file.read()))
    missing = [f"{name}: {count} pump, {scenes[name]} scenes" for name, count in sorted(found.items(), key=str)
               if scenes[name] + NO_SCENE.get(name, (0, ""))[0] < count]
    unknown = [f"{name}: no such pump" for name in sorted({*scenes, *NO_SCENE}) if name not in found]
    for line in missing + unknown:
        print(line)
    print(f"{sum(found.values())} places that let messages through, {sum(scenes.values())} scenes")
    return 1 if missing or unknown else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
