// The table of data sources: entry 0 is the control's own store, 1 to 4 are lent by others.
#include "grid/UGCtrl.h"

namespace {

bool IsLentEntry(int index) {
    return index >= 1 && index < kDataSourceSlots;
}

} // namespace

int CUGCtrl::AddDataSource(CUGDataSource *source) {
    for (int index = 0; index < kDataSourceSlots; ++index) {
        if (m_GI.m_sources[index] == nullptr) {
            m_GI.m_sources[index] = source;
            source->m_ctrl = this;
            return index;
        }
    }
    return -1;
}

CUGDataSource *CUGCtrl::GetDataSource(int index) {
    if (!IsLentEntry(index))
        return nullptr;
    return m_GI.m_sources[index] != nullptr ? m_GI.m_sources[index] : m_GI.m_sources[0];
}

int CUGCtrl::SetDefaultDataSource(int index) {
    if (!IsLentEntry(index) || m_GI.m_sources[index] == nullptr)
        return GRID_ERROR;
    if (index != m_GI.m_currentSource)
        LeaveEditedCell(kAnyColumn);
    m_GI.m_currentSource = index;
    return GRID_SUCCESS;
}

int CUGCtrl::RemoveDataSource(int index) {
    if (!IsLentEntry(index))
        return GRID_ERROR;
    if (index == m_GI.m_currentSource)
        LeaveEditedCell(kAnyColumn);
    if (m_GI.m_sources[index] != nullptr)
        m_GI.m_sources[index]->m_ctrl = nullptr;
    m_GI.m_sources[index] = nullptr;
    return GRID_SUCCESS;
}

int CUGCtrl::SetGridUsingDataSource(int index) {
    if (!IsLentEntry(index))
        return 0;
    CUGDataSource *source = m_GI.m_sources[index];
    if (source == nullptr)
        return 1;
    const int cols = source->GetNumCols();
    if (cols < 1)
        return 2;
    SetNumberCols(cols, 0);
    const long rows = source->GetNumRows();
    if (rows >= 0)
        SetNumberRows(rows, 0);
    CString name;
    for (int col = 0; col < cols; ++col) {
        source->GetColName(col, &name);
        CUGCell cell;
        cell.CopyFrom(m_GI.m_colHeadings[col].get());
        cell.SetText(name);
        SetCell(col, -1, &cell);
    }
    RedrawAll();
    return 0;
}
