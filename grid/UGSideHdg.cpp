#include "grid/UGSideHdg.h"

#include "grid/UGCtrl.h"

IMPLEMENT_DYNAMIC(CUGSideHdg, CUGHeading)

bool CUGSideHdg::HasParts() const {
    return m_GI->m_cols.m_count > 0;
}

CUGAxis &CUGSideHdg::Axis() const {
    return m_GI->m_rows;
}

RECT CUGSideHdg::Strip(long begin, long end) const {
    return {0, begin, m_GI->m_sideHeadingWidth, end};
}

int CUGSideHdg::DrawSection() const {
    return UG_SECTION_SIDEHDG;
}

// From right to left: the locked columns with their own widths, then the row's heading in what is left.
void CUGSideHdg::DrawOne(CDC *dc, long index, long begin, long end) {
    RECT rect = Strip(begin, end);
    for (int col = m_GI->m_lockedCols - 1; col >= 0; --col) {
        rect.left = rect.right - m_GI->m_cols.SizeOf(col);
        DrawHeadingCell(dc, col, index, rect);
        rect.right = rect.left;
    }
    rect.left = 0;
    DrawHeadingCell(dc, -1, index, rect);
}

bool CUGSideHdg::CanSize(long index) {
    return m_ctrl->OnCanSizeRow(index) != 0;
}

void CUGSideHdg::Sizing(long index, int *size) {
    m_ctrl->OnRowSizing(index, size);
}

void CUGSideHdg::Sized(long index, int *size) {
    m_ctrl->OnRowSized(index, size);
}

int CUGSideHdg::StoreSize(long index, int size) {
    return m_GI->SetRowHeight(index, size);
}

void CUGSideHdg::LClicked(long index, int updn) {
    m_ctrl->OnSH_LClicked(index, updn);
}

void CUGSideHdg::RClicked(long index, int updn) {
    m_ctrl->OnSH_RClicked(index, updn);
}

void CUGSideHdg::DClicked(long index) {
    m_ctrl->OnSH_DClicked(index);
}

// The popup menu belongs to the cells and the column headings.
void CUGSideHdg::PopupMenu(long, CPoint) {}
