// CTableWatch: what is still as it was when the watch began. While a box, a dialog or a prompt of the host is up another
// table may be loaded, columns may show other fields and records change places; the answer was for what was there before.
#pragma once

#include "editorcore/EditorCore.h"

class CTableWatch {
public:
    explicit CTableWatch(const CEditorCore *editor) : m_editor(editor), m_begun(editor->m_TableState) {}
    bool SameTable() const { return Now().tables == m_begun.tables; }
    bool SameColumns() const { return SameTable() && Now().columns == m_begun.columns; }
    // Table, columns and records. Records that were appended leave the others where they are.
    bool Holds() const { return SameColumns() && Now().records == m_begun.records; }

private:
    const CEditorCore::TableState &Now() const { return m_editor->m_TableState; }

    const CEditorCore *m_editor; // borrowed
    CEditorCore::TableState m_begun;
};
