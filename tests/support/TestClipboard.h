// The clipboard as a test finds it: given a text, and held open by somebody else.
#pragma once

#include <windows.h>

// Null for a clipboard without text.
void SetClipboardText(HWND owner, const char *text);

// Another thread holds the clipboard open for the duration of a block, as another program would.
class HeldClipboard {
public:
    HeldClipboard();
    ~HeldClipboard();
    HeldClipboard(const HeldClipboard &) = delete;
    HeldClipboard &operator=(const HeldClipboard &) = delete;

private:
    static DWORD WINAPI Hold(void *events);

    enum { kHeld, kRelease };
    HANDLE m_events[2];
    HANDLE m_thread;
};
