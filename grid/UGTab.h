// CUGTab: the bar of tabs at the left of the horizontal scroll bar. It is hidden while the control's tab
// width is 0.
//
// A click selects a tab, brings it fully into view and is told by OnTabSelected with the tab's id.
#pragma once

#include <afxwin.h>

#include "grid/UGTabLayout.h"

class CUGCtrl;
class CUGGridInfo;

constexpr UINT kTabScrollChildId = 100;

class ORVANE_API CUGTab : public CWnd {
    DECLARE_DYNAMIC(CUGTab)

public:
    // Behind the others, or before the tab at `at`. GRID_ERROR when there are 32 or the id is taken.
    int AddTab(const char *text, long id, int at = -1);
    int DeleteTab(long id);
    // Makes the tab current and brings it into view; tells nobody.
    int SelectTab(long id);
    // -1 while there are no tabs.
    long GetSelectedTab() const;
    int GetTabCount() const { return static_cast<int>(m_layout.Tabs().size()); }
    // Borrowed; null for the bar's own.
    int SetFont(CFont *font);

    CUGCtrl *m_ctrl = nullptr; // both borrowed, set by the control
    CUGGridInfo *m_GI = nullptr;

protected:
    BOOL PreCreateWindow(CREATESTRUCT &create) override;
    DECLARE_MESSAGE_MAP()
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC *dc);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar *bar);

private:
    HFONT Font();
    int TextWidth(const char *text);
    void ShowScroll();
    void DrawTab(CDC *dc, int index, int height);

    UGTabLayout m_layout;
    CScrollBar m_scroll;
    CFont m_ownFont;
    HFONT m_font = nullptr; // borrowed
};
