// The table of cell types, and the best width of a column by what its cells need.
#include "grid/UGCtrl.h"

#include <algorithm>

namespace {

constexpr int kBestFitMarginPx = 6;

} // namespace

CUGCellType *CUGCtrl::GetCellType(int id) {
    if (id >= 1) {
        for (size_t i = 1; i < m_cellTypes.size(); ++i) {
            if (m_cellTypes[i] != nullptr && m_cellTypes[i]->GetID() == id)
                return m_cellTypes[i];
        }
    }
    // Whoever emptied the base type's entry left cells of every unknown id without a type: the control's own serves.
    return m_cellTypes[0] != nullptr ? m_cellTypes[0] : m_builtInTypes[0].get();
}

long CUGCtrl::AddCellType(CUGCellType *type) {
    auto empty = std::find(m_cellTypes.begin(), m_cellTypes.end(), nullptr);
    if (empty != m_cellTypes.end())
        *empty = type;
    else
        m_cellTypes.push_back(type);
    type->m_ctrl = this;
    type->m_GI = &m_GI;
    return type->GetID();
}

int CUGCtrl::RemoveCellType(long id) {
    for (CUGCellType *&type : m_cellTypes) {
        if (type != nullptr && type->GetID() == id) {
            type = nullptr;
            return GRID_SUCCESS;
        }
    }
    return GRID_ERROR;
}

int CUGCtrl::FitColumns(int firstCol, int lastCol, int rows, CellReader read) {
    lastCol = std::min(lastCol, GetNumberCols() - 1);
    firstCol = std::max(firstCol, 0);
    if (firstCol > lastCol)
        return GRID_ERROR;
    const long below = GetNumberRows() - 1 - GetTopRow();
    const long lastRow = GetTopRow() + std::min<long>(rows, below); // a huge count is all rows
    std::vector<long> widths(lastCol - firstCol + 1, 0L);
    CClientDC dc(&m_grid);
    CUGCell cell;
    for (long row = GetTopRow(); row <= lastRow; ++row) {
        for (int col = firstCol; col <= lastCol; ++col) {
            cell.ClearAll();
            (this->*read)(col, row, &cell);
            SIZE size{};
            GetCellType(cell.GetCellType())->GetBestSize(&dc, &size, &cell);
            widths[col - firstCol] = std::max<long>(widths[col - firstCol], size.cx);
        }
    }
    for (int col = firstCol; col <= lastCol; ++col)
        m_GI.SetColWidth(col, static_cast<int>(widths[col - firstCol]) + kBestFitMarginPx);
    AdjustAxes();
    RedrawAll();
    return GRID_SUCCESS;
}

int CUGCtrl::BestFit(int firstCol, int lastCol, int rows) {
    return FitColumns(firstCol, lastCol, rows, &CUGCtrl::GetCellRaw);
}
