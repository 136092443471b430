// CGalleryFrame: the child window that shows what cells can look like and do.
#pragma once

#include <afxwin.h>

#include "host/GalleryGrid.h"

class CGalleryFrame : public CMDIChildWnd {
    DECLARE_DYNAMIC(CGalleryFrame)

public:
    // Opens the gallery, or brings it to the front when it is open.
    static void Open(CWnd *frame);

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSetFocus(CWnd *old);
    afx_msg void OnEditCopy();
    afx_msg void OnUpdateCellPane(CCmdUI *command);
    afx_msg void OnUpdateTextPane(CCmdUI *command);

private:
    CGalleryGrid m_grid;
};
