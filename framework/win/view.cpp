#include "afxwin.h"
#include "threadstate.h"

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
ON_WM_PAINT()
ON_WM_DESTROY()
ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

BOOL CView::PreCreateWindow(CREATESTRUCT &cs) {
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return TRUE;
}

void CView::PostNcDestroy() {
    AfxDeleteAfterHandlers(this);
}

void CView::OnPaint() {
    CPaintDC dc(this);
    OnDraw(&dc);
}

void CView::OnDestroy() {
    CFrameWnd *frame = GetParentFrame();
    if (frame && frame->GetActiveView() == this)
        frame->SetActiveView(nullptr, FALSE);
    CWnd::OnDestroy();
}

int CView::OnMouseActivate(CWnd *desktop, UINT hitTest, UINT message) {
    const int result = CWnd::OnMouseActivate(desktop, hitTest, message);
    if (result == MA_NOACTIVATE || result == MA_NOACTIVATEANDEAT)
        return result;
    if (CFrameWnd *frame = GetParentFrame()) {
        const HWND focus = ::GetFocus();
        if (frame->GetActiveView() == this && focus != m_hWnd && !::IsChild(m_hWnd, focus))
            OnActivateView(TRUE, this, this);
        else
            frame->SetActiveView(this);
    }
    return result;
}

void CView::OnActivateView(BOOL activate, CView *, CView *) {
    if (activate && GetTopLevelParent()->m_hWnd == ::GetActiveWindow())
        SetFocus();
}
