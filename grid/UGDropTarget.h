// CUGDropTarget: takes text that is dropped on the cells. The control is asked on the way, by its drag
// notifications; what it accepts is pasted from the cell on that the text was dropped on.
#pragma once

#include <afxole.h>

class CUGCtrl;

class ORVANE_API CUGDropTarget : public COleDropTarget {
    DECLARE_DYNAMIC(CUGDropTarget)

public:
    // Points are in grid coordinates.
    DROPEFFECT OnDragEnter(CWnd *wnd, COleDataObject *data, DWORD keyState, CPoint point) override;
    DROPEFFECT OnDragOver(CWnd *wnd, COleDataObject *data, DWORD keyState, CPoint point) override;
    // TRUE when text was pasted.
    BOOL OnDrop(CWnd *wnd, COleDataObject *data, DROPEFFECT effect, CPoint point) override;

    CUGCtrl *m_ctrl = nullptr; // borrowed, set by the control
};
