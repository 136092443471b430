// CTransactionScope: one group of the source's undo for the duration of a block, also when the block is left by an
// exception. The editor knows the innermost one: an edit that is finished meanwhile is no part of it.
#pragma once

#include "editorcore/EditorCore.h"
#include "editorcore/MemoryGuard.h"
#include "editorcore/TableWatch.h"

#include <utility>

class CTransactionScope {
public:
    explicit CTransactionScope(CEditorCore *editor)
        : m_editor(editor), m_table(editor), m_outer(std::exchange(editor->m_pGroup, this)) {
        Begin();
    }
    ~CTransactionScope() {
        End();
        m_editor->m_pGroup = m_outer;
    }
    CTransactionScope(const CTransactionScope &) = delete;
    CTransactionScope &operator=(const CTransactionScope &) = delete;

    bool IsOpen() const { return m_open; }
    // Opens the next group after End. The source of another table, loaded meanwhile, gets none.
    void Begin() {
        if (!m_table.SameTable())
            return;
        m_editor->StartTransaction();
        m_open = true;
    }
    void End() {
        if (!std::exchange(m_open, false) || !m_table.SameTable())
            return;
        RunInMemory([this] { m_editor->EndTransaction(); }); // often on the way out of an exception
    }

private:
    CEditorCore *m_editor;
    CTableWatch m_table;
    CTransactionScope *m_outer;
    bool m_open = false;
};
