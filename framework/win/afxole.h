// Drag and drop and the data that it carries.
//
// Differences from MFC: data travels in global memory only, is complete when it is offered, and there are no
// documents, items or containers. COleDropTarget does not scroll by itself.
#pragma once

#include <afxwin.h>
#include <ole2.h>

typedef DWORD DROPEFFECT;

// Call once before the first use of this header's classes, on the thread of the windows.
ORVANEFW_API BOOL AfxOleInit();
ORVANEFW_API void AfxOleTerm();

// What is dropped or lies on the clipboard.
class ORVANEFW_API COleDataObject {
public:
    COleDataObject() : m_lpDataObject(nullptr), m_bAutoRelease(FALSE) {}
    ~COleDataObject() { Release(); }
    COleDataObject(const COleDataObject &) = delete;
    void operator=(const COleDataObject &) = delete;

    void Attach(LPDATAOBJECT dataObject, BOOL autoRelease = TRUE);
    LPDATAOBJECT Detach();
    void Release();
    BOOL AttachClipboard();

    BOOL IsDataAvailable(CLIPFORMAT format, LPFORMATETC formatEtc = nullptr);
    // A copy that the caller frees, or null.
    HGLOBAL GetGlobalData(CLIPFORMAT format, LPFORMATETC formatEtc = nullptr);
    BOOL GetData(CLIPFORMAT format, LPSTGMEDIUM medium, LPFORMATETC formatEtc = nullptr);

    LPDATAOBJECT m_lpDataObject;
    BOOL m_bAutoRelease;
};

// Receives drops on a window. Points are in client coordinates.
class ORVANEFW_API COleDropTarget : public CCmdTarget {
    DECLARE_DYNAMIC(COleDropTarget)
public:
    COleDropTarget();
    ~COleDropTarget() override;

    // FALSE when the window has a target already or OLE is not initialised. Revoked with the window at the
    // latest.
    BOOL Register(CWnd *wnd);
    virtual void Revoke();

    virtual DROPEFFECT OnDragEnter(CWnd *wnd, COleDataObject *data, DWORD keyState, CPoint point);
    virtual DROPEFFECT OnDragOver(CWnd *wnd, COleDataObject *data, DWORD keyState, CPoint point);
    virtual BOOL OnDrop(CWnd *wnd, COleDataObject *data, DROPEFFECT effect, CPoint point);
    // Called first; the effect, or DROPEFFECT(-1) to have OnDrop called.
    virtual DROPEFFECT OnDropEx(CWnd *wnd, COleDataObject *data, DROPEFFECT dropEffect, DROPEFFECT allowed,
                                CPoint point);
    virtual void OnDragLeave(CWnd *wnd);

    HWND m_hWnd;

private:
    class Interface;
    Interface *m_interface;
};

// Decides when a drag ends.
class ORVANEFW_API COleDropSource : public CCmdTarget {
    DECLARE_DYNAMIC(COleDropSource)
public:
    COleDropSource();

    // Waits until the mouse leaves m_rectStartDrag with the button down; FALSE when the drag was called off.
    virtual BOOL OnBeginDrag(CWnd *wnd);
    virtual SCODE QueryContinueDrag(BOOL escapePressed, DWORD keyState);
    virtual SCODE GiveFeedback(DROPEFFECT dropEffect);

    CRect m_rectStartDrag; // screen coordinates
    BOOL m_bDragStarted;
    DWORD m_dwButtonDrop;   // the button whose release drops
    DWORD m_dwButtonCancel; // the button that calls the drag off
};

// What is offered to a drag or the clipboard.
class ORVANEFW_API COleDataSource : public CCmdTarget {
    DECLARE_DYNAMIC(COleDataSource)
public:
    COleDataSource();
    ~COleDataSource() override;

    // The memory belongs to the source from now on.
    void CacheGlobalData(CLIPFORMAT format, HGLOBAL global, LPFORMATETC formatEtc = nullptr);
    void Empty();
    // Returns when the drag is over. A start rectangle holds the drag back until the mouse has left it; a
    // null rectangle begins at once, no rectangle begins after the system's smallest distance.
    DROPEFFECT DoDragDrop(DWORD effects = DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK,
                          LPCRECT startDrag = nullptr, COleDropSource *source = nullptr);
    // Hands a source made with new over to the clipboard: the object must not be used any more.
    void SetClipboard();
    static void FlushClipboard();

private:
    class DataObject;
    DataObject *m_data;
};
