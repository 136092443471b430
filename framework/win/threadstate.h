// What the window machinery remembers between two calls of the system: internal to the framework.
#pragma once

#include "afxwin.h"

#include <vector>

struct ThreadState {
    MSG lastSentMessage{};          // the one that is being handled
    CWnd *windowToCreate = nullptr; // gets the next window of this thread
    HHOOK createHook = nullptr;
    HWND notificationsLockedOut = nullptr; // the dialog that is exchanging data
    class AfxHandlerScope *handler = nullptr; // the innermost one at work
    std::vector<CWnd *> doomed;            // windows whose objects go when no handler is at work any more
};

ThreadState &AfxThreadState();

// A handler at work, a window procedure or the start of the program, which may run message loops of its own. Lives on the
// stack.
class AfxHandlerScope {
public:
    AfxHandlerScope();
    ~AfxHandlerScope();
    AfxHandlerScope(const AfxHandlerScope &) = delete;
    AfxHandlerScope &operator=(const AfxHandlerScope &) = delete;

private:
    AfxHandlerScope *m_outer;
};

// Deletes the object of a window that is gone once no handler is at work that may still use it: a window may go within a
// message box or dialog that its own command shows.
void AfxDeleteAfterHandlers(CWnd *wnd);
void AfxDeleteTempObjects();
// The window that a modal dialog or message box of the parent, or of the main window, belongs to.
// *disabledTop gets the top-level window that had to be disabled, or null.
HWND AfxSafeOwner(HWND parent, HWND *disabledTop);
// Takes one message and handles it; FALSE on WM_QUIT. *current gets the message.
BOOL AfxPumpMessage(MSG *current);
// The same by the thread's own PumpMessage, if there is a thread object.
BOOL AfxPumpThread(MSG *current);
// Whether the message is a reason to go idle after it.
BOOL AfxIsIdleMessage(MSG *message);
