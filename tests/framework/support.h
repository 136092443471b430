// What the window tests share: an application that answers its own message boxes.
#pragma once

#include "resource.h"
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxext.h>
#include <afxole.h>
#include <afxwin.h>

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

class TestApp : public CWinApp {
public:
    TestApp() : CWinApp("Framework tests") {}
    static TestApp &Get() { return *static_cast<TestApp *>(AfxGetApp()); }

    int DoMessageBox(LPCTSTR prompt, UINT, UINT) override {
        boxes.push_back(prompt);
        return answer;
    }
    // The texts shown since the last call, joined by "|".
    std::string TakeBoxes() {
        std::string text;
        for (const std::string &box : boxes)
            text += (text.empty() ? "" : "|") + box;
        boxes.clear();
        return text;
    }

    std::vector<std::string> boxes;
    int answer = IDOK;
};

// A top-level window without any handler of its own.
class PlainWnd : public CWnd {
public:
    PlainWnd() { CreateEx(0, nullptr, "plain", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr, nullptr); }
    ~PlainWnd() override { DestroyWindow(); }
};

// Calls the action inside the next message loop of this thread, once.
class InLoop {
public:
    explicit InLoop(std::function<void()> action) {
        Current() = std::move(action);
        m_timer = ::SetTimer(nullptr, 0, 1, &Fire);
        Timer() = m_timer;
    }
    ~InLoop() {
        ::KillTimer(nullptr, m_timer);
        Current() = nullptr;
    }

private:
    static std::function<void()> &Current() {
        static std::function<void()> action;
        return action;
    }
    static UINT_PTR &Timer() {
        static UINT_PTR timer = 0;
        return timer;
    }
    static void CALLBACK Fire(HWND, UINT, UINT_PTR, DWORD) {
        ::KillTimer(nullptr, Timer());
        if (auto action = std::exchange(Current(), nullptr))
            action();
    }
    UINT_PTR m_timer;
};
