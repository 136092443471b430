#include "afxwin.h"
#include "handlemap.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace {

auto &MenuMap() {
    static auto &map = *new HandleMap<CMenu, HMENU, &CMenu::m_hMenu>;
    return map;
}

} // namespace

CMenu::~CMenu() {
    DestroyMenu();
}

CMenu *CMenu::FromHandle(HMENU menu) {
    return MenuMap().Find(menu, RUNTIME_CLASS(CMenu));
}

CMenu *CMenu::FromHandlePermanent(HMENU menu) {
    return MenuMap().Permanent(menu);
}

void CMenu::DeleteTempMap() {
    MenuMap().DeleteTemporary();
}

BOOL CMenu::Attach(HMENU menu) {
    if (!menu)
        return FALSE;
    MenuMap().SetPermanent(menu, this);
    m_hMenu = menu;
    return TRUE;
}

HMENU CMenu::Detach() {
    const HMENU menu = m_hMenu;
    if (menu && MenuMap().Permanent(menu) == this)
        MenuMap().Remove(menu);
    m_hMenu = nullptr;
    return menu;
}

BOOL CMenu::LoadMenu(LPCTSTR name) {
    return Attach(::LoadMenu(AfxFindResourceHandle(name, RT_MENU), name));
}

BOOL CMenu::DestroyMenu() {
    return m_hMenu ? ::DestroyMenu(Detach()) : FALSE;
}

int CMenu::GetMenuString(UINT id, CString &text, UINT flags) const {
    const int length = ::GetMenuString(m_hMenu, id, nullptr, 0, flags);
    if (length <= 0) {
        text.Empty();
        return 0;
    }
    ::GetMenuString(m_hMenu, id, text.GetBufferSetLength(length), length + 1, flags);
    text.ReleaseBuffer();
    return text.GetLength();
}

CMenu *CMenu::GetSubMenu(int position) const {
    return FromHandle(::GetSubMenu(m_hMenu, position));
}

BOOL CMenu::SetMenuItemBitmaps(UINT position, UINT flags, const CBitmap *unchecked, const CBitmap *checked) {
    return ::SetMenuItemBitmaps(m_hMenu, position, flags,
                                unchecked ? static_cast<HBITMAP>(*unchecked) : nullptr,
                                checked ? static_cast<HBITMAP>(*checked) : nullptr);
}

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd *wnd, LPCRECT rect) {
    return ::TrackPopupMenu(m_hMenu, flags, x, y, 0, wnd ? wnd->m_hWnd : nullptr, rect);
}
