#include "host/FieldListDlg.h"

#include "host/Resource.h"

BEGIN_MESSAGE_MAP(CFieldOrderDlg, CDialog)
    ON_BN_CLICKED(IDC_MOVE_UP, OnMoveUp)
    ON_BN_CLICKED(IDC_MOVE_DOWN, OnMoveDown)
    ON_LBN_SELCHANGE(IDC_FIELD_LIST, OnSelect)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CFieldVisibilityDlg, CDialog)
    ON_BN_CLICKED(IDC_SHOW_ALL, OnShowAll)
    ON_BN_CLICKED(IDC_HIDE_ALL, OnHideAll)
END_MESSAGE_MAP()

CFieldOrderDlg::CFieldOrderDlg(CStringArray *names, CWnd *parent)
    : CDialog(IDD_FIELD_ORDER, parent), m_names(names) {}

BOOL CFieldOrderDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_list.SubclassDlgItem(IDC_FIELD_LIST, this);
    for (int i = 0; i < m_names->GetSize(); ++i)
        m_list.AddString(m_names->GetAt(i));
    m_list.SetCurSel(0);
    OnSelect();
    return TRUE;
}

void CFieldOrderDlg::OnSelect() {
    const int at = m_list.GetCurSel();
    GetDlgItem(IDC_MOVE_UP)->EnableWindow(at > 0);
    GetDlgItem(IDC_MOVE_DOWN)->EnableWindow(at >= 0 && at + 1 < m_list.GetCount());
}

void CFieldOrderDlg::Move(int by) {
    const int at = m_list.GetCurSel();
    const int to = at + by;
    if (at < 0 || to < 0 || to >= m_list.GetCount())
        return;
    CString name;
    m_list.GetText(at, name);
    m_list.DeleteString(at);
    m_list.InsertString(to, name);
    m_list.SetCurSel(to);
    OnSelect();
}

void CFieldOrderDlg::OnOK() {
    for (int i = 0; i < m_names->GetSize(); ++i) {
        CString name;
        m_list.GetText(i, name);
        m_names->SetAt(i, name);
    }
    CDialog::OnOK();
}

CFieldVisibilityDlg::CFieldVisibilityDlg(const CStringArray &names, CArray<bool, bool> &shown, CWnd *parent)
    : CDialog(IDD_FIELD_VISIBILITY, parent), m_names(names), m_shown(shown) {}

BOOL CFieldVisibilityDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_list.SubclassDlgItem(IDC_FIELD_LIST, this);
    for (int i = 0; i < m_names.GetSize(); ++i) {
        m_list.AddString(m_names.GetAt(i));
        m_list.SetCheck(i, m_shown.GetAt(i) ? 1 : 0);
    }
    m_list.SetCurSel(0);
    return TRUE;
}

void CFieldVisibilityDlg::CheckAll(int check) {
    for (int i = 0; i < m_list.GetCount(); ++i)
        m_list.SetCheck(i, check);
}

void CFieldVisibilityDlg::OnOK() {
    for (int i = 0; i < m_shown.GetSize(); ++i)
        m_shown.SetAt(i, m_list.GetCheck(i) != 0);
    CDialog::OnOK();
}
