// CLongWork: shows how far long work has come, over the messages of the status bar, with a button that stops it. The
// work itself asks Step now and then; between two questions nothing of the program runs, so what is typed and clicked
// while the bar is up is thrown away, but for Escape and the button.
#pragma once

#include <afxcmn.h>

#include <cstdint>

class CLongWork : public CWnd {
public:
    // The work begins, or goes on after a question to the user: the bar appears some moments from now.
    void Begin();
    // One piece more is done; called for every cell, of work too short for a beginning too. False when the user wants
    // no more.
    bool Step();
    // The same, of work whose extent is known.
    bool StepTo(std::uint64_t done, std::uint64_t all);
    void End();
    // Stops the work, and closes the window when it has ended.
    void StopToClose(HWND window);
    bool IsAtWork() const { return m_begun != 0; }

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg BOOL OnEraseBkgnd(CDC *dc);
    afx_msg void OnPaint();
    afx_msg void OnStop() { m_stopped = true; }

private:
    bool GoesOn();
    bool Appear();
    void Update();
    void LookAtInput();
    CRect TextArea() const;

    CProgressCtrl m_bar;
    CButton m_button;
    ULONGLONG m_begun = 0;    // milliseconds; 0 while nothing is at work
    ULONGLONG m_lastLook = 0;
    std::uint64_t m_done = 0;
    std::uint64_t m_all = 0; // 0: not known
    CString m_text;
    bool m_stopped = false;
    HWND m_closes = nullptr; // the window that is closed after the work
};
