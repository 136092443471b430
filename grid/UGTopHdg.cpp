#include "grid/UGTopHdg.h"

#include "grid/UGCtrl.h"

IMPLEMENT_DYNAMIC(CUGTopHdg, CUGHeading)

CUGAxis &CUGTopHdg::Axis() const {
    return m_GI->m_cols;
}

RECT CUGTopHdg::Strip(long begin, long end) const {
    return {begin, 0, end, m_GI->m_topHeadingHeight};
}

int CUGTopHdg::DrawSection() const {
    return UG_SECTION_TOPHDG;
}

void CUGTopHdg::DrawOne(CDC *dc, long index, long begin, long end) {
    DrawHeadingCell(dc, static_cast<int>(index), -1, Strip(begin, end));
}

bool CUGTopHdg::CanSize(long index) {
    return m_ctrl->OnCanSizeCol(static_cast<int>(index)) != 0;
}

void CUGTopHdg::Sizing(long index, int *size) {
    m_ctrl->OnColSizing(static_cast<int>(index), size);
}

void CUGTopHdg::Sized(long index, int *size) {
    m_ctrl->OnColSized(static_cast<int>(index), size);
}

int CUGTopHdg::StoreSize(long index, int size) {
    return m_GI->SetColWidth(static_cast<int>(index), size);
}

void CUGTopHdg::LClicked(long index, int updn) {
    m_ctrl->OnTH_LClicked(static_cast<int>(index), updn);
}

void CUGTopHdg::RClicked(long index, int updn) {
    m_ctrl->OnTH_RClicked(static_cast<int>(index), updn);
}

void CUGTopHdg::DClicked(long index) {
    m_ctrl->OnTH_DClicked(static_cast<int>(index));
}

void CUGTopHdg::PopupMenu(long index, CPoint screen) {
    m_ctrl->ShowPopupMenu(static_cast<int>(index), -1, UG_SECTION_TOPHDG, screen);
}
