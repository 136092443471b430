// Frame windows, MDI and views; part of afxwin.h.
#pragma once

#include "afxwnd.h"

class CControlBar;
class CMDIChildWnd;

class CView;

// The title shows what the frame's window contains beside its own title.
constexpr DWORD FWS_ADDTOTITLE = 0x8000;

// Sent by a frame to its children when they are laid out: each takes its part of rect.
constexpr UINT WM_SIZEPARENT = 0x0361;
struct AFX_SIZEPARENTPARAMS {
    HDWP hDWP;
    RECT rect;
};

class ORVANEFW_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)
public:
    CFrameWnd();
    ~CFrameWnd() override;
    static const RECT rectDefault; // the system chooses

    BOOL Create(LPCTSTR className, LPCTSTR windowName, DWORD style = WS_OVERLAPPEDWINDOW,
                const RECT &rect = rectDefault, CWnd *parent = nullptr, LPCTSTR menuName = nullptr,
                DWORD exStyle = 0, void *createParam = nullptr);
    using CWnd::Create;
    // Menu, accelerators, icon and title of one identifier.
    virtual BOOL LoadFrame(UINT id, DWORD style = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd *parent = nullptr, void *createParam = nullptr);
    BOOL LoadAccelTable(LPCTSTR name);
    virtual HACCEL GetDefaultAccelerator() { return m_hAccelTable; }

    virtual CFrameWnd *GetActiveFrame() { return this; }
    CView *GetActiveView() const { return m_pViewActive; }
    // Does not set the focus.
    void SetActiveView(CView *view, BOOL notify = TRUE);
    virtual void RecalcLayout(BOOL notify = TRUE);
    virtual void ActivateFrame(int command = -1);
    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR title) { m_strTitle = title; }
    // Writes the title into the caption; the system adds a maximised child's.
    virtual void OnUpdateFrameTitle(BOOL addToTitle);
    virtual void GetMessageString(UINT id, CString &text) const;
    virtual CWnd *GetMessageBar();
    void SetMessageText(LPCTSTR text);
    void SetMessageText(UINT id);
    BOOL IsTracking() const { return m_nIDTracking != 0 && m_nIDTracking != kIdleMessage; }

    // Disables the frame and all windows that it owns; the calls may nest. A frame that is disabled, as by a
    // message box, does so by itself.
    void BeginModalState() override;
    void EndModalState() override;
    BOOL InModalState() const { return m_cModalStack != 0; }

    BOOL PreCreateWindow(CREATESTRUCT &cs) override;
    BOOL PreTranslateMessage(MSG *msg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void *pExtra, AFX_CMDHANDLERINFO *pHandlerInfo) override;

    // Entries and items without any handler are disabled.
    BOOL m_bAutoMenuEnable;
    HACCEL m_hAccelTable;

    static constexpr UINT kIdleMessage = AFX_IDS_IDLEMESSAGE;

protected:
    friend class CControlBar;
    virtual BOOL OnCreateClient(LPCREATESTRUCT, void *) { return TRUE; }
    void PostNcDestroy() override;

    int OnCreate(LPCREATESTRUCT cs);
    void OnDestroy();
    void OnClose();
    void OnSize(UINT type, int cx, int cy);
    void OnSetFocus(CWnd *old);
    void OnActivate(UINT state, CWnd *other, BOOL minimized);
    void OnEnable(BOOL enable);
    void OnInitMenuPopup(CMenu *menu, UINT index, BOOL systemMenu);
    void OnMenuSelect(UINT item, UINT flags, HMENU menu);
    LRESULT OnSetMessageString(WPARAM id, LPARAM text);
    LRESULT OnPopMessageString(WPARAM id, LPARAM text);
    BOOL OnBarCheck(UINT id);
    void OnUpdateControlBarMenu(CCmdUI *cmdUI);
    void OnUpdateKeyIndicator(CCmdUI *cmdUI);
    DECLARE_MESSAGE_MAP()

    CString m_strTitle;
    CView *m_pViewActive;
    UINT m_nIDHelp;
    UINT m_nIDTracking;
    UINT m_nIDLastMessage;

    // The window class with the icon of the identifier.
    static LPCTSTR IconWndClass(UINT id, HBRUSH background);

    HMENU m_hMenuDefault;

private:
    int m_cModalStack;
    CPtrArray m_disabled; // the windows that BeginModalState disabled
    int m_disabledCount;
    BOOL m_disabledByOwner; // not by a call of BeginModalState
    BOOL m_inLayout;
};

