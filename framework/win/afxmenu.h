// CMenu; part of afxwin.h.
#pragma once

#include <afx.h>
#include <windows.h>

class CBitmap;
class CWnd;

class ORVANEFW_API CMenu : public CObject {
    DECLARE_DYNCREATE(CMenu)
public:
    CMenu() : m_hMenu(nullptr) {}
    // Destroys the menu; a window's menu is detached first.
    ~CMenu() override;

    operator HMENU() const { return m_hMenu; }
    HMENU GetSafeHmenu() const { return m_hMenu; }
    static CMenu *FromHandle(HMENU menu);
    static CMenu *FromHandlePermanent(HMENU menu);
    static void DeleteTempMap();
    BOOL Attach(HMENU menu);
    HMENU Detach();

    BOOL CreateMenu() { return Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    BOOL LoadMenu(LPCTSTR name);
    BOOL LoadMenu(UINT id) { return LoadMenu(MAKEINTRESOURCE(id)); }
    BOOL LoadMenuIndirect(const void *source) { return Attach(::LoadMenuIndirect(source)); }
    BOOL DestroyMenu();

    BOOL AppendMenu(UINT flags, UINT_PTR id = 0, LPCTSTR item = nullptr) {
        return ::AppendMenu(m_hMenu, flags, id, item);
    }
    BOOL InsertMenu(UINT position, UINT flags, UINT_PTR id = 0, LPCTSTR item = nullptr) {
        return ::InsertMenu(m_hMenu, position, flags, id, item);
    }
    BOOL ModifyMenu(UINT position, UINT flags, UINT_PTR id = 0, LPCTSTR item = nullptr) {
        return ::ModifyMenu(m_hMenu, position, flags, id, item);
    }
    BOOL DeleteMenu(UINT position, UINT flags) { return ::DeleteMenu(m_hMenu, position, flags); }
    BOOL RemoveMenu(UINT position, UINT flags) { return ::RemoveMenu(m_hMenu, position, flags); }
    UINT CheckMenuItem(UINT id, UINT check) { return ::CheckMenuItem(m_hMenu, id, check); }
    BOOL CheckMenuRadioItem(UINT first, UINT last, UINT item, UINT flags) {
        return ::CheckMenuRadioItem(m_hMenu, first, last, item, flags);
    }
    UINT EnableMenuItem(UINT id, UINT enable) {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, id, enable));
    }
    BOOL SetDefaultItem(UINT item, BOOL byPosition = FALSE) {
        return ::SetMenuDefaultItem(m_hMenu, item, byPosition);
    }
    UINT GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
    // UINT(-1) for a popup, 0 for a separator.
    UINT GetMenuItemID(int position) const { return ::GetMenuItemID(m_hMenu, position); }
    UINT GetMenuState(UINT id, UINT flags) const { return ::GetMenuState(m_hMenu, id, flags); }
    int GetMenuString(UINT id, LPTSTR text, int capacity, UINT flags) const {
        return ::GetMenuString(m_hMenu, id, text, capacity, flags);
    }
    int GetMenuString(UINT id, CString &text, UINT flags) const;
    BOOL GetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE) {
        return ::GetMenuItemInfo(m_hMenu, item, byPosition, info);
    }
    BOOL SetMenuItemInfo(UINT item, LPMENUITEMINFO info, BOOL byPosition = FALSE) {
        return ::SetMenuItemInfo(m_hMenu, item, byPosition, info);
    }
    // Null when there is no popup there.
    CMenu *GetSubMenu(int position) const;
    BOOL SetMenuItemBitmaps(UINT position, UINT flags, const CBitmap *unchecked, const CBitmap *checked);
    // Screen coordinates. With TPM_RETURNCMD the chosen command, else whether it was shown.
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd *wnd, LPCRECT rect = nullptr);

    // Of owner-drawn items.
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) {}

    HMENU m_hMenu;
};
