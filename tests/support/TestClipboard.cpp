#include "TestClipboard.h"

#include <cstring>

void SetClipboardText(HWND owner, const char *text) {
    ::OpenClipboard(owner);
    ::EmptyClipboard();
    if (text != nullptr) {
        const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, std::strlen(text) + 1);
        std::strcpy(static_cast<char *>(::GlobalLock(memory)), text);
        ::GlobalUnlock(memory);
        ::SetClipboardData(CF_TEXT, memory);
    }
    ::CloseClipboard();
}

HeldClipboard::HeldClipboard() {
    for (HANDLE &event : m_events)
        event = ::CreateEventA(nullptr, TRUE, FALSE, nullptr);
    m_thread = ::CreateThread(nullptr, 0, &HeldClipboard::Hold, m_events, 0, nullptr);
    ::WaitForSingleObject(m_events[kHeld], INFINITE);
}

HeldClipboard::~HeldClipboard() {
    ::SetEvent(m_events[kRelease]);
    ::WaitForSingleObject(m_thread, INFINITE);
    ::CloseHandle(m_thread);
    for (const HANDLE event : m_events)
        ::CloseHandle(event);
}

DWORD WINAPI HeldClipboard::Hold(void *events) {
    const HANDLE *event = static_cast<HANDLE *>(events);
    ::OpenClipboard(nullptr);
    ::SetEvent(event[kHeld]);
    ::WaitForSingleObject(event[kRelease], INFINITE);
    ::CloseClipboard();
    return 0;
}
