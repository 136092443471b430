#include "grid/UGScroll.h"

#include "grid/UGCtrl.h"

IMPLEMENT_DYNAMIC(CUGScroll, CScrollBar)
IMPLEMENT_DYNAMIC(CUGVScroll, CUGScroll)
IMPLEMENT_DYNAMIC(CUGHScroll, CUGScroll)

namespace {

constexpr int kSpringMode = 2;    // the thumb returns to its middle
constexpr int kSpringMiddle = 1;
constexpr int kHintMinimumPx = 80;

} // namespace

void CUGScroll::UpdateRange() {
    if (GetSafeHwnd() == nullptr)
        return;
    const UGScrollRange range = ComputeRange();
    const bool spring = m_GI->m_vScrollMode == kSpringMode && &Axis() == &m_GI->m_rows;
    const int position = spring ? kSpringMiddle : range.BarPosition(Axis().m_leading);
    if (range.m_max == m_lastMax && range.m_page == m_lastPage && position == m_lastPosition) {
        m_range = range;
        return;
    }
    m_range = range;
    m_lastMax = range.m_max;
    m_lastPage = range.m_page;
    m_lastPosition = position;
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    info.nMax = range.m_max;
    info.nPage = range.m_page;
    info.nPos = position;
    SetScrollInfo(&info, TRUE);
}

int CUGScroll::TrackPosition() {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    GetScrollInfo(&info, SIF_TRACKPOS);
    return info.nTrackPos;
}

void CUGScroll::Track(int position) {
    if (WantsHint())
        ShowHint(m_range.AxisPosition(position), m_range.Percent(position, Axis().m_maxLeading));
    if (IsLive())
        SetLeading(m_range.AxisPosition(position));
}

void CUGScroll::ShowHint(long index, int percent) {
    CPoint pointer;
    ::GetCursorPos(&pointer);
    m_ctrl->ScreenToClient(&pointer);
    CUGHint &hint = m_ctrl->m_hint;
    hint.SetAlignment(HintAlignment());
    if (!AskHint(index, percent, &hint))
        return;
    CRect client;
    m_ctrl->GetClientRect(&client);
    const CPoint at = HintPoint(client, pointer);
    hint.MoveHint(at.x, at.y, kHintMinimumPx);
    hint.Show();
}

void CUGScroll::HandleScroll(UINT code) {
    m_ctrl->m_grid.SetFocus();
    switch (code) {
    case SB_LINEUP: Move(UG_MOVE_BACK); break;
    case SB_LINEDOWN: Move(UG_MOVE_FORWARD); break;
    case SB_PAGEUP: Move(UG_MOVE_PAGE_BACK); break;
    case SB_PAGEDOWN: Move(UG_MOVE_PAGE_FORWARD); break;
    case SB_TOP: Move(UG_MOVE_FIRST); break;
    case SB_BOTTOM: Move(UG_MOVE_LAST); break;
    case SB_THUMBTRACK: Track(TrackPosition()); break;
    case SB_THUMBPOSITION:
        m_ctrl->m_hint.Hide();
        SetLeading(m_range.AxisPosition(TrackPosition()));
        break;
    case SB_ENDSCROLL: m_ctrl->m_hint.Hide(); break;
    default: break;
    }
    m_lastPosition = -1; // the drag moved the thumb: put it where the view is
    UpdateRange();
}

CUGAxis &CUGVScroll::Axis() const {
    return m_GI->m_rows;
}

UGScrollRange CUGVScroll::ComputeRange() const {
    return UGScrollRange::Vertical(m_GI->m_rows.m_maxLeading, m_GI->m_rows.m_extent, m_GI->m_rows.m_defaultSize,
                                   m_GI->m_vScrollMode == kSpringMode);
}

int CUGVScroll::Move(int how) {
    return m_ctrl->MoveTopRow(how);
}

int CUGVScroll::SetLeading(long index) {
    return m_GI->m_vScrollMode == kSpringMode ? GRID_SUCCESS : m_ctrl->SetTopRow(index);
}

bool CUGVScroll::IsLive() const {
    return m_GI->m_vScrollMode == 1;
}

bool CUGVScroll::WantsHint() const {
    return m_GI->m_vScrollHint != 0;
}

short CUGVScroll::HintAlignment() const {
    return UG_ALIGN_RIGHT | UG_ALIGN_VCENTER;
}

int CUGVScroll::AskHint(long index, int percent, CUGHint *hint) {
    return m_ctrl->OnVScrollHint(index, percent, hint);
}

CPoint CUGVScroll::HintPoint(const CRect &client, CPoint pointer) const {
    return CPoint(client.right - m_GI->m_vScrollWidth - 1, pointer.y);
}

CUGAxis &CUGHScroll::Axis() const {
    return m_GI->m_cols;
}

UGScrollRange CUGHScroll::ComputeRange() const {
    return UGScrollRange::Horizontal(m_GI->m_cols.m_maxLeading, m_GI->m_cols.m_extent,
                                     m_GI->m_cols.m_defaultSize);
}

int CUGHScroll::Move(int how) {
    return m_ctrl->MoveLeftCol(how);
}

int CUGHScroll::SetLeading(long index) {
    return m_ctrl->SetLeftCol(static_cast<int>(index));
}

bool CUGHScroll::IsLive() const {
    return m_GI->m_hScrollMode == 1;
}

bool CUGHScroll::WantsHint() const {
    return m_GI->m_hScrollHint != 0;
}

short CUGHScroll::HintAlignment() const {
    return UG_ALIGN_HCENTER | UG_ALIGN_BOTTOM;
}

int CUGHScroll::AskHint(long index, int percent, CUGHint *hint) {
    return m_ctrl->OnHScrollHint(static_cast<int>(index), percent, hint);
}

CPoint CUGHScroll::HintPoint(const CRect &client, CPoint pointer) const {
    return CPoint(pointer.x, client.bottom - m_GI->m_hScrollHeight - 1);
}
