#include "grid/UGDropTarget.h"

#include "grid/UGCtrl.h"

#include <cstring>

IMPLEMENT_DYNAMIC(CUGDropTarget, COleDropTarget)

namespace {

// The text of the object; whoever offers it may have left out the closing zero.
bool ReadText(COleDataObject *data, CString *text) {
    const HGLOBAL memory = data->IsDataAvailable(CF_TEXT) ? data->GetGlobalData(CF_TEXT) : nullptr;
    if (memory == nullptr)
        return false;
    const auto *bytes = static_cast<const char *>(::GlobalLock(memory));
    if (bytes != nullptr)
        *text = CString(bytes, static_cast<int>(::strnlen(bytes, ::GlobalSize(memory))));
    ::GlobalUnlock(memory);
    ::GlobalFree(memory);
    return bytes != nullptr;
}

} // namespace

DROPEFFECT CUGDropTarget::OnDragEnter(CWnd *, COleDataObject *data, DWORD, CPoint) {
    return m_ctrl->OnDragEnter(data);
}

DROPEFFECT CUGDropTarget::OnDragOver(CWnd *, COleDataObject *data, DWORD, CPoint point) {
    int col;
    long row;
    m_ctrl->GetCellFromPoint(point.x, point.y, &col, &row);
    return m_ctrl->OnDragOver(data, col, row);
}

BOOL CUGDropTarget::OnDrop(CWnd *wnd, COleDataObject *data, DROPEFFECT, CPoint point) {
    int col;
    long row;
    m_ctrl->GetCellFromPoint(point.x, point.y, &col, &row);
    CString text;
    if (m_ctrl->OnDragDrop(data, col, row) == DROPEFFECT_NONE || !ReadText(data, &text))
        return FALSE;
    wnd->SetFocus(); // an open edit ends before its cell gets other text
    // Where the control refuses to go, the text has no place: it must not land in the old cell.
    return m_ctrl->GotoCell(col, row) == GRID_SUCCESS && m_ctrl->PasteText(text) == GRID_SUCCESS;
}
