// CUGGrid: the cell area. It paints the visible cells and turns mouse and keys into moves and notifications.
#pragma once

#include <afxwin.h>

#include "grid/UGCell.h"
#include "grid/UGEdit.h"

#include <utility>
#include <vector>

class CUGCellType;
class CUGCtrl;
class CUGGridInfo;

// A joined block: its first and its last cell.
struct UGJoin {
    int left;
    long top;
    int right;
    long bottom;

    bool Contains(int col, long row) const { return col >= left && col <= right && row >= top && row <= bottom; }
};

class ORVANE_API CUGGrid : public CWnd {
    DECLARE_DYNAMIC(CUGGrid)

public:
    // Shows a move of the current cell or the view: shifts the image where the view scrolled, so that only the
    // exposed strip is drawn, and repaints the cells that ceased to be or became current.
    void ShowMove();
    // Marks every visible cell of the selected blocks for repaint.
    void InvalidateSelection();
    void SetDoubleBuffer(bool on);
    // Scrolls the cells by a turn of the wheel, which may come in parts of a notch.
    void TurnWheel(int delta);
    // The double focus frame of the current cell, within its rectangle. It inverts what is there.
    static void DrawFocusFrame(CDC *dc, RECT cell);
    // From the button going down until it is up again, or something else takes the mouse.
    bool HoldsMouse() const { return m_captured; }
    // The type that wants the mouse moves meanwhile; null for none.
    CUGCellType *Tracker() const { return m_tracker; }

    CUGCtrl *m_ctrl = nullptr; // both borrowed, set by the control
    CUGGridInfo *m_GI = nullptr;
    CUGEdit m_edit;
    bool m_dragStarted = false; // a notification dragged something out: the button is up again

protected:
    BOOL PreCreateWindow(CREATESTRUCT &create) override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC *dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSetFocus(CWnd *old);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT key, UINT repeat, UINT flags);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnCaptureChanged(CWnd *next);

private:
    // What a paint pass needs beside the device context.
    struct Pass {
        CDC *dc;
        RECT clip;
        bool simpleClip; // the clip is one rectangle: it alone tells what shows
        std::vector<UGJoin> joinsDrawn; // the blocks that stand already
    };
    void DrawAll(CDC *dc, const RECT &clip);
    void DrawRow(Pass &pass, long row, int top, int bottom);
    void DrawCell(Pass &pass, int col, long row, RECT rect);
    bool BeginJoin(Pass &pass, int *col, long *row, RECT *rect);
    void FillBeyond(CDC *dc, int right, int bottom);
    void DrawFocusFrame(CDC *dc);
    void PaintBuffered(CDC *dc, const RECT &clip);
    void RequestRowsBelow(long lastDrawn);
    void InvalidateCurrent(int col, long row);
    void InvalidateCells(long left, long top, long right, long bottom);
    bool ScrollImage(int dx, int dy);

    void GoByMouse(int moveType, int col, long row);
    RECT TypeArea(int col, long row, RECT rect);
    int PressOnType(int col, long row, const RECT &rect, POINT *point);
    void HoldMouse();
    void LetMouseGo();
    void SyncShown();
    void DragTo(CPoint point);
    void DragScroll(CPoint point);
    bool DragStep(CPoint point);

    CUGCell m_cell; // scratch cell of the paint
    CUGCellType *m_tracker = nullptr; // the type that wants the mouse moves; borrowed
    CBitmap m_buffer;
    CSize m_bufferSize{0, 0};
    bool m_doubleBuffer = false;
    bool m_captured = false;
    bool m_dragScrolling = false;
    int m_wheelRest = 0;
    // As last shown, to tell what moved since.
    int m_shownCol = 0;
    long m_shownRow = 0;
    int m_shownLeft = 0;
    long m_shownTop = 0;
};
