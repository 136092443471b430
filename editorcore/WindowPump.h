// PumpWindow: handles the messages that wait for a window now. What the program is to end with, which every look at the
// queue takes out whatever it looks for, is put back.
#pragma once

#include <windows.h>

// True, and the message is in the queue again, where it ends the program.
inline bool PutBackQuit(const MSG &message) {
    if (message.message != WM_QUIT)
        return false;
    ::PostQuitMessage(static_cast<int>(message.wParam));
    return true;
}

// A message for which `drops` is true is thrown away.
template <class Drops> void PumpWindow(HWND window, Drops drops) {
    MSG message;
    while (::PeekMessageA(&message, window, 0, 0, PM_REMOVE)) {
        if (PutBackQuit(message))
            return;
        if (drops(message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessageA(&message);
    }
}
