// Drop targets and drop sources.
#include "afxole.h"

IMPLEMENT_DYNAMIC(COleDropTarget, CCmdTarget)
IMPLEMENT_DYNAMIC(COleDropSource, CCmdTarget)

class COleDropTarget::Interface final : public IDropTarget {
public:
    explicit Interface(COleDropTarget *target) : m_target(target) {}
    // The target is going; whoever still holds the interface gets no answers any more.
    void Disconnect() { m_target = nullptr; }

    STDMETHODIMP QueryInterface(REFIID id, void **object) override {
        if (!::IsEqualIID(id, IID_IUnknown) && !::IsEqualIID(id, IID_IDropTarget)) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<IDropTarget *>(this);
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override {
        return static_cast<ULONG>(::InterlockedIncrement(&m_references));
    }
    STDMETHODIMP_(ULONG) Release() override {
        const LONG left = ::InterlockedDecrement(&m_references);
        if (left == 0)
            delete this;
        return static_cast<ULONG>(left);
    }

    STDMETHODIMP DragEnter(IDataObject *data, DWORD keys, POINTL point, DWORD *effect) override {
        data->AddRef();
        m_data.Attach(data, TRUE);
        return Contain(effect, [&](CWnd *wnd) {
            return Permitted(m_target->OnDragEnter(wnd, &m_data, keys, Client(wnd, point)), *effect);
        });
    }
    STDMETHODIMP DragOver(DWORD keys, POINTL point, DWORD *effect) override {
        return Contain(effect, [&](CWnd *wnd) {
            return Permitted(m_target->OnDragOver(wnd, &m_data, keys, Client(wnd, point)), *effect);
        });
    }
    STDMETHODIMP DragLeave() override {
        DWORD none = DROPEFFECT_NONE;
        const HRESULT result = Contain(&none, [&](CWnd *wnd) {
            m_target->OnDragLeave(wnd);
            return DWORD(DROPEFFECT_NONE);
        });
        m_data.Release();
        return result;
    }
    STDMETHODIMP Drop(IDataObject *data, DWORD keys, POINTL point, DWORD *effect) override {
        COleDataObject dropped;
        data->AddRef();
        dropped.Attach(data, TRUE);
        const HRESULT result = Contain(effect, [&](CWnd *wnd) {
            const CPoint client = Client(wnd, point);
            const DWORD wanted = Permitted(m_target->OnDragOver(wnd, &dropped, keys, client), *effect);
            const DROPEFFECT done = m_target->OnDropEx(wnd, &dropped, wanted, *effect, client);
            if (done != DROPEFFECT(-1))
                return done;
            if (wanted == DROPEFFECT_NONE) {
                m_target->OnDragLeave(wnd);
                return DWORD(DROPEFFECT_NONE);
            }
            return m_target->OnDrop(wnd, &dropped, wanted, client) ? wanted : DWORD(DROPEFFECT_NONE);
        });
        m_data.Release();
        return result;
    }

private:
    ~Interface() {}

    // Runs a handler; no exception may pass into the system.
    template <class HANDLER> HRESULT Contain(DWORD *effect, HANDLER handler) {
        DWORD answer = DROPEFFECT_NONE;
        HRESULT result = S_OK;
        try {
            if (m_target && ::IsWindow(m_target->m_hWnd))
                answer = handler(CWnd::FromHandle(m_target->m_hWnd));
        } catch (CMemoryException *e) {
            e->Delete();
            result = E_OUTOFMEMORY;
        } catch (CException *e) {
            e->Delete();
            result = E_UNEXPECTED;
        } catch (const std::exception &) {
            result = E_UNEXPECTED;
        }
        *effect = answer;
        return result;
    }
    static CPoint Client(CWnd *wnd, POINTL point) {
        CPoint client(point.x, point.y);
        wnd->ScreenToClient(&client);
        return client;
    }
    // Of several effects that the source would not allow, a permitted one takes their place.
    static DWORD Permitted(DWORD effect, DWORD allowed) {
        const DWORD scroll = effect & DROPEFFECT_SCROLL;
        const DWORD plain = effect & ~static_cast<DWORD>(DROPEFFECT_SCROLL);
        if (plain == DROPEFFECT_NONE || (plain & allowed))
            return effect;
        for (const DWORD other : {DROPEFFECT_COPY, DROPEFFECT_MOVE, DROPEFFECT_LINK})
            if (allowed & other)
                return scroll | other;
        return scroll;
    }

    LONG m_references = 1;
    COleDropTarget *m_target;
    COleDataObject m_data;
};

COleDropTarget::COleDropTarget() : m_hWnd(nullptr), m_interface(new Interface(this)) {}

COleDropTarget::~COleDropTarget() {
    COleDropTarget::Revoke();
    m_interface->Disconnect();
    m_interface->Release();
}

BOOL COleDropTarget::Register(CWnd *wnd) {
    if (m_hWnd || ::RegisterDragDrop(wnd->m_hWnd, m_interface) != S_OK)
        return FALSE;
    m_hWnd = wnd->m_hWnd;
    wnd->m_pDropTarget = this;
    return TRUE;
}

void COleDropTarget::Revoke() {
    if (!m_hWnd)
        return;
    if (CWnd *wnd = CWnd::FromHandlePermanent(m_hWnd))
        wnd->m_pDropTarget = nullptr;
    ::RevokeDragDrop(m_hWnd);
    m_hWnd = nullptr;
}

DROPEFFECT COleDropTarget::OnDragEnter(CWnd *, COleDataObject *, DWORD, CPoint) {
    return DROPEFFECT_NONE;
}

DROPEFFECT COleDropTarget::OnDragOver(CWnd *, COleDataObject *, DWORD, CPoint) {
    return DROPEFFECT_NONE;
}

BOOL COleDropTarget::OnDrop(CWnd *, COleDataObject *, DROPEFFECT, CPoint) {
    return FALSE;
}

DROPEFFECT COleDropTarget::OnDropEx(CWnd *, COleDataObject *, DROPEFFECT, DROPEFFECT, CPoint) {
    return DROPEFFECT(-1);
}

void COleDropTarget::OnDragLeave(CWnd *) {}

void AfxRevokeDropTarget(COleDropTarget *target) {
    target->Revoke();
}

COleDropSource::COleDropSource() : m_bDragStarted(FALSE), m_dwButtonDrop(0), m_dwButtonCancel(0) {
    const bool right = ::GetKeyState(VK_RBUTTON) < 0 && ::GetKeyState(VK_LBUTTON) >= 0;
    m_dwButtonDrop = right ? MK_RBUTTON : MK_LBUTTON;
    m_dwButtonCancel = right ? MK_LBUTTON : MK_RBUTTON;
}

BOOL COleDropSource::OnBeginDrag(CWnd *wnd) {
    const int button = m_dwButtonDrop == MK_RBUTTON ? VK_RBUTTON : VK_LBUTTON;
    m_bDragStarted = FALSE;
    wnd->SetCapture();
    while (!m_bDragStarted && ::GetCapture() == wnd->m_hWnd && ::GetKeyState(button) < 0) {
        MSG message;
        if (::PeekMessage(&message, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE)) {
            m_bDragStarted = !m_rectStartDrag.PtInRect(message.pt);
        } else if (::PeekMessage(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
            if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE)
                break;
        } else {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, INFINITE, QS_MOUSE | QS_KEY);
        }
    }
    ::ReleaseCapture();
    return m_bDragStarted;
}

SCODE COleDropSource::QueryContinueDrag(BOOL escapePressed, DWORD keyState) {
    if (escapePressed || (keyState & m_dwButtonCancel))
        return DRAGDROP_S_CANCEL;
    return keyState & m_dwButtonDrop ? S_OK : DRAGDROP_S_DROP;
}

SCODE COleDropSource::GiveFeedback(DROPEFFECT) {
    return m_bDragStarted ? DRAGDROP_S_USEDEFAULTCURSORS : S_OK;
}
