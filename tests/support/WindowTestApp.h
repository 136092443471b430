// What every window test stands on: the application object that answers message boxes from a script, the
// pumping of messages, a top-level window, and input sent as messages.
#pragma once

#include <afxwin.h>

#include <deque>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

class WindowTestApp : public CWinApp {
public:
    int DoMessageBox(LPCTSTR prompt, UINT type, UINT helpId) override;
    // Boxes are answered in this order, and with IDOK behind the last.
    void Answer(std::initializer_list<int> answers) { m_answers.assign(answers); }
    // The boxes shown since the last call, "text|flags" each, apart by newlines.
    std::string TakeBoxes();
    // Called while a box is up, with its text.
    std::function<void(const std::string &)> m_whileUp;

private:
    std::deque<int> m_answers;
    std::vector<std::string> m_boxes;
};

WindowTestApp &TestApp();

// Handles every message that waits now.
void PumpAll();
// Handles messages until the predicate holds. Fails the test, naming what was awaited, after some seconds.
void PumpUntil(const char *awaited, const std::function<bool()> &predicate);

std::string Join(const std::vector<std::string> &parts, const char *between = " ");

// A visible, active top-level window for controls. It notes the posted messages that it is told to.
class HostWindow : public CWnd {
public:
    explicit HostWindow(int width = 640, int height = 480);
    ~HostWindow() override { DestroyWindow(); }
    // "message(wParam,lParam)" each, with pointers shown as 1; messages from WM_USER on, and WM_COMMAND from
    // elsewhere than controls.
    std::string TakeMessages();
    // What has been noted so far, without handling what waits.
    std::string Noted() const { return Join(m_messages); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    std::vector<std::string> m_messages;
};

// Holds keys down, as the thread's key state shows them, for the length of a block.
class HeldKeys {
public:
    explicit HeldKeys(std::initializer_list<int> keys);
    ~HeldKeys();
    HeldKeys(const HeldKeys &) = delete;
    HeldKeys &operator=(const HeldKeys &) = delete;

private:
    BYTE m_before[256];
};

// Answers the next message box that comes from the system itself, and keeps its text and caption.
class SystemBoxAnswer {
public:
    explicit SystemBoxAnswer(int answer);
    ~SystemBoxAnswer();
    SystemBoxAnswer(const SystemBoxAnswer &) = delete;
    SystemBoxAnswer &operator=(const SystemBoxAnswer &) = delete;
    // "caption|text" of the last box; empty while none came.
    static std::string Seen();

private:
    HHOOK m_hook;
};

// Does something with the next modal dialog, once it is up and its loop runs; or with every one, again and again, as
// long as one is up.
class WithDialog {
public:
    explicit WithDialog(std::function<void(HWND)> act, bool again = false);
    ~WithDialog();
    WithDialog(const WithDialog &) = delete;
    WithDialog &operator=(const WithDialog &) = delete;
    bool Acted() const;

private:
    UINT_PTR m_timer;
};

// Sent synchronously. A key is its going down, its character when there is one, and its going up.
void SendKey(HWND window, UINT key);
void SendChar(HWND window, UINT character);
void TypeText(HWND window, const char *text);
void PressLeft(HWND window, int x, int y, UINT flags = MK_LBUTTON);
void ReleaseLeft(HWND window, int x, int y);
void MoveMouse(HWND window, int x, int y, UINT flags);
void ClickLeft(HWND window, int x, int y);
std::string WindowText(HWND window);

// Highest index of a drawing object's or menu's handle that a new one gets now. It rises by what leaked; the
// system's own count is not to be had everywhere.
int HighestDrawingHandle();
int HighestMenuHandle();
