// Control bars: what a frame places along its edges.
//
// Differences from MFC: bars do not float and are not docked by the mouse. There is no CToolBar; a host makes
// a CToolBarCtrl. CSplitterWnd, CFormView and printing do not exist.
#pragma once

#include <afxwin.h>

// Along which edge a bar lies.
constexpr DWORD CBRS_LEFT = 0x1000;
constexpr DWORD CBRS_TOP = 0x2000;
constexpr DWORD CBRS_RIGHT = 0x4000;
constexpr DWORD CBRS_BOTTOM = 0x8000;

// Styles of a status bar's pane.
constexpr UINT SBPS_NORMAL = 0x0000;
constexpr UINT SBPS_NOBORDERS = SBT_NOBORDERS;
constexpr UINT SBPS_POPOUT = SBT_POPOUT;
constexpr UINT SBPS_OWNERDRAW = SBT_OWNERDRAW;
constexpr UINT SBPS_DISABLED = 0x04000000; // the text is not shown
constexpr UINT SBPS_STRETCH = 0x08000000;  // takes what the others leave; one pane at most

// A child window that takes part of its frame's client area and is updated at idle time.
class ORVANEFW_API CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)
public:
    // Height of a bar along the top or bottom, width of one at a side, in pixels.
    virtual CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) = 0;
    virtual void OnUpdateCmdUI(CFrameWnd *target, BOOL disableIfNoHandler) = 0;
    DWORD GetBarStyle() const { return m_dwStyle; }
    void SetBarStyle(DWORD style) { m_dwStyle = style; }
    int GetCount() const { return m_nCount; }

protected:
    CControlBar() : m_dwStyle(0), m_nCount(0) {}
    LRESULT OnSizeParent(WPARAM wParam, LPARAM layout);
    LRESULT OnIdleUpdateCmdUI(WPARAM disableIfNoHandler, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    DWORD m_dwStyle;
    int m_nCount;
};

class ORVANEFW_API CStatusBar : public CControlBar {
    DECLARE_DYNAMIC(CStatusBar)
public:
    CStatusBar() {}
    using CWnd::Create;
    BOOL Create(CWnd *parent, DWORD style = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                UINT id = AFX_IDW_STATUS_BAR);
    // One pane for each identifier, whose string is its text and gives its width. The first one of
    // ID_SEPARATOR stretches and shows messages. With ids null the panes are empty.
    BOOL SetIndicators(const UINT *ids, int count);

    int CommandToIndex(UINT id) const; // -1 without such a pane
    UINT GetItemID(int index) const { return m_panes[index].id; }
    void GetItemRect(int index, LPRECT rect) const;
    void GetPaneText(int index, CString &text) const { text = m_panes[index].text; }
    CString GetPaneText(int index) const { return m_panes[index].text; }
    BOOL SetPaneText(int index, LPCTSTR text, BOOL update = TRUE);
    void GetPaneInfo(int index, UINT &id, UINT &style, int &width) const;
    // The width in pixels is that of the text, without the border.
    void SetPaneInfo(int index, UINT id, UINT style, int width);
    UINT GetPaneStyle(int index) const { return m_panes[index].style; }
    void SetPaneStyle(int index, UINT style);

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd *target, BOOL disableIfNoHandler) override;

protected:
    void OnSize(UINT type, int cx, int cy);
    LRESULT OnSetText(WPARAM wParam, LPARAM text);
    LRESULT OnGetText(WPARAM capacity, LPARAM buffer);
    LRESULT OnGetTextLength(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    struct Pane {
        UINT id = 0;
        UINT style = 0;
        int width = 0;
        CString text;
    };
    void UpdateParts();
    void ShowPane(int index);

    CArray<Pane, const Pane &> m_panes;
};
