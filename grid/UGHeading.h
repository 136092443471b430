// CUGHeading: what the top and the side heading have in common: painting along one axis, sizing by dragging an
// edge, clicks. The derived classes say which axis, and turn events into their own notifications.
#pragma once

#include <afxwin.h>

#include "grid/UGCell.h"

class CUGCtrl;
class CUGGridInfo;
struct CUGAxis;

constexpr int kEdgeTolerancePx = 3; // strictly nearer than this the pointer is on an edge

class ORVANE_API CUGHeading : public CWnd {
    DECLARE_DYNAMIC(CUGHeading)

public:
    // Shows that the view moved along the heading's axis.
    void ShowMove();
    // An edge is being dragged.
    bool IsResizing() const { return m_resizing; }

    CUGCtrl *m_ctrl = nullptr; // both borrowed, set by the control
    CUGGridInfo *m_GI = nullptr;

protected:
    // Whether there is anything to draw but the back colour.
    virtual bool HasParts() const { return true; }
    // The axis, and a point's and rectangle's coordinates along it.
    virtual CUGAxis &Axis() const = 0;
    virtual int Along(CPoint point) const = 0;
    virtual RECT Strip(long begin, long end) const = 0;
    virtual LPCSTR SizeCursor() const = 0;
    virtual void DrawOne(CDC *dc, long index, long begin, long end) = 0;
    virtual int DrawSection() const = 0;
    virtual bool CanSize(long index) = 0;
    virtual void Sizing(long index, int *size) = 0;
    virtual void Sized(long index, int *size) = 0;
    virtual int StoreSize(long index, int size) = 0;
    virtual void LClicked(long index, int updn) = 0;
    virtual void RClicked(long index, int updn) = 0;
    virtual void DClicked(long index) = 0;
    virtual void PopupMenu(long index, CPoint screen) = 0;

    // Draws one heading cell with its border.
    void DrawHeadingCell(CDC *dc, int col, long row, RECT rect);

    BOOL PreCreateWindow(CREATESTRUCT &create) override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC *dc);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd *next);

private:
    void LookForEdge(CPoint point);
    void DragEdge(CPoint point);

    CUGCell m_cell; // scratch cell of the paint
    long m_shownLeading = 0;
    bool m_resizing = false;
    bool m_canSize = false;
    long m_sizeIndex = -1;
    int m_startSize = 0; // pixels, as are the following
    int m_startPosition = 0;
};
