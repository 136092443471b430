// CUGCnrBtn: the corner between the headings. Its edges size the headings.
#pragma once

#include <afxwin.h>

#include "grid/UGCell.h"

class CUGCtrl;
class CUGGridInfo;

class ORVANE_API CUGCnrBtn : public CWnd {
    DECLARE_DYNAMIC(CUGCnrBtn)

public:
    // One of the headings' sizes is being dragged.
    bool IsResizing() const { return m_resizing; }

    CUGCtrl *m_ctrl = nullptr; // both borrowed, set by the control
    CUGGridInfo *m_GI = nullptr;

protected:
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
    void Drag(CPoint point);

    CUGCell m_cell;
    bool m_resizing = false;
    bool m_sizeHeight = false; // what the edge under the pointer would size
    bool m_sizeWidth = false;
};
