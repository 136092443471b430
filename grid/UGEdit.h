// CUGEdit: the edit control that stands over a cell while its text is typed.
//
// It asks the control about every key, finishes into the cell, and moves on. Losing the focus finishes too.
#pragma once

#include <afxwin.h>

#include "grid/UGEditMask.h"

class CUGCell;
class CUGCtrl;
class CUGGrid;

// What the owner of an edit may want to know beside the notifications of the control.
class CUGEditListener {
public:
    virtual void EditTextChanged() = 0; // by whatever way
    virtual void EditWritten() = 0;     // the cell has been written, or has refused the text
    virtual void EditLosesCell() = 0;   // the cell shows something else in a moment: it can be written now for the last time

protected:
    ~CUGEditListener() = default;
};

class ORVANE_API CUGEdit : public CEdit {
    DECLARE_DYNAMIC(CUGEdit)

public:
    // Creates the window, hidden, over `rect` of the grid with the cell's text, limit and mask.
    bool Open(DWORD style, const RECT &rect, CUGGrid *grid, const CUGCell &cell, HFONT defaultFont);
    // Shows it with all selected; a key above 0 is typed into it.
    void Show(int key);

    bool m_active = false;                 // a finish is still owed
    int m_result = 0;                      // of the last write, a GRID_ code
    bool m_written = false;                // the text was handed to the cell as it is
    CUGEditListener *m_listener = nullptr; // borrowed
    CPoint m_inset;                        // from the cell's corner to the box, pixels

private:
    friend class CUGCtrl;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSetFocus(CWnd *old);
    afx_msg void OnKillFocus(CWnd *next);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnUpdateText();

    int Finish();
    bool AskFinish(int col, long row);
    bool Write(int col, long row);
    bool IsOvertaken(int col, long row);
    void NoteTexts(int col, long row);
    void FinishAndContinue(int dx, int dy);
    bool PassMask(char character);
    void Reformat();

    CUGCtrl *m_ctrl = nullptr; // borrowed, set by Open
    CUGEditMask m_mask;
    CString m_textBefore, m_cellBefore; // of the box and its cell, when it was opened or written last
    bool m_maskBusy = false;   // the mask code itself is changing the text
    bool m_focusSeen = false;
    bool m_finishing = false;  // OnEditFinish is being asked: the box stays, whoever takes the focus
};
