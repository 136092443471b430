// CCmdTarget, the receiver of commands, its message maps and CCmdUI; part of afxwin.h.
#pragma once

#include <afx.h>
#include <windows.h>

class CCmdTarget;
class CCmdUI;
class CMenu;
class CWnd;

typedef void (CCmdTarget::*AFX_PMSG)();

// A line of a message map. nSig tells how the message is unpacked for pfn; for a registered message it is the
// address of the message's number.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;
    UINT nID;
    UINT nLastID;
    UINT_PTR nSig;
    AFX_PMSG pfn;
};

struct AFX_MSGMAP {
    const AFX_MSGMAP *(*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY *lpEntries;
};

// Filled instead of calling the handler, when the question is who would handle a command.
struct AFX_CMDHANDLERINFO {
    CCmdTarget *pTarget;
    AFX_PMSG pmf;
};

struct AFX_NOTIFY {
    LRESULT *pResult;
    NMHDR *pNMHDR;
};

constexpr int CN_COMMAND = 0;
constexpr int CN_UPDATE_COMMAND_UI = -1;

class ORVANEFW_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    // Finds and calls the handler of a command, control notification or update. nCode holds the message in
    // its upper word when it is not WM_COMMAND. TRUE when handled.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void *pExtra, AFX_CMDHANDLERINFO *pHandlerInfo);

    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

protected:
    CCmdTarget();
    static const AFX_MSGMAP *GetThisMessageMap();
    virtual const AFX_MSGMAP *GetMessageMap() const;

    friend class CWnd;
    friend class CCmdUI;
};

// One command's place in the user interface, handed to its update handler.
class ORVANEFW_API CCmdUI {
public:
    CCmdUI();
    virtual ~CCmdUI() {}

    virtual void Enable(BOOL on = TRUE);
    virtual void SetCheck(int check = 1); // 0 off, 1 on, 2 indeterminate
    virtual void SetRadio(BOOL on = TRUE);
    virtual void SetText(LPCSTR text);
    // The handler gives up: routing goes on.
    void ContinueRouting() { m_bContinueRouting = TRUE; }

    // TRUE when a handler was found. An item without any handler is disabled when disableIfNoHandler is set.
    BOOL DoUpdate(CCmdTarget *target, BOOL disableIfNoHandler);

    UINT m_nID = 0;
    UINT m_nIndex = 0; // of the menu item, or of the bar's pane or button
    CMenu *m_pMenu = nullptr;
    CMenu *m_pSubMenu = nullptr;
    CMenu *m_pParentMenu = nullptr;
    CWnd *m_pOther = nullptr; // the bar or control, when it is no menu
    UINT m_nIndexMax = 0;
    BOOL m_bEnableChanged = FALSE;
    BOOL m_bContinueRouting = FALSE;
};

// Asks whether a command is enabled, without a visible place.
class ORVANEFW_API CTestCmdUI : public CCmdUI {
public:
    void Enable(BOOL on = TRUE) override;
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCSTR) override {}

    BOOL m_bEnabled = TRUE;
};

// The hourglass, from construction to destruction.
class ORVANEFW_API CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor &) = delete;
    void operator=(const CWaitCursor &) = delete;
    void Restore();
};
