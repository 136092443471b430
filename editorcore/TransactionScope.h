// CTransactionScope: one group of the source's undo for the duration of a block, also when the block is left by an
// exception.
#pragma once

#include "editorcore/EditorCore.h"
#include "editorcore/MemoryGuard.h"

class CTransactionScope {
public:
    explicit CTransactionScope(CEditorCore *editor) : m_editor(editor) { Begin(); }
    ~CTransactionScope() { End(); }
    CTransactionScope(const CTransactionScope &) = delete;
    CTransactionScope &operator=(const CTransactionScope &) = delete;

    bool IsOpen() const { return m_open; }
    // Opens the next group after End.
    void Begin() {
        m_editor->StartTransaction();
        m_open = true;
    }
    void End() {
        if (!m_open)
            return;
        m_open = false;
        RunInMemory([this] { m_editor->EndTransaction(); }); // often on the way out of an exception
    }

private:
    CEditorCore *m_editor;
    bool m_open = false;
};
