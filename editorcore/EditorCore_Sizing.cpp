// Sizing by mouse: the layout follows what the grid has already done, and the history keeps both sizes.
#include "editorcore/EditorCore.h"
#include "editorcore/FrozenWidthScope.h"
#include "editorcore/MemoryGuard.h"

#include <algorithm>

int CEditorCore::OnCanSizeCol(int col) {
    GetColWidth(col, &m_nSizeBefore);
    return 1;
}

int CEditorCore::OnCanSizeRow(long row) {
    GetRowHeight(row, &m_nSizeBefore);
    return 1;
}

// The corner sizes one heading or both, and ends with one notification for both: each query notes both sizes, so
// that the heading that is not dragged is not undone to a stale one.
int CEditorCore::OnCanSizeTopHdg() {
    m_nHeadingHeightBefore = GetTH_Height();
    m_nSizeBefore = GetSH_Width();
    return 1;
}

int CEditorCore::OnCanSizeSideHdg() {
    return OnCanSizeTopHdg();
}

// Headings cannot collapse: there would be nothing left to pull open.
int CEditorCore::OnTopHdgSizing(int *size) {
    *size = std::max(*size, 1);
    return 1;
}

int CEditorCore::OnSideHdgSizing(int *size) {
    return OnTopHdgSizing(size);
}

// Rows of no height would take the whole table out of sight, all being of one height.
void CEditorCore::OnRowSizing(long, int *height) {
    *height = std::max(*height, 1);
}

// Column -1 is the corner: a heading was sized.
void CEditorCore::OnColSized(int col, int *width) {
    if (m_pLayout == nullptr)
        return;
    if (col != -1)
        OnChangeColWidth(col, m_nSizeBefore, *width);
    else
        OnResizeHeadings(m_nSizeBefore, GetSH_Width(), m_nHeadingHeightBefore, GetTH_Height());
}

void CEditorCore::OnRowSized(long row, int *height) {
    if (m_pLayout != nullptr)
        OnChangeRowHeight(row, m_nSizeBefore, *height);
}

int CEditorCore::OnTopHdgSized(int *) {
    int width = -1;
    OnColSized(-1, &width);
    return 1;
}

// The change stands already: without room for its command only the undo entry is lost.
template <class Make> void CEditorCore::RecordSizing(Make make) {
    if (m_pCommandList->GetMaxCommands() < 1)
        return;
    RunInMemory([&] { KeepCommand(make()); });
}

void CEditorCore::OnChangeColWidth(int col, int oldWidth, int newWidth) {
    CEditCommandGuard guard(this);
    m_pLayout->SetColWidth(col, newWidth);
    RecordSizing([&] {
        return std::make_unique<SizingCommand>(col, oldWidth, newWidth, this, &CEditorCore::ExecChangeColWidth,
                                               &CEditorCore::UnExecChangeColWidth);
    });
}

void CEditorCore::OnChangeRowHeight(long row, int oldHeight, int newHeight) {
    CEditCommandGuard guard(this);
    m_pLayout->SetRowHeight(newHeight);
    RecordSizing([&] {
        return std::make_unique<SizingCommand>(static_cast<int>(row), oldHeight, newHeight, this,
                                               &CEditorCore::ExecChangeRowHeight,
                                               &CEditorCore::UnExecChangeRowHeight);
    });
}

void CEditorCore::OnResizeHeadings(int oldSide, int newSide, int oldTop, int newTop) {
    CEditCommandGuard guard(this);
    m_pLayout->SetTopHeadingHeight(newTop);
    m_pLayout->SetSideHeadingWidth(newSide);
    RecordSizing([&] {
        auto command = std::make_unique<HeadingsCommand>(oldSide, newSide, oldTop, newTop, this,
                                                         &CEditorCore::ExecResizeHeadings,
                                                         &CEditorCore::UnExecResizeHeadings);
        command->m_nFrozenSpan = FrozenSpan();
        return command;
    });
}

void CEditorCore::OnChangeMultColWidths(int startCol, int, const CArray<int, int> &oldWidths,
                                        const CArray<int, int> &newWidths) {
    CEditCommandGuard guard(this);
    for (int i = 0; i < newWidths.GetSize(); ++i)
        m_pLayout->SetColWidth(startCol + i, newWidths.GetAt(i));
    RecordSizing([&] {
        auto command = std::make_unique<MultiSizingCommand>(startCol, GetCurrentCol(), this,
                                                            &CEditorCore::ExecChangeMultColWidths,
                                                            &CEditorCore::UnExecChangeMultColWidths);
        command->m_OldWidths.Copy(oldWidths);
        command->m_NewWidths.Copy(newWidths);
        return command;
    });
}

