// The two dialogs over a list of fields: their order, and which of them are shown.
#pragma once

#include <afxwin.h>

class CFieldOrderDlg : public CDialog {
public:
    // `names` is borrowed and holds the new order after OK.
    CFieldOrderDlg(CStringArray *names, CWnd *parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnMoveUp() { Move(-1); }
    afx_msg void OnMoveDown() { Move(1); }
    afx_msg void OnSelect();

private:
    void Move(int by);

    CStringArray *m_names;
    CListBox m_list;
};

class CFieldVisibilityDlg : public CDialog {
public:
    // Both are borrowed; `shown` holds the choice after OK.
    CFieldVisibilityDlg(const CStringArray &names, CArray<bool, bool> &shown, CWnd *parent);

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
    CCheckListBox m_list;
};
