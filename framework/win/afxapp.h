// The application and its thread, and what is asked of the process; part of afxwin.h.
#pragma once

#include "afxwnd.h"

class CRecentFileList;
class CWinApp;

// The modules that handles and resources are taken from.
struct AFX_MODULE_STATE {
    CWinApp *m_pCurrentWinApp;
    HINSTANCE m_hCurrentInstanceHandle;
    HINSTANCE m_hCurrentResourceHandle;
};

// The process's state, unless another was set.
ORVANEFW_API AFX_MODULE_STATE *AfxGetModuleState();
// Gives the state set before; null returns to the process's.
ORVANEFW_API AFX_MODULE_STATE *AfxSetModuleState(AFX_MODULE_STATE *state);

struct ORVANEFW_API AFX_MAINTAIN_STATE {
    explicit AFX_MAINTAIN_STATE(AFX_MODULE_STATE *state) : m_previous(AfxSetModuleState(state)) {}
    ~AFX_MAINTAIN_STATE() { AfxSetModuleState(m_previous); }
    AFX_MODULE_STATE *m_previous;
};
#define AFX_MANAGE_STATE(state) AFX_MAINTAIN_STATE _afxModuleState(state)

class ORVANEFW_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
public:
    CWinThread();
    ~CWinThread() override;

    virtual BOOL InitInstance() { return FALSE; }
    // The message loop, until WM_QUIT; gives ExitInstance's result.
    virtual int Run();
    virtual int ExitInstance();
    // FALSE on WM_QUIT.
    virtual BOOL PumpMessage();
    virtual BOOL PreTranslateMessage(MSG *msg);
    virtual BOOL IsIdleMessage(MSG *msg);
    // TRUE asks for another call while the queue is empty; count rises from zero with each.
    virtual BOOL OnIdle(LONG count);
    // Of an exception that a message handler let out; the result becomes the message's.
    virtual LRESULT ProcessWndProcException(CException *e, const MSG *msg);
    virtual CWnd *GetMainWnd() { return m_pMainWnd; }

    CWnd *m_pMainWnd;
    DWORD m_nThreadID;
    MSG m_msgCur;

private:
    CPoint m_lastMouse;
    UINT m_lastMouseMessage;
};

class ORVANEFW_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    // One object at a time; it is what AfxGetApp gives.
    explicit CWinApp(LPCTSTR appName = nullptr);
    ~CWinApp() override;

    BOOL InitInstance() override { return TRUE; }
    int Run() override;
    int ExitInstance() override;
    BOOL OnIdle(LONG count) override;
    LRESULT ProcessWndProcException(CException *e, const MSG *msg) override;
    virtual BOOL InitApplication() { return TRUE; }

    // Every message box of the framework comes through here.
    virtual int DoMessageBox(LPCTSTR prompt, UINT type, UINT helpId);
    // 1 begins, -1 ends, 0 restores.
    virtual void DoWaitCursor(int code);

    HCURSOR LoadCursor(LPCTSTR name) const;
    HCURSOR LoadCursor(UINT id) const { return LoadCursor(MAKEINTRESOURCE(id)); }
    HCURSOR LoadStandardCursor(LPCTSTR name) const { return ::LoadCursor(nullptr, name); }
    HICON LoadIcon(LPCTSTR name) const;
    HICON LoadIcon(UINT id) const { return LoadIcon(MAKEINTRESOURCE(id)); }
    HICON LoadStandardIcon(LPCTSTR name) const { return ::LoadIcon(nullptr, name); }

    // The profile: HKEY_CURRENT_USER\Software\<key>\<profile name> after SetRegistryKey, else an .INI file.
    void SetRegistryKey(LPCTSTR key);
    void SetRegistryKey(UINT id);
    UINT GetProfileInt(LPCTSTR section, LPCTSTR entry, int defaultValue);
    CString GetProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR defaultValue = nullptr);
    // The caller frees *data with delete[].
    BOOL GetProfileBinary(LPCTSTR section, LPCTSTR entry, BYTE **data, UINT *count);
    BOOL WriteProfileInt(LPCTSTR section, LPCTSTR entry, int value);
    // A null value removes the entry, a null entry the section.
    BOOL WriteProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR value);
    BOOL WriteProfileBinary(LPCTSTR section, LPCTSTR entry, BYTE *data, UINT count);
    // Null without a registry key; the caller closes it.
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR section);

    void LoadStdProfileSettings(UINT maxRecentFiles = 4);
    void SaveStdProfileSettings();
    virtual void AddToRecentFileList(LPCTSTR path);
    // Called with the path of a chosen recent file; FALSE takes it from the list.
    virtual BOOL OpenRecentFile(LPCTSTR) { return FALSE; }

    HINSTANCE m_hInstance;
    LPSTR m_lpCmdLine;
    int m_nCmdShow;
    LPCTSTR m_pszAppName; // owned, as the following are
    LPCTSTR m_pszRegistryKey;
    LPCTSTR m_pszProfileName;
    LPCTSTR m_pszExeName;
    CRecentFileList *m_pRecentFileList;

