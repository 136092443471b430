// The two dialogs over a list of fields: their order, and which of them are shown. Both are worked by keyboard alone
// as well as with the mouse.
#pragma once

#include <afxwin.h>

#include <functional>

// The list in which fields are moved: by Alt or Ctrl with Up, Down, Home and End, and dragged with the mouse.
class CFieldOrderList : public CListBox {
public:
    // Takes the selected entry to `to`, which is brought into the list's range.
    void MoveSelectedTo(int to);

    std::function<void()> m_moved; // told after each move

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnMouseMove(UINT flags, CPoint point);

private:
    bool MoveByKey(UINT key);
};

class CFieldOrderDlg : public CDialog {
public:
    // `names` is borrowed and holds the new order after OK. `current` is selected at first.
    CFieldOrderDlg(CStringArray *names, int current, CWnd *parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnMove(UINT id);
    afx_msg void OnSelect();

private:
    void EnableMove(UINT id, bool enable);

    CStringArray *m_names;
    int m_current;
    CFieldOrderList m_list;
};

class CFieldVisibilityDlg : public CDialog {
public:
    // Both arrays are borrowed; `shown` holds the choice after OK. `current` is selected at first.
    CFieldVisibilityDlg(const CStringArray &names, CArray<bool, bool> &shown, int current, CWnd *parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnShowAll() { CheckAll(1); }
    afx_msg void OnHideAll() { CheckAll(0); }

private:
    void CheckAll(int check);

    const CStringArray &m_names;
    CArray<bool, bool> &m_shown;
    int m_current;
    CCheckListBox m_list;
};
