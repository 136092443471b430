#include "afxext.h"

IMPLEMENT_DYNAMIC(CControlBar, CWnd)
IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
ON_WM_SIZE()
ON_MESSAGE(WM_SETTEXT, &CStatusBar::OnSetText)
ON_MESSAGE(WM_GETTEXT, &CStatusBar::OnGetText)
ON_MESSAGE(WM_GETTEXTLENGTH, &CStatusBar::OnGetTextLength)
END_MESSAGE_MAP()

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam) {
    if (!(GetStyle() & WS_VISIBLE))
        return 0;
    AFX_SIZEPARENTPARAMS *layout = reinterpret_cast<AFX_SIZEPARENTPARAMS *>(lParam);
    const bool horizontal = (m_dwStyle & (CBRS_TOP | CBRS_BOTTOM)) != 0;
    const CSize size = CalcFixedLayout(TRUE, horizontal);
    CRect bar(layout->rect);
    if (m_dwStyle & CBRS_TOP)
        layout->rect.top = bar.bottom = std::min(bar.top + size.cy, bar.bottom);
    else if (m_dwStyle & CBRS_BOTTOM)
        layout->rect.bottom = bar.top = std::max(bar.bottom - size.cy, bar.top);
    else if (m_dwStyle & CBRS_LEFT)
        layout->rect.left = bar.right = std::min(bar.left + size.cx, bar.right);
    else if (m_dwStyle & CBRS_RIGHT)
        layout->rect.right = bar.left = std::max(bar.right - size.cx, bar.left);
    else
        return 0;
    SetWindowPos(nullptr, bar.left, bar.top, bar.Width(), bar.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM disableIfNoHandler, LPARAM) {
    CFrameWnd *target = GetParentFrame();
    if (target && (GetStyle() & WS_VISIBLE))
        OnUpdateCmdUI(target, static_cast<BOOL>(disableIfNoHandler));
    return 0;
}

namespace {

// A pane as a command's place.
class PaneCmdUI : public CCmdUI {
public:
    explicit PaneCmdUI(CStatusBar *bar) { m_pOther = bar; }
    void Enable(BOOL on) override {
        m_bEnableChanged = TRUE;
        SetStyle(SBPS_DISABLED, !on);
    }
    void SetCheck(int check) override { SetStyle(SBPS_POPOUT, check != 0); }
    void SetText(LPCSTR text) override { Bar()->SetPaneText(static_cast<int>(m_nIndex), text); }

private:
    CStatusBar *Bar() const { return static_cast<CStatusBar *>(m_pOther); }
    void SetStyle(UINT bit, bool on) {
        const UINT old = Bar()->GetPaneStyle(static_cast<int>(m_nIndex));
        Bar()->SetPaneStyle(static_cast<int>(m_nIndex), on ? old | bit : old & ~bit);
    }
};

// The text's width in the bar's font.
int TextWidth(CWnd *bar, const CString &text) {
    CClientDC dc(bar);
    CFont *font = bar->GetFont();
    const HGDIOBJ old = font ? dc.SelectObject(font->m_hObject) : nullptr;
    const int width = dc.GetTextExtent(text).cx;
    if (old)
        dc.SelectObject(old);
    return width;
}

// Border and space on both sides of a pane's text.
constexpr int kPaneExtraPx = 8;

} // namespace

BOOL CStatusBar::Create(CWnd *parent, DWORD style, UINT id) {
    ::InitCommonControls();
    m_dwStyle = style & (CBRS_LEFT | CBRS_TOP | CBRS_RIGHT | CBRS_BOTTOM);
    const DWORD plain = style & ~m_dwStyle;
    return CWnd::Create(STATUSCLASSNAME, nullptr,
                        plain | CCS_NODIVIDER | CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NORESIZE |
                            SBARS_SIZEGRIP,
                        CRect(0, 0, 0, 0), parent, id);
}

BOOL CStatusBar::SetIndicators(const UINT *ids, int count) {
    CArray<Pane, const Pane &> panes;
    panes.SetSize(count);
    for (int i = 0; ids && i < count; i++) {
        panes[i].id = ids[i];
        if (ids[i] == ID_SEPARATOR) {
            // Only the first one gives way; a later one is a gap.
            panes[i].style = i == 0 ? SBPS_STRETCH | SBPS_NOBORDERS : SBPS_NORMAL;
            panes[i].width = ::GetSystemMetrics(SM_CXSCREEN) / 4;
        } else {
            if (!panes[i].text.LoadString(ids[i]))
                return FALSE;
            panes[i].width = TextWidth(this, panes[i].text);
        }
    }
    m_panes.Copy(panes);
    m_nCount = count;
    UpdateParts();
    for (int i = 0; i < count; i++)
        ShowPane(i);
    return TRUE;
}

void CStatusBar::UpdateParts() {
    const int count = m_panes.GetSize();
    if (count == 0 || !m_hWnd)
        return;
    CRect client;
    GetClientRect(&client);
    int used = 0;
    int stretching = -1;
    for (int i = 0; i < count; i++) {
        if (m_panes[i].style & SBPS_STRETCH)
            stretching = i;
        else
            used += m_panes[i].width + kPaneExtraPx;
    }
    if (stretching >= 0)
        used += ::GetSystemMetrics(SM_CXVSCROLL);
    CArray<int, int> edges;
    edges.SetSize(count);
    int right = 0;
    for (int i = 0; i < count; i++) {
        right += i == stretching ? std::max(client.Width() - used, 0) : m_panes[i].width + kPaneExtraPx;
        edges[i] = right;
    }
    DefWindowProc(SB_SETPARTS, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(edges.GetData()));
}

void CStatusBar::ShowPane(int index) {
    const Pane &pane = m_panes[index];
    const LPCTSTR text = pane.style & SBPS_DISABLED ? "" : static_cast<LPCTSTR>(pane.text);
    DefWindowProc(SB_SETTEXT, static_cast<WPARAM>(index) | (pane.style & (SBPS_NOBORDERS | SBPS_POPOUT)),
                  reinterpret_cast<LPARAM>(text));
}

int CStatusBar::CommandToIndex(UINT id) const {
    for (int i = 0; i < m_panes.GetSize(); i++)
        if (m_panes[i].id == id)
            return i;
    return -1;
}

void CStatusBar::GetItemRect(int index, LPRECT rect) const {
    const_cast<CStatusBar *>(this)->DefWindowProc(SB_GETRECT, static_cast<WPARAM>(index),
                                                  reinterpret_cast<LPARAM>(rect));
}

BOOL CStatusBar::SetPaneText(int index, LPCTSTR text, BOOL) {
    if (index < 0 || index >= m_panes.GetSize())
        return FALSE;
    if (m_panes[index].text != text) {
        m_panes[index].text = text;
        ShowPane(index);
    }
    return TRUE;
}

void CStatusBar::GetPaneInfo(int index, UINT &id, UINT &style, int &width) const {
    id = m_panes[index].id;
    style = m_panes[index].style;
    width = m_panes[index].width;
}

void CStatusBar::SetPaneInfo(int index, UINT id, UINT style, int width) {
    Pane &pane = m_panes[index];
    const bool moved = pane.width != width || ((pane.style ^ style) & SBPS_STRETCH);
    pane.id = id;
    pane.width = width;
    pane.style = style;
    if (moved)
        UpdateParts();
    ShowPane(index);
}

void CStatusBar::SetPaneStyle(int index, UINT style) {
    if (m_panes[index].style != style)
        SetPaneInfo(index, m_panes[index].id, style, m_panes[index].width);
}

CSize CStatusBar::CalcFixedLayout(BOOL, BOOL) {
    TEXTMETRIC metrics;
    CClientDC dc(this);
    CFont *font = GetFont();
    const HGDIOBJ old = font ? dc.SelectObject(font->m_hObject) : nullptr;
    dc.GetTextMetrics(&metrics);
    if (old)
        dc.SelectObject(old);
    constexpr int kAroundTextPx = 8;
    return CSize(32767, metrics.tmHeight + kAroundTextPx);
}

void CStatusBar::OnUpdateCmdUI(CFrameWnd *target, BOOL disableIfNoHandler) {
    PaneCmdUI state(this);
    state.m_nIndexMax = static_cast<UINT>(m_panes.GetSize());
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; state.m_nIndex++) {
        state.m_nID = m_panes[static_cast<int>(state.m_nIndex)].id;
        // A pane that nobody updates keeps what was written into it.
        if (state.m_nID != ID_SEPARATOR)
            state.DoUpdate(target, FALSE);
    }
    UpdateDialogControls(target, disableIfNoHandler);
}

void CStatusBar::OnSize(UINT type, int cx, int cy) {
    CControlBar::OnSize(type, cx, cy);
    UpdateParts();
}

LRESULT CStatusBar::OnSetText(WPARAM, LPARAM text) {
    const int index = CommandToIndex(ID_SEPARATOR);
    return index < 0 ? Default() : SetPaneText(index, reinterpret_cast<LPCTSTR>(text));
}

LRESULT CStatusBar::OnGetText(WPARAM capacity, LPARAM buffer) {
    const int index = CommandToIndex(ID_SEPARATOR);
    if (index < 0)
        return Default();
    if (capacity == 0)
        return 0;
    char *text = reinterpret_cast<char *>(buffer);
    ::lstrcpyn(text, m_panes[index].text, static_cast<int>(capacity));
    return ::lstrlen(text);
}

LRESULT CStatusBar::OnGetTextLength(WPARAM, LPARAM) {
    const int index = CommandToIndex(ID_SEPARATOR);
    return index < 0 ? Default() : m_panes[index].text.GetLength();
}
