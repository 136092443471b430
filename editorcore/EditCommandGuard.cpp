#include "editorcore/EditorCore.h"

int CEditCommandGuard::ms_nDepth = 0;

CEditCommandGuard::CEditCommandGuard(CEditorCore *editor) : m_pEditor(editor) {
    ++ms_nDepth;
    m_pEditor->m_bInCommand = true;
}

CEditCommandGuard::~CEditCommandGuard() {
    if (--ms_nDepth <= 0)
        m_pEditor->m_bInCommand = false;
}