// --- Frozen columns, which the side heading shows as well

// Pixels of the frozen columns.
int CEditorCore::FrozenSpan() {
    int span = 0;
    for (int col = 0; col < m_GI.m_lockedCols; ++col) {
        int width = 0;
        GetColWidth(col, &width);
        span += width;
    }
    return span;
}

void CEditorCore::LockColumns(int count) {
    m_nColsToLock = count;
    SetLockedColumns(std::min(count, GetNumberCols()));
}

// The side heading with `ownWidth` pixels of its own in front of the frozen columns as they are now.
void CEditorCore::FitSideHeading(int ownWidth) {
    if (m_GI.m_lockedCols != std::min(m_nColsToLock, GetNumberCols()))
        LockColumns(m_nColsToLock);
    const int width = std::max(ownWidth + FrozenSpan(), 0);
    if (width == GetSH_Width())
        return;
    SetSH_Width(width);
    if (m_pLayout != nullptr)
        m_pLayout->SetSideHeadingWidth(width);
}

// --- What the commands of the history do

void CEditorCore::SizeColumn(int col, int width) {
    CEditCommandGuard guard(this);
    const CFrozenWidthScope keepingStep(this);
    SetColWidth(col, width);
    m_pLayout->SetColWidth(col, width);
}

bool CEditorCore::ExecChangeColWidth(SizingCommand *command) {
    SizeColumn(command->m_nIndex, command->m_nNewSize);
    return true;
}

bool CEditorCore::UnExecChangeColWidth(SizingCommand *command) {
    SizeColumn(command->m_nIndex, command->m_nOldSize);
    return true;
}

bool CEditorCore::ExecChangeRowHeight(SizingCommand *command) {
    CEditCommandGuard guard(this);
    SetRowHeight(command->m_nIndex, command->m_nNewSize);
    m_pLayout->SetRowHeight(command->m_nNewSize);
    return true;
}

bool CEditorCore::UnExecChangeRowHeight(SizingCommand *command) {
    CEditCommandGuard guard(this);
    SetRowHeight(command->m_nIndex, command->m_nOldSize);
    m_pLayout->SetRowHeight(command->m_nOldSize);
    return true;
}

// Other columns may be frozen than when the widths were taken.
void CEditorCore::SetHeadings(const HeadingsCommand &command, int sideWidth, int topHeight) {
    CEditCommandGuard guard(this);
    sideWidth = std::max(sideWidth + FrozenSpan() - command.m_nFrozenSpan, 0);
    SetSH_Width(sideWidth);
    SetTH_Height(topHeight);
    m_pLayout->SetTopHeadingHeight(topHeight);
    m_pLayout->SetSideHeadingWidth(sideWidth);
}

bool CEditorCore::ExecResizeHeadings(HeadingsCommand *command) {
    SetHeadings(*command, command->m_nNewSideWidth, command->m_nNewTopHeight);
    return true;
}

bool CEditorCore::UnExecResizeHeadings(HeadingsCommand *command) {
    SetHeadings(*command, command->m_nOldSideWidth, command->m_nOldTopHeight);
    return true;
}

void CEditorCore::SetColWidths(const MultiSizingCommand &command, const CArray<int, int> &widths) {
    const CFrozenWidthScope keepingStep(this);
    for (int i = 0; i < widths.GetSize(); ++i) {
        SetColWidth(command.m_nStartCol + i, widths.GetAt(i));
        m_pLayout->SetColWidth(command.m_nStartCol + i, widths.GetAt(i));
    }
}

// The columns are selected again with their widths: the user sees what changed.
bool CEditorCore::ExecChangeMultColWidths(MultiSizingCommand *command) {
    CEditCommandGuard guard(this);
    CancelSelectionMode(true);
    GotoCell(command->m_nCurrentCol, 0);
    const int last = command->m_nStartCol + command->m_NewWidths.GetSize() - 1;
    ClearSelections();
    SelectRange(command->m_nStartCol, 0, last, LastRowIndex());
    m_nSelectAnchorCol = command->m_nStartCol;
    m_nHeadingSelectMode = 1;
    SetColWidths(*command, command->m_NewWidths);
    return true;
}

bool CEditorCore::UnExecChangeMultColWidths(MultiSizingCommand *command) {
    CEditCommandGuard guard(this);
    CancelSelectionMode(true);
    GotoCell(command->m_nCurrentCol, 0);
    SelectColumns(command->m_nStartCol, command->m_nStartCol + command->m_OldWidths.GetSize() - 1);
    m_nSelectAnchorCol = command->m_nStartCol;
    SetColWidths(*command, command->m_OldWidths);
    return true;
}