// Its client area is the system's MDI client, which holds the children.
class ORVANEFW_API CMDIFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIFrameWnd)
public:
    CMDIFrameWnd();

    void MDIActivate(CWnd *child) {
        ::SendMessage(m_hWndMDIClient, WM_MDIACTIVATE, WPARAM(child->m_hWnd), 0);
    }
    void MDINext() { ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, 0); }
    void MDIPrev() { ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, 1); }
    CMDIChildWnd *MDIGetActive(BOOL *maximized = nullptr) const;
    void MDIIconArrange() { ::SendMessage(m_hWndMDIClient, WM_MDIICONARRANGE, 0, 0); }
    void MDIMaximize(CWnd *child) {
        ::SendMessage(m_hWndMDIClient, WM_MDIMAXIMIZE, WPARAM(child->m_hWnd), 0);
    }
    void MDIRestore(CWnd *child) { ::SendMessage(m_hWndMDIClient, WM_MDIRESTORE, WPARAM(child->m_hWnd), 0); }
    CMenu *MDISetMenu(CMenu *frameMenu, CMenu *windowMenu);
    void MDITile(int type = 0) { ::SendMessage(m_hWndMDIClient, WM_MDITILE, WPARAM(type), 0); }
    void MDICascade(int type = 0) { ::SendMessage(m_hWndMDIClient, WM_MDICASCADE, WPARAM(type), 0); }

    virtual BOOL CreateClient(LPCREATESTRUCT cs, CMenu *windowMenu);
    // The popup to which the system appends the list of children: the last one with a window command.
    virtual HMENU GetWindowMenuPopup(HMENU menuBar);
    // The active child, or this frame.
    CFrameWnd *GetActiveFrame() override;
    BOOL PreCreateWindow(CREATESTRUCT &cs) override;
    BOOL PreTranslateMessage(MSG *msg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void *pExtra, AFX_CMDHANDLERINFO *pHandlerInfo) override;

    HWND m_hWndMDIClient;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT cs, void *context) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnDestroy();
    void OnUpdateMDIWindowCmd(CCmdUI *cmdUI);
    BOOL OnMDIWindowCmd(UINT id);
    DECLARE_MESSAGE_MAP()

    friend class CMDIChildWnd;
};

class ORVANEFW_API CMDIChildWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIChildWnd)
public:
    CMDIChildWnd();
    ~CMDIChildWnd() override;

    // A null parent is the application's main frame.
    virtual BOOL Create(LPCTSTR className, LPCTSTR windowName,
                        DWORD style = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                        const RECT &rect = rectDefault, CMDIFrameWnd *parent = nullptr,
                        void *createParam = nullptr);
    BOOL LoadFrame(UINT id, DWORD style = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd *parent = nullptr, void *createParam = nullptr) override;
    // The menu that the frame shows while this child is active; owned by the child.
    void SetHandles(HMENU menu, HACCEL accelerators);

    void MDIDestroy() { DestroyWindow(); }
    void MDIActivate() { GetMDIFrame()->MDIActivate(this); }
    void MDIMaximize() { GetMDIFrame()->MDIMaximize(this); }
    void MDIRestore() { GetMDIFrame()->MDIRestore(this); }
    CMDIFrameWnd *GetMDIFrame();

    BOOL DestroyWindow() override;
    BOOL PreCreateWindow(CREATESTRUCT &cs) override;
    BOOL PreTranslateMessage(MSG *msg) override;
    void ActivateFrame(int command = -1) override;
    CWnd *GetMessageBar() override;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    int OnCreate(LPCREATESTRUCT cs);
    void OnMDIActivate(BOOL activate, CWnd *activated, CWnd *deactivated);
    DECLARE_MESSAGE_MAP()

private:
    HMENU m_hMenuShared;
};

// A window that draws itself in OnDraw.
class ORVANEFW_API CView : public CWnd {
    DECLARE_DYNAMIC(CView)
public:
    BOOL PreCreateWindow(CREATESTRUCT &cs) override;

protected:
    CView() {}
    virtual void OnDraw(CDC *dc) = 0;
    virtual void OnInitialUpdate() {}
    virtual void OnActivateView(BOOL activate, CView *activated, CView *deactivated);
    void PostNcDestroy() override;
    void OnPaint();
    void OnDestroy();
    int OnMouseActivate(CWnd *desktop, UINT hitTest, UINT message);
    DECLARE_MESSAGE_MAP()

    friend class CFrameWnd;
    friend class CMDIChildWnd;
};
