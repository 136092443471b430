// Calls the handler of a message-map entry: internal to the framework.
#pragma once

#include "afxwin.h"

struct AfxDispatcher {
    // FALSE when the handler declined and the window's class should handle the message.
    static BOOL Call(CWnd *wnd, const AFX_MSGMAP_ENTRY &entry, WPARAM wParam, LPARAM lParam, LRESULT *result);
    // The entry of the message in the class's map or in that of a base; null without one.
    static const AFX_MSGMAP_ENTRY *Find(const AFX_MSGMAP *map, UINT message);
};
