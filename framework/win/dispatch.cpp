#include "dispatch.h"
#include <cstring>

namespace {

// One call of a handler: the pieces that the cases below put together.
struct Handler {
    CWnd *wnd;
    AFX_PMSG pfn;
    WPARAM w;
    LPARAM l;

    template <class R, class... A> R Call(A... args) const {
        R (CWnd::*method)(A...);
        static_assert(sizeof method == sizeof pfn);
        std::memcpy(&method, &pfn, sizeof method);
        return (wnd->*method)(args...);
    }
    UINT Lo() const { return LOWORD(w); }
    UINT Hi() const { return HIWORD(w); }
    BOOL Flag() const { return static_cast<BOOL>(w); }
    UINT Word() const { return static_cast<UINT>(w); }
    CPoint Point() const { return CPoint(l); }
    CWnd *WndW() const { return CWnd::FromHandle(reinterpret_cast<HWND>(w)); }
    CWnd *WndL() const { return CWnd::FromHandle(reinterpret_cast<HWND>(l)); }
    CDC *Dc() const { return CDC::FromHandle(reinterpret_cast<HDC>(w)); }
    CMenu *Menu() const { return CMenu::FromHandle(reinterpret_cast<HMENU>(w)); }
    void *Pointer() const { return reinterpret_cast<void *>(l); }
};

HBRUSH CallCtlColor(const Handler &h) {
    const AFX_CTLCOLOR *ctl = reinterpret_cast<const AFX_CTLCOLOR *>(h.l);
    return h.Call<HBRUSH, CDC *, CWnd *, UINT>(CDC::FromHandle(ctl->hDC), CWnd::FromHandle(ctl->hWnd),
                                               ctl->nCtlType);
}

HBRUSH CallCtlColorReflected(const Handler &h) {
    const AFX_CTLCOLOR *ctl = reinterpret_cast<const AFX_CTLCOLOR *>(h.l);
    return h.Call<HBRUSH, CDC *, UINT>(CDC::FromHandle(ctl->hDC), ctl->nCtlType);
}

// The handlers without a result.
bool CallVoid(UINT_PTR sig, const Handler &h) {
    switch (sig) {
    case AfxSig_vv: h.Call<void>(); return true;
    case AfxSig_vw: h.Call<void, UINT>(h.Word()); return true;
    case AfxSig_vb: h.Call<void, BOOL>(h.Flag()); return true;
    case AfxSig_vU: h.Call<void, UINT_PTR>(h.w); return true;
    case AfxSig_vD: h.Call<void, CDC *>(h.Dc()); return true;
    case AfxSig_vM: h.Call<void, CMenu *>(h.Menu()); return true;
    case AfxSig_vW: h.Call<void, CWnd *>(h.WndW()); return true;
    case AfxSig_vWl: h.Call<void, CWnd *>(h.WndL()); return true;
    case AfxSig_vP: h.Call<void, HDROP>(reinterpret_cast<HDROP>(h.w)); return true;
    case AfxSig_vs: h.Call<void, void *>(h.Pointer()); return true;
    case AfxSig_vii: h.Call<void, int, int>(h.Point().x, h.Point().y); return true;
    case AfxSig_vbw: h.Call<void, BOOL, UINT>(h.Flag(), static_cast<UINT>(h.l)); return true;
    case AfxSig_vbl: h.Call<void, BOOL, DWORD>(h.Flag(), static_cast<DWORD>(h.l)); return true;
    case AfxSig_vbs: h.Call<void, BOOL, void *>(h.Flag(), h.Pointer()); return true;
    case AfxSig_vis: h.Call<void, int, void *>(static_cast<int>(h.w), h.Pointer()); return true;
    case AfxSig_vws: h.Call<void, UINT, void *>(h.Word(), h.Pointer()); return true;
    case AfxSig_vwl: h.Call<void, UINT, LPARAM>(h.Word(), h.l); return true;
    case AfxSig_vwp: h.Call<void, UINT, CPoint>(h.Word(), h.Point()); return true;
    case AfxSig_vWp: h.Call<void, CWnd *, CPoint>(h.WndW(), h.Point()); return true;
    case AfxSig_vwWl: h.Call<void, UINT, CWnd *>(h.Word(), h.WndL()); return true;
    case AfxSig_vwii: h.Call<void, UINT, int, int>(h.Word(), LOWORD(h.l), HIWORD(h.l)); return true;
    case AfxSig_vwww: h.Call<void, UINT, UINT, UINT>(h.Word(), LOWORD(h.l), HIWORD(h.l)); return true;
    case AfxSig_vwsp:
        h.Call<void, UINT, short, CPoint>(h.Lo(), static_cast<short>(h.Hi()), h.Point());
        return true;
    case AfxSig_vwWb:
        h.Call<void, UINT, CWnd *, BOOL>(h.Lo(), h.WndL(), static_cast<BOOL>(h.Hi()));
        return true;
    case AfxSig_vwwS: h.Call<void, UINT, UINT, CWnd *>(h.Lo(), h.Hi(), h.WndL()); return true;
    case AfxSig_vMwb: h.Call<void, CMenu *, UINT, BOOL>(h.Menu(), LOWORD(h.l), HIWORD(h.l)); return true;
    case AfxSig_vwwh:
        h.Call<void, UINT, UINT, HMENU>(h.Lo(), h.Hi(), reinterpret_cast<HMENU>(h.l));
        return true;
    case AfxSig_vbWW:
        h.Call<void, BOOL, CWnd *, CWnd *>(h.wnd->m_hWnd == reinterpret_cast<HWND>(h.l), h.WndL(), h.WndW());
        return true;
    default: return false;
    }
}

LRESULT CallWithResult(UINT_PTR sig, const Handler &h) {
    switch (sig) {
    case AfxSig_is: return h.Call<int, void *>(h.Pointer());
    case AfxSig_bs: return h.Call<BOOL, void *>(h.Pointer());
    case AfxSig_bsl: return h.Call<BOOL, void *>(h.Pointer());
    case AfxSig_bv: return h.Call<BOOL>();
    case AfxSig_wv: return h.Call<UINT>();
    case AfxSig_hv: return reinterpret_cast<LRESULT>(h.Call<HCURSOR>());
    case AfxSig_bb: return h.Call<BOOL, BOOL>(h.Flag());
    case AfxSig_bD: return h.Call<BOOL, CDC *>(h.Dc());
    case AfxSig_lp: return h.Call<LRESULT, CPoint>(h.Point());
    case AfxSig_iis: return h.Call<int, int, void *>(static_cast<int>(h.w), h.Pointer());
    case AfxSig_bWs: return h.Call<BOOL, CWnd *, void *>(h.WndW(), h.Pointer());
    case AfxSig_bwsp: return h.Call<BOOL, UINT, short, CPoint>(h.Lo(), static_cast<short>(h.Hi()), h.Point());
    case AfxSig_iWww: return h.Call<int, CWnd *, UINT, UINT>(h.WndW(), LOWORD(h.l), HIWORD(h.l));
    case AfxSig_bWww: return h.Call<BOOL, CWnd *, UINT, UINT>(h.WndW(), LOWORD(h.l), HIWORD(h.l));
    case AfxSig_iwLw: return h.Call<int, UINT, CWnd *, UINT>(h.Lo(), h.WndL(), h.Hi());
    case AfxSig_hDWw: return reinterpret_cast<LRESULT>(CallCtlColor(h));
    case AfxSig_hDw: return reinterpret_cast<LRESULT>(CallCtlColorReflected(h));
    default: return h.Call<LRESULT, WPARAM, LPARAM>(h.w, h.l); // AfxSig_lwl and registered messages
    }
}

} // namespace

BOOL AfxDispatcher::Call(CWnd *wnd, const AFX_MSGMAP_ENTRY &entry, WPARAM wParam, LPARAM lParam,
                         LRESULT *result) {
    const Handler handler{wnd, entry.pfn, wParam, lParam};
    *result = 0;
    if (CallVoid(entry.nSig, handler))
        return TRUE;
    *result = CallWithResult(entry.nSig, handler);
    // A wheel that nothing turned goes on to the parent, which the default handling does.
    return entry.nSig != AfxSig_bwsp || *result != 0;
}

const AFX_MSGMAP_ENTRY *AfxDispatcher::Find(const AFX_MSGMAP *map, UINT message) {
    constexpr UINT kFirstRegistered = 0xC000;
    for (; map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
        for (const AFX_MSGMAP_ENTRY *entry = map->lpEntries; entry->nSig != AfxSig_end; entry++) {
            if (message < kFirstRegistered ? entry->nMessage == message
                                           : entry->nMessage == kFirstRegistered &&
                                                 *reinterpret_cast<const UINT *>(entry->nSig) == message)
                return entry;
        }
    return nullptr;
}
