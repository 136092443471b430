#include "afxwin.h"
#include <cstring>

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

namespace {

template <class R, class... A> R Call(CCmdTarget *target, AFX_PMSG pfn, A... args) {
    R (CCmdTarget::*method)(A...);
    static_assert(sizeof method == sizeof pfn);
    std::memcpy(&method, &pfn, sizeof method);
    return (target->*method)(args...);
}

// TRUE when the handler took the command for good.
BOOL DispatchCommand(CCmdTarget *target, UINT id, const AFX_MSGMAP_ENTRY &entry, void *extra,
                     AFX_CMDHANDLERINFO *info) {
    if (info) {
        info->pTarget = target;
        info->pmf = entry.pfn;
        return TRUE;
    }
    AFX_NOTIFY *notify = static_cast<AFX_NOTIFY *>(extra);
    switch (entry.nSig) {
    case AfxSigCmd_v:
    case AfxSigReflect_v: Call<void>(target, entry.pfn); return TRUE;
    case AfxSigCmd_b: return Call<BOOL, UINT>(target, entry.pfn, id);
    case AfxSigCmd_RANGE: Call<void, UINT>(target, entry.pfn, id); return TRUE;
    case AfxSigReflect_b: return Call<BOOL>(target, entry.pfn);
    case AfxSigCmdUI: {
        CCmdUI *cmdUI = static_cast<CCmdUI *>(extra);
        cmdUI->m_bContinueRouting = FALSE;
        Call<void, CCmdUI *>(target, entry.pfn, cmdUI);
        return !cmdUI->m_bContinueRouting;
    }
    case AfxSigNotify_v:
        Call<void, NMHDR *, LRESULT *>(target, entry.pfn, notify->pNMHDR, notify->pResult);
        return TRUE;
    case AfxSigNotify_b:
        return Call<BOOL, UINT, NMHDR *, LRESULT *>(target, entry.pfn, id, notify->pNMHDR, notify->pResult);
    case AfxSigNotify_RANGE:
        Call<void, UINT, NMHDR *, LRESULT *>(target, entry.pfn, id, notify->pNMHDR, notify->pResult);
        return TRUE;
    case AfxSigNotifyReflect_b:
        return Call<BOOL, NMHDR *, LRESULT *>(target, entry.pfn, notify->pNMHDR, notify->pResult);
    default: return FALSE;
    }
}

} // namespace

CCmdTarget::CCmdTarget() {}

const AFX_MSGMAP *CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP *CCmdTarget::GetMessageMap() const {
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void *pExtra, AFX_CMDHANDLERINFO *pHandlerInfo) {
    UINT message = WM_COMMAND;
    if (nCode != CN_UPDATE_COMMAND_UI && HIWORD(nCode) != 0)
        message = HIWORD(nCode);
    const UINT code = LOWORD(nCode);
    for (const AFX_MSGMAP *map = GetMessageMap(); map;
         map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
        for (const AFX_MSGMAP_ENTRY *entry = map->lpEntries; entry->nSig != AfxSig_end; entry++)
            if (entry->nMessage == message && entry->nCode == code && nID >= entry->nID &&
                nID <= entry->nLastID)
                return DispatchCommand(this, nID, *entry, pExtra, pHandlerInfo);
    return FALSE;
}

void CCmdTarget::BeginWaitCursor() {
    AfxBeginWaitCursor();
}

void CCmdTarget::EndWaitCursor() {
    AfxEndWaitCursor();
}

void CCmdTarget::RestoreWaitCursor() {
    if (CWinApp *app = AfxGetApp())
        app->DoWaitCursor(0);
}

CWaitCursor::CWaitCursor() {
    AfxBeginWaitCursor();
}

CWaitCursor::~CWaitCursor() {
    AfxEndWaitCursor();
}

void CWaitCursor::Restore() {
    if (CWinApp *app = AfxGetApp())
        app->DoWaitCursor(0);
}

CCmdUI::CCmdUI() {}

void CCmdUI::Enable(BOOL on) {
    m_bEnableChanged = TRUE;
    if (m_pMenu) {
        // A popup's own line is left alone.
        if (!m_pSubMenu)
            m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (on ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
    } else if (m_pOther) {
        // A control that loses its use may not keep the focus.
        if (!on && ::GetFocus() == m_pOther->m_hWnd)
            m_pOther->GetParent()->SendMessage(WM_NEXTDLGCTL);
        m_pOther->EnableWindow(on);
    }
}

void CCmdUI::SetCheck(int check) {
    if (m_pMenu) {
        if (!m_pSubMenu)
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (check ? MF_CHECKED : MF_UNCHECKED));
    } else if (m_pOther && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON)) {
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(check));
    }
}

void CCmdUI::SetRadio(BOOL on) {
    SetCheck(on);
    if (on && m_pMenu && !m_pSubMenu)
        m_pMenu->CheckMenuRadioItem(m_nIndex, m_nIndex, m_nIndex, MF_BYPOSITION);
}

void CCmdUI::SetText(LPCSTR text) {
    if (m_pMenu) {
        if (m_pSubMenu)
            return;
        const UINT keep = m_pMenu->GetMenuState(m_nIndex, MF_BYPOSITION) &
                          ~static_cast<UINT>(MF_BITMAP | MF_OWNERDRAW | MF_SEPARATOR);
        m_pMenu->ModifyMenu(m_nIndex, MF_BYPOSITION | MF_STRING | keep, m_nID, text);
    } else if (m_pOther) {
        CString old;
        m_pOther->GetWindowText(old);
        if (old != text)
            m_pOther->SetWindowText(text);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget *target, BOOL disableIfNoHandler) {
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE;
    m_bEnableChanged = FALSE;
    const BOOL handled = target->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (disableIfNoHandler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info{};
        Enable(target->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return handled;
}

void CTestCmdUI::Enable(BOOL on) {
    m_bEnabled = on;
    m_bEnableChanged = TRUE;
}
