#include "LayoutFuzz.h"

#include "../support/MemoryFile.h"
#include "editorcore/EditorLayout.h"

#include <cstdlib>

namespace {

constexpr int kFields = 6; // of the table that the layout is held against

// Reads the file; false when it ends in the middle. Nothing else may be thrown.
bool Load(CEditorLayout &layout, const std::string &bytes) {
    MemoryFile file(bytes);
    CArchive archive(&file, CArchive::load);
    try {
        layout.Serialize(archive);
        return true;
    } catch (CArchiveException *e) {
        if (e->m_cause != CArchiveException::endOfFile)
            std::abort();
        e->Delete();
        return false;
    }
}

// What the editor does with a layout before and while the table is looked at.
void Use(CEditorLayout &layout) {
    layout.SyncToFieldCount(kFields);
    layout.CompletePositions(kFields);
    CUIntArray shown;
    layout.GetDisplayCols(shown);
    layout.SetColWidth(0, 50);
    layout.RemoveDisplayCol(0);
    layout.InsertDisplayCol(layout.CountDisplayCols(), 1);
    shown.SetSize(3);
    for (int i = 0; i < 3; ++i)
        shown.SetAt(i, static_cast<UINT>(2 * i));
    layout.SetDisplayOrder(shown, kFields);
    CUIntArray positions;
    layout.GetColPositions(positions);
    if (positions.GetSize() != kFields || layout.CountDisplayCols() != 3)
        std::abort();
    layout.AttachColourSet("Name", CPoint(1, 2));
    if (layout.GetColourSet("Name").x != 1 || layout.GetColourSet("Name").y != 2)
        std::abort();
}

std::string Store(CEditorLayout &layout) {
    MemoryFile file;
    CArchive archive(&file, CArchive::store);
    layout.Serialize(archive);
    archive.Close();
    return file.m_bytes;
}

} // namespace

void ExerciseLayout(const std::uint8_t *bytes, std::size_t size) {
    CEditorLayout layout(nullptr);
    Load(layout, std::string(reinterpret_cast<const char *>(bytes), size));
    Use(layout);
    const std::string written = Store(layout);
    CEditorLayout again(nullptr);
    Load(again, written); // of several tables the reader may stop early; what it has is whole
    Use(again);
}
