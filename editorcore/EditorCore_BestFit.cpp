// Widths that fit what the columns hold. Only the first rows are measured: fitting must stay quick on very long
// tables.
#include "editorcore/EditorCore.h"
#include "editorcore/FrozenWidthScope.h"
#include "grid/PaintingScope.h"

#include <algorithm>

namespace {

constexpr long kMeasuredRows = 100;

} // namespace

int CEditorCore::HeadingMinimumWidth(int col, int maxCharWidth) {
    CString heading;
    GetColName(col, heading);
    return std::max(heading.GetLength(), 1) * maxCharWidth;
}

// The widest character of the column headings in pixels, 0 when there is no device to ask.
int CEditorCore::HeadingCharWidth() {
    TEXTMETRICA metrics{};
    if (CDC *dc = GetTopHeadingDC()) {
        ::GetTextMetricsA(dc->GetSafeHdc(), &metrics);
        ReleaseTopHeadingDC(dc);
    }
    return metrics.tmMaxCharWidth;
}

bool CEditorCore::IsValidatingColumn(int col) {
    return IsValidatingCell(GetColumnCellType(col));
}

// The column's width after a fit, with room for the ellipsis button where the cells have one.
int CEditorCore::FittedWidth(int col) {
    int width = 0;
    GetColWidth(col, &width);
    return IsValidatingColumn(col) ? width + ::GetSystemMetrics(SM_CXVSCROLL) : width;
}

bool CEditorCore::FitOneColumn(int col, int rows, int charWidth) {
    if (BestFit(col, col, rows) != GRID_SUCCESS)
        return false;
    SetColWidth(col, std::max(FittedWidth(col), HeadingMinimumWidth(col, charWidth)));
    return true;
}

// Columns of the selection after the clicked one keep their widths, unless their heading needs more.
bool CEditorCore::FitColumnsOfSelection(int first, int last, int col, int rows, int charWidth) {
    if (BestFit(first, col, rows) != GRID_SUCCESS)
        return false;
    for (int i = first; i <= last; ++i) {
        int width = 0;
        GetColWidth(i, &width);
        if (i <= col)
            width = FittedWidth(i);
        SetColWidth(i, charWidth > 0 ? std::max(width, HeadingMinimumWidth(i, charWidth)) : width);
    }
    return true;
}

void CEditorCore::SetGridInitColWidths() {
    const int charWidth = HeadingCharWidth();
    const int rows = static_cast<int>(std::min(GetNumberRows(), kMeasuredRows));
    for (int col = 0; col < GetNumberCols(); ++col) {
        if (!FitOneColumn(col, rows, charWidth))
            return;
    }
}

void CEditorCore::OnTH_DClicked(int col) {
    int first, last;
    long top, bottom;
    if (col < 0 || m_pLayout == nullptr || GetCurrentSelection(&first, &top, &last, &bottom) != GRID_SUCCESS)
        return;
    last = std::min(last, GetNumberCols() - 1);
    if (first > last)
        return;
    const int rows = static_cast<int>(std::min(GetNumberRows(), kMeasuredRows));
    const int charWidth = HeadingCharWidth();
    const int fitted = first == last ? col : first;
    CArray<int, int> oldWidths, newWidths;
    oldWidths.SetSize(last - first + 1);
    newWidths.SetSize(last - first + 1);
    const auto collect = [&](CArray<int, int> &widths) {
        for (int i = 0; i < widths.GetSize(); ++i)
            GetColWidth(fitted + i, &widths[i]);
    };
    collect(oldWidths);
    {
        CPaintingScope quiet(this);
        const CFrozenWidthScope keepingStep(this);
        if (first == last ? !FitOneColumn(col, rows, charWidth)
                          : !FitColumnsOfSelection(first, last, col, rows, charWidth))
            return;
    }
    CRect client;
    GetClientRect(&client);
    PostMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height())); // the bars follow
    collect(newWidths);
    if (first == last)
        OnChangeColWidth(col, oldWidths.GetAt(0), newWidths.GetAt(0));
    else
        OnChangeMultColWidths(first, last, oldWidths, newWidths);
}