protected:
    void OnAppExit();
    void OnUpdateRecentFileMenu(CCmdUI *cmdUI);
    BOOL OnOpenRecentFile(UINT id);
    DECLARE_MESSAGE_MAP()

private:
    friend BOOL AfxWinInit(HINSTANCE, HINSTANCE, LPSTR, int);
    static void Replace(LPCTSTR &text, LPCTSTR value);

    int m_waitCursorCount;
    HCURSOR m_waitCursorRestore;
};

// The most recently used files, kept in the profile and shown in the menu that holds ID_FILE_MRU_FILE1.
class ORVANEFW_API CRecentFileList {
public:
    CRecentFileList(UINT start, LPCTSTR section, LPCTSTR entryFormat, int size, int maxDisplayLength = 30);

    int GetSize() const { return m_names.GetSize(); }
    CString &operator[](int index) { return m_names[index]; }
    virtual ~CRecentFileList() {}
    virtual void Add(LPCTSTR path);
    virtual void Remove(int index);
    virtual void UpdateMenu(CCmdUI *cmdUI);
    virtual void ReadList();
    virtual void WriteList();

private:
    CStringArray m_names;
    UINT m_start;
    CString m_section;
    CString m_entryFormat;
    int m_maxDisplayLength;
    CString m_originalText;
};

ORVANEFW_API BOOL AfxWinInit(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show);
// Runs the application object: what WinMain does.
ORVANEFW_API int AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show);
ORVANEFW_API void AfxWinTerm();

ORVANEFW_API CWinApp *AfxGetApp();
ORVANEFW_API CWinThread *AfxGetThread();
ORVANEFW_API CWnd *AfxGetMainWnd();
ORVANEFW_API LPCTSTR AfxGetAppName();
ORVANEFW_API HINSTANCE AfxGetInstanceHandle();
ORVANEFW_API HINSTANCE AfxGetResourceHandle();
ORVANEFW_API void AfxSetResourceHandle(HINSTANCE module);
// The module that holds the resource: the resource handle's, else the program's; else the resource handle.
ORVANEFW_API HINSTANCE AfxFindResourceHandle(LPCTSTR name, LPCTSTR type);

// Through the application object; without one the system's box is shown.
ORVANEFW_API int AfxMessageBox(LPCTSTR text, UINT type = MB_OK, UINT helpId = 0);
ORVANEFW_API int AfxMessageBox(UINT textId, UINT type = MB_OK, UINT helpId = UINT(-1));
ORVANEFW_API void AfxFormatString1(CString &result, UINT id, LPCTSTR text);
ORVANEFW_API void AfxFormatString2(CString &result, UINT id, LPCTSTR first, LPCTSTR second);
ORVANEFW_API void AfxPostQuitMessage(int exitCode);
ORVANEFW_API void AfxBeginWaitCursor();
ORVANEFW_API void AfxEndWaitCursor();
// Takes and handles one message, waiting for it; FALSE on WM_QUIT. For loops that have to wait themselves.
ORVANEFW_API BOOL AfxPumpMessage();
