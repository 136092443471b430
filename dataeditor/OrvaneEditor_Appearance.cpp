// Grid lines, justification, frozen columns and the colour sets that the layout keeps for the host.
#include "dataeditor/DataEditorDlgs.h"
#include "dataeditor/OrvaneEditor.h"

#include "editorcore/TableWatch.h"

#include <algorithm>

namespace {

constexpr int kHorizontalLines = 8, kVerticalLines = 4; // border bits
constexpr int kLeft = 1, kRight = 2;                    // alignment bits
constexpr int kTop = 8, kBottom = 16, kMiddle = 32;

} // namespace

// --- Lines

void COrvaneEditor::UpdateBorders() {
    m_nBorderStyle = (m_bShowHorizLines ? kHorizontalLines : 0) + (m_bShowVertLines ? kVerticalLines : 0);
    RedrawAll();
}

// The choice holds for editors to come.
void COrvaneEditor::StoreLines() {
    ms_pAppInterface->GetEditorOptions()->SetGridLines(m_bShowHorizLines, m_bShowVertLines);
    UpdateBorders();
}

void COrvaneEditor::SetIsShowingHorizLines(bool show) {
    m_bShowHorizLines = show;
    RunCommand([this] { StoreLines(); });
}

void COrvaneEditor::SetIsShowingVerticleLines(bool show) {
    m_bShowVertLines = show;
    RunCommand([this] { StoreLines(); });
}

// --- Alignment

void COrvaneEditor::SetTextAlignment() {
    RunCommand([this] {
        CVEditorOptions *options = ms_pAppInterface->GetEditorOptions();
        JustifyFields('n', options->IsRightJustifyingNumbers() ? 'r' : 'l');
        JustifyFields('c', options->IsRightJustifyingText() ? 'r' : 'l');
    });
}

void COrvaneEditor::JustifyFields(char which, char side) {
    if (GetCurrentDataSrc(true) == nullptr)
        return;
    const int set = side == 'r' ? kRight : kLeft;
    const int cleared = side == 'r' ? kLeft : kRight;
    CUGCell cell;
    for (int col = 0; col < GetNumberCols(); ++col) {
        const bool numeric = IsDataSrcFldTypeNumeric(GetDataColNumber(col));
        if (which != 'a' && (which != 'c' || numeric) && (which != 'n' || !numeric))
            continue;
        GetColDefault(col, &cell);
        const int alignment = std::max<int>(cell.GetAlignment(), 0);
        cell.SetAlignment(static_cast<short>((alignment & ~cleared) | set));
        SetColDefault(col, &cell);
    }
}

// The whole mask is turned over where any bit of it is set, so an alignment of top asked for bottom comes out as
// bottom and middle: files are shown so, and hosts count on it. The columns get the grid default's horizontal bits
// along with it.
void COrvaneEditor::VerticallyAlignGridField(char where) {
    const int flag = where == 'b' ? kBottom : where == 'm' ? kMiddle : kTop;
    const int mask = (kTop | kBottom | kMiddle) & ~flag;
    CUGCell cell;
    if (GetGridDefault(&cell) != GRID_SUCCESS)
        return;
    int alignment = cell.GetAlignment();
    if (alignment & mask)
        alignment ^= mask;
    alignment |= flag;
    CUGCell column;
    for (int col = 0; col < GetNumberCols(); ++col) {
        GetColDefault(col, &column);
        column.SetAlignment(static_cast<short>(alignment));
        SetColDefault(col, &column);
    }
}

// --- Frozen columns

// A frozen column stands in the side heading too, which grows with it.
void COrvaneEditor::OnColSized(int col, int *width) {
    if (col >= 0 && col < m_nLockedCols && m_pLayout != nullptr) {
        CUIntArray widths;
        m_pLayout->GetColWidths(widths);
        const int field = GetDataSrcField(col);
        if (field >= 0 && field < widths.GetSize()) {
            const int sideWidth = GetSH_Width() + *width - static_cast<int>(widths.GetAt(field));
            if (sideWidth >= 0) {
                SetSH_Width(sideWidth);
                m_pLayout->SetSideHeadingWidth(sideWidth);
            }
        }
    }
    CEditorCore::OnColSized(col, width);
}

int COrvaneEditor::SpanOfColumns(int first, int last) {
    int span = 0;
    for (int col = first; col < last; ++col) {
        int width = 0;
        GetColWidth(col, &width);
        span += width;
    }
    return span;
}

void COrvaneEditor::OnLockColumns() {
    RunCommand([&] {
        SettleEdit(); // before the dialog takes the focus
        CResourceScope resources;
        CLockColumns dialog(m_nLockedCols, GetNumberCols(), this);
        const CTableWatch watch(this);
        const INT_PTR answer = dialog.DoModal();
        if (answer == -1 && GetSafeHwnd() != nullptr) // else it went with the editor's window
            AfxThrowMemoryException(); // no window for the question
        if (answer == IDOK && m_pLayout != nullptr && watch.SameTable())
            FreezeColumns(std::clamp(dialog.m_nLockedCols, 0, std::max(GetNumberCols(), 0)));
    });
}

void COrvaneEditor::FreezeColumns(int wanted) {
    const int delta = SpanOfColumns(m_nLockedCols, wanted) - SpanOfColumns(wanted, m_nLockedCols);
    const int sideWidth = std::max(GetSH_Width() + delta, 0);
    SetSH_Width(sideWidth);
    LockColumns(wanted);
    m_pLayout->SetSideHeadingWidth(sideWidth);
    m_pLayout->SetFrozenCols(wanted);
    m_nLockedCols = wanted;
}

// --- Colour sets, kept for the host

void COrvaneEditor::AttachColourSet(CString field, CPoint set) {
    RunCommand([&] { m_pLayout->AttachColourSet(field, set); });
}

void COrvaneEditor::DetachColourSet(CString field) {
    m_pLayout->DetachColourSet(field);
}

CPoint COrvaneEditor::GetColourSet(CString field) {
    return m_pLayout->GetColourSet(field);
}

void COrvaneEditor::GetColourSets(CArray<CPoint, CPoint> *sets) {
    RunCommand([&] {
        CUGDataSource *source = GetCurrentDataSrc(false);
        if (source == nullptr)
            return;
        CArray<CPoint, CPoint &> byField;
        m_pLayout->GetColourSetsByField(source, byField);
        sets->SetSize(byField.GetSize());
        for (int field = 0; field < byField.GetSize(); ++field)
            sets->SetAt(field, byField.GetAt(field));
    });
}
