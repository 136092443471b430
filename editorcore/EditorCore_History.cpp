// Undo in three tiers, tried in a fixed order: the edit box, the history of the view, the source's data.
#include "editorcore/EditorCore.h"
#include "editorcore/RecordsDlg.h"

namespace {

bool CanEditBoxUndo(CEdit *edit) {
    return edit != nullptr && edit->SendMessage(EM_CANUNDO, 0, 0) != 0;
}

} // namespace

void CEditorCore::Undo() {
    CEdit *edit = GetEditControl();
    if (CanEditBoxUndo(edit) && !m_bEditUndone) {
        edit->SendMessage(EM_UNDO, 0, 0);
        m_bEditUndone = true; // after the change of the text, which clears it
        UpdateTitle();
        return;
    }
    SettleEdit(); // the box's cell may show another field or record in a moment
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (m_pCommandList != nullptr && m_pCommandList->CanUndo()) {
        m_pCommandList->Undo(true);
        UpdateTitle();
    } else if (source != nullptr && source->CanUndo()) {
        source->Undo();
    }
    PostCommandsChanged();
}

void CEditorCore::Redo() {
    CEdit *edit = GetEditControl();
    if (CanEditBoxUndo(edit) && m_bEditUndone) {
        edit->SendMessage(EM_UNDO, 0, 0); // the edit control's undo toggles
        m_bEditUndone = false;
        UpdateTitle();
        return;
    }
    SettleEdit();
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (m_pCommandList != nullptr && m_pCommandList->CanRedo()) {
        m_pCommandList->Redo();
        UpdateTitle();
    } else if (source != nullptr && source->CanRedo()) {
        source->Redo();
    }
    PostCommandsChanged();
}

bool CEditorCore::CanUndo() {
    if (m_pCommandList != nullptr && m_pCommandList->CanUndo())
        return true;
    if (!m_bEditUndone && CanEditBoxUndo(GetEditControl()))
        return true;
    CUGDataSource *source = GetCurrentDataSrc(false);
    return source != nullptr && source->CanUndo();
}

bool CEditorCore::CanRedo() {
    if (GetEditControl() != nullptr && m_bEditUndone)
        return true;
    if (m_pCommandList != nullptr && m_pCommandList->CanRedo())
        return true;
    CUGDataSource *source = GetCurrentDataSrc(false);
    return source != nullptr && source->CanRedo();
}

void CEditorCore::EmptyUndoList() {
    if (m_pCommandList != nullptr)
        m_pCommandList->Empty();
}

bool CEditorCore::AbortOperation() {
    if (m_bAbortRequested) {
        m_bAbortRequested = false;
        return true;
    }
    const bool shown = GetSafeHwnd() != nullptr;
    const SourceWork looking(this, GetCurrentDataSrc(false)); // the look may let a close through
    return ms_pAppInterface->CheckAbort() != 0 || (shown && GetSafeHwnd() == nullptr);
}

int CEditorCore::DisplayNoUndoMessage() {
    if (m_pCommandList == nullptr || m_pCommandList->GetMaxCommands() < 1)
        return IDYES;
    CResourceScope resources;
    return static_cast<int>(CLargeUndoOptionDlg(this).DoModal());
}
