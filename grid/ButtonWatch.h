// CUGButtonWatch: whether the left button came up since the watch began. What a press does may show a box, which is
// closed with the mouse: its release never comes here, and the mouse must not be held for it. A press that was sent
// without the button being down is held until its release is sent.
#pragma once

#include <windows.h>

class CUGButtonWatch {
public:
    bool CameUp() const { return m_wasDown && !IsDown(); }

private:
    static bool IsDown() { return (::GetKeyState(VK_LBUTTON) & 0x8000) != 0; }

    const bool m_wasDown = IsDown();
};
