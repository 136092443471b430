#include "WindowTestApp.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

constexpr DWORD kPatienceMs = 5000;

WindowTestApp theTestApp;

void DispatchOne(MSG *message) {
    ::TranslateMessage(message);
    ::DispatchMessageA(message);
}

int g_systemAnswer = 0;
std::string g_systemBox;

LRESULT CALLBACK AnswerBox(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE) {
        const HWND box = reinterpret_cast<HWND>(wParam);
        char className[16] = "";
        ::GetClassNameA(box, className, sizeof className);
        if (std::strcmp(className, "#32770") == 0) {
            constexpr int kTextId = 0xFFFF;
            g_systemBox = WindowText(box) + "|" + WindowText(::GetDlgItem(box, kTextId));
            ::PostMessageA(box, WM_COMMAND, g_systemAnswer, 0);
        }
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

} // namespace

WindowTestApp &TestApp() {
    return theTestApp;
}

int WindowTestApp::DoMessageBox(LPCTSTR prompt, UINT type, UINT) {
    m_boxes.push_back(std::string(prompt) + "|" + std::to_string(type));
    if (m_whileUp)
        m_whileUp(prompt);
    if (m_answers.empty())
        return IDOK;
    const int answer = m_answers.front();
    m_answers.pop_front();
    return answer;
}

std::string WindowTestApp::TakeBoxes() {
    return Join(std::exchange(m_boxes, {}), "\n");
}

void PumpAll() {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchOne(&message);
}

void PumpUntil(const char *awaited, const std::function<bool()> &predicate) {
    const ULONGLONG deadline = ::GetTickCount64() + kPatienceMs;
    for (;;) {
        PumpAll();
        if (predicate())
            return;
        const ULONGLONG now = ::GetTickCount64();
        if (now >= deadline) {
            ADD_FAILURE() << "gave up waiting for " << awaited;
            return;
        }
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(deadline - now), QS_ALLINPUT);
    }
}

HostWindow::HostWindow(int width, int height) {
    CreateEx(0, AfxRegisterWndClass(0), "window test", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN,
             CRect(0, 0, width, height), nullptr, 0);
    SetForegroundWindow();
    ::SetActiveWindow(m_hWnd);
}

std::string HostWindow::TakeMessages() {
    PumpAll();
    return Join(std::exchange(m_messages, {}));
}

LRESULT HostWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const bool command = message == WM_COMMAND && lParam == 0;
    if (command || (message >= WM_USER && message < WM_APP)) {
        const auto shown = [](ULONG_PTR value) {
            return value > 0xFFFF ? std::string("1") : std::to_string(value);
        };
        m_messages.push_back(std::to_string(message) + "(" + shown(wParam) + "," +
                             shown(static_cast<ULONG_PTR>(lParam)) + ")");
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

HeldKeys::HeldKeys(std::initializer_list<int> keys) {
    ::GetKeyboardState(m_before);
    BYTE state[256];
    std::memcpy(state, m_before, sizeof state);
    for (int key : keys)
        state[key] = 0x80;
    ::SetKeyboardState(state);
}

HeldKeys::~HeldKeys() {
    ::SetKeyboardState(m_before);
}

SystemBoxAnswer::SystemBoxAnswer(int answer) {
    g_systemAnswer = answer;
    g_systemBox.clear();
    m_hook = ::SetWindowsHookExA(WH_CBT, AnswerBox, nullptr, ::GetCurrentThreadId());
}

SystemBoxAnswer::~SystemBoxAnswer() {
    ::UnhookWindowsHookEx(m_hook);
}

std::string SystemBoxAnswer::Seen() {
    return g_systemBox;
}

namespace {

std::function<void(HWND)> g_dialogAct;
bool g_dialogAgain = false;

void CALLBACK LookForDialog(HWND, UINT, UINT_PTR, DWORD) {
    const HWND active = ::GetActiveWindow();
    char className[16] = "";
    if (active != nullptr)
        ::GetClassNameA(active, className, sizeof className);
    if (!g_dialogAct || std::strcmp(className, "#32770") != 0)
        return;
    if (g_dialogAgain)
        g_dialogAct(active);
    else
        std::exchange(g_dialogAct, nullptr)(active);
}

} // namespace

WithDialog::WithDialog(std::function<void(HWND)> act, bool again) {
    constexpr UINT kLookEveryMs = 5;
    g_dialogAgain = again;
    g_dialogAct = std::move(act);
    m_timer = ::SetTimer(nullptr, 0, kLookEveryMs, LookForDialog);
}

WithDialog::~WithDialog() {
    ::KillTimer(nullptr, m_timer);
    g_dialogAct = nullptr;
}

bool WithDialog::Acted() const {
    return !g_dialogAct;
}

void SendKey(HWND window, UINT key) {
    ::SendMessageA(window, WM_KEYDOWN, key, 1);
    // The window may be gone with the key, as an edit box is with Enter.
    if (::IsWindow(window))
        ::SendMessageA(window, WM_KEYUP, key, 1);
}

void SendChar(HWND window, UINT character) {
    ::SendMessageA(window, WM_CHAR, character, 1);
}

void TypeText(HWND window, const char *text) {
    for (; *text != '\0'; ++text)
        SendChar(window, static_cast<unsigned char>(*text));
}

void PressLeft(HWND window, int x, int y, UINT flags) {
    ::SendMessageA(window, WM_LBUTTONDOWN, flags, MAKELPARAM(x, y));
}

void ReleaseLeft(HWND window, int x, int y) {
    ::SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

void MoveMouse(HWND window, int x, int y, UINT flags) {
    ::SendMessageA(window, WM_MOUSEMOVE, flags, MAKELPARAM(x, y));
}

void ClickLeft(HWND window, int x, int y) {
    PressLeft(window, x, y);
    ReleaseLeft(window, x, y);
}

std::string WindowText(HWND window) {
    char text[512] = "";
    ::GetWindowTextA(window, text, sizeof text);
    return text;
}

namespace {

constexpr int kProbes = 64; // more than the holes that are left by what came and went

// Makes some handles, so that the holes are filled, and gives the highest index among them.
template <class Make, class Free> int HighestHandle(Make make, Free free) {
    int highest = 0;
    std::vector<decltype(make())> handles;
    for (int i = 0; i < kProbes; ++i) {
        handles.push_back(make());
        highest = std::max<int>(highest, LOWORD(reinterpret_cast<ULONG_PTR>(handles.back())));
    }
    for (auto handle : handles)
        free(handle);
    return highest;
}

} // namespace

int HighestDrawingHandle() {
    return HighestHandle([] { return ::CreatePen(PS_SOLID, 1, 0); }, [](HPEN pen) { ::DeleteObject(pen); });
}

int HighestMenuHandle() {
    return HighestHandle([] { return ::CreatePopupMenu(); }, [](HMENU menu) { ::DestroyMenu(menu); });
}

std::string Join(const std::vector<std::string> &parts, const char *between) {
    std::string all;
    for (size_t i = 0; i < parts.size(); ++i)
        all += (i > 0 ? between : "") + parts[i];
    return all;
}
