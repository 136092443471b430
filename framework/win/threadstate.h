// What the window machinery remembers between two calls of the system: internal to the framework.
#pragma once

#include "afxwin.h"

struct ThreadState {
    MSG lastSentMessage{};          // the one that is being handled
    CWnd *windowToCreate = nullptr; // gets the next window of this thread
    HHOOK createHook = nullptr;
    HWND notificationsLockedOut = nullptr; // the dialog that is exchanging data
};

ThreadState &AfxThreadState();
void AfxDeleteTempObjects();
// The window that a modal dialog or message box of the parent, or of the main window, belongs to. *disabledTop
// gets the top-level window that had to be disabled, or null.
HWND AfxSafeOwner(HWND parent, HWND *disabledTop);
// Takes one message and handles it; FALSE on WM_QUIT. *current gets the message.
BOOL AfxPumpMessage(MSG *current);
// The same by the thread's own PumpMessage, if there is a thread object.
BOOL AfxPumpThread(MSG *current);
// Whether the message is a reason to go idle after it.
BOOL AfxIsIdleMessage(MSG *message);
