// CUGHint: the small window that tells where the view would be while a scroll bar's thumb is dragged.
#pragma once

#include <afxwin.h>

class ORVANE_API CUGHint : public CWnd {
    DECLARE_DYNAMIC(CUGHint)

public:
    int SetText(const char *text);
    // How the window hangs on its point: UG_ALIGN_ bits.
    int SetAlignment(short alignment);
    int SetFont(CFont *font); // borrowed; null for the system's
    int SetTextColor(COLORREF colour);
    int SetBackColor(COLORREF colour);
    // Places the window at a point of the parent's client area, at least `minimumWidth` pixels wide, shifted so
    // that all of it is seen.
    int MoveHint(int x, int y, int minimumWidth);
    int Show();
    int Hide();

protected:
    BOOL PreCreateWindow(CREATESTRUCT &create) override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();

private:
    CString m_text;
    COLORREF m_textColor = 0;
    COLORREF m_backColor = 65535; // yellow
    short m_alignment = 0;
    HFONT m_font = nullptr; // borrowed
};
