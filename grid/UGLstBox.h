// CUGLstBox: the list that a drop list cell opens. Enter or a mouse release takes an item, Escape or losing the
// focus closes it.
#pragma once

#include <afxwin.h>

class CUGCtrl;

// What the type's cell markers become when the list closed without a choice: the click on the button that took
// the focus away does not open the list again.
constexpr int kListJustClosed = -2;

class ORVANE_API CUGLstBox : public CListBox {
    DECLARE_DYNAMIC(CUGLstBox)

public:
    CUGCtrl *m_ctrl = nullptr; // borrowed
    int *m_col = nullptr;      // the type's cell markers; borrowed
    long *m_row = nullptr;
    bool m_open = false;

    // Leaves the markers alone; the focus goes to the cells when the list has it.
    void Close();
    // The cell goes, or shows something else: the list closes, and an item that is being told is not written.
    void Cancel();
    // It is on the screen.
    void SetOpen();

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnKillFocus(CWnd *next);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnDestroy();

private:
    void Take();
    void LeaveControl();

    bool m_choosing = false; // an item is being told
    bool m_cancelled = false;
};
