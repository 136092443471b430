// Reading and writing cells through their layers, and the default cells.
#include "grid/UGCtrl.h"

#include "grid/ValueScope.h"

namespace {

int CopyOut(CUGCell *destination, const CUGCell &source) {
    destination->ClearAll();
    return destination->CopyFrom(&source);
}

} // namespace

// The source that feeds a column, and the source's column: either may be set on the column default.
CUGDataSource *CUGCtrl::SourceOfColumn(int col, int *dataCol) {
    const CUGCell &defaults = *m_GI.m_colDefaults[col];
    *dataCol = defaults.GetColTranslation() >= 0 ? defaults.GetColTranslation() : col;
    const int index = defaults.GetDataSrcIndex();
    if (index < 0 || index >= kDataSourceSlots || m_GI.m_sources[index] == nullptr)
        return m_GI.CurrentSource();
    return m_GI.m_sources[index];
}

int CUGCtrl::GetCell(int col, long row, CUGCell *cell) {
    if (col >= m_GI.m_cols.m_count || row >= m_GI.m_rows.m_count)
        return GRID_ERROR;
    int result;
    if (row < 0) {
        cell->CopyFrom(&m_GI.m_headingDefault);
        result = cell->MergeFrom(col >= 0 ? m_GI.m_colHeadings[col].get() : &m_GI.m_cornerHeading);
    } else if (col >= 0) {
        cell->CopyFrom(m_GI.m_colDefaults[col].get());
        int dataCol;
        CUGDataSource *source = SourceOfColumn(col, &dataCol);
        result = source->GetCell(dataCol, row, cell);
    } else {
        cell->CopyFrom(&m_GI.m_headingDefault);
        result = m_GI.CurrentSource()->GetCell(col, row, cell);
    }
    OnGetCell(col, row, cell);
    return result;
}

// The current source's column for a grid column. Headings and columns without a translation keep their number.
int CUGCtrl::TranslatedColumn(int col) {
    if (!m_GI.m_colTranslationEnabled || col < 0)
        return col;
    const int translated = m_GI.m_colDefaults[col]->GetColTranslation();
    return translated >= 0 ? translated : col;
}

int CUGCtrl::GetCellRaw(int col, long row, CUGCell *cell) {
    cell->ClearAll();
    if (col >= m_GI.m_cols.m_count || row >= m_GI.m_rows.m_count)
        return GRID_ERROR;
    if (row < 0)
        return cell->CopyFrom(col >= 0 ? m_GI.m_colHeadings[col].get() : &m_GI.m_cornerHeading);
    return m_GI.CurrentSource()->GetCell(TranslatedColumn(col), row, cell);
}

int CUGCtrl::SetCell(int col, long row, CUGCell *cell) {
    const int allowed = AskToSetCell(col, row, cell);
    return allowed == GRID_SUCCESS ? StoreCell(col, row, cell) : allowed;
}

// The notification may close the table or show another field in the column: the cell was meant for the one before.
int CUGCtrl::AskToSetCell(int col, long row, CUGCell *cell) {
    const auto exists = [=, this] { return col < m_GI.m_cols.m_count && row < m_GI.m_rows.m_count; };
    if (!exists())
        return GRID_ERROR;
    const CUGDataSource *source = m_GI.CurrentSource();
    const int dataCol = TranslatedColumn(col);
    if (!OnSetCell(col, row, cell))
        return GRID_ERROR;
    const bool same = exists() && (row < 0 || (m_GI.CurrentSource() == source && TranslatedColumn(col) == dataCol));
    return same ? GRID_SUCCESS : GRID_ERROR;
}

int CUGCtrl::StoreCell(int col, long row, CUGCell *cell) {
    if (row < 0) {
        CUGCell &heading = col >= 0 ? *m_GI.m_colHeadings[col] : m_GI.m_cornerHeading;
        return heading.CopyFrom(cell);
    }
    return m_GI.CurrentSource()->SetCell(TranslatedColumn(col), row, cell);
}

int CUGCtrl::QuickSetText(int col, long row, const char *text) {
    CUGCell another; // for a notification that sets a further cell
    CUGCell &cell = m_scratchInUse ? another : m_scratch;
    const CUGValueScope<bool> inUse(&m_scratchInUse, true);
    GetCellRaw(col, row, &cell);
    cell.SetText(text);
    return SetCell(col, row, &cell);
}

int CUGCtrl::SetColDefault(int col, CUGCell *cell) {
    if (!m_GI.m_cols.Contains(col))
        return GRID_ERROR;
    const CUGCell &before = *m_GI.m_colDefaults[col];
    if (before.GetColTranslation() != cell->GetColTranslation() || before.GetDataSrcIndex() != cell->GetDataSrcIndex())
        LeaveEditedCell(col);
    return m_GI.m_cols.Contains(col) ? m_GI.m_colDefaults[col]->CopyFrom(cell) : GRID_ERROR;
}

int CUGCtrl::GetColDefault(int col, CUGCell *cell) {
    return m_GI.m_cols.Contains(col) ? CopyOut(cell, *m_GI.m_colDefaults[col]) : GRID_ERROR;
}

int CUGCtrl::SetGridDefault(CUGCell *cell) {
    return m_GI.m_gridDefault.CopyFrom(cell);
}

int CUGCtrl::GetGridDefault(CUGCell *cell) {
    return CopyOut(cell, m_GI.m_gridDefault);
}

int CUGCtrl::SetHeadingDefault(CUGCell *cell) {
    return m_GI.m_headingDefault.CopyFrom(cell);
}

int CUGCtrl::GetHeadingDefault(CUGCell *cell) {
    return CopyOut(cell, m_GI.m_headingDefault);
}

int CUGCtrl::GetDataColNumber(int col) {
    if (!m_GI.m_cols.Contains(col))
        return -1;
    const int translated = m_GI.m_colDefaults[col]->GetColTranslation();
    return translated >= 0 ? translated : col;
}

int CUGCtrl::SetColTranslation(int col, int dataCol) {
    if (GetDataColNumber(col) != dataCol)
        LeaveEditedCell(col);
    if (!m_GI.m_cols.Contains(col))
        return GRID_ERROR;
    return m_GI.m_colDefaults[col]->SetColTranslation(static_cast<short>(dataCol));
}
