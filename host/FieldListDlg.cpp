#include "host/FieldListDlg.h"

#include "host/Resource.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(CFieldOrderList, CListBox)
    ON_WM_KEYDOWN()
    ON_WM_SYSKEYDOWN()
    ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CFieldOrderDlg, CDialog)
    ON_COMMAND_RANGE(IDC_MOVE_UP, IDC_MOVE_DOWN, OnMove)
    ON_COMMAND_RANGE(IDC_MOVE_TOP, IDC_MOVE_BOTTOM, OnMove)
    ON_LBN_SELCHANGE(IDC_FIELD_LIST, OnSelect)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CFieldVisibilityDlg, CDialog)
    ON_BN_CLICKED(IDC_SHOW_ALL, OnShowAll)
    ON_BN_CLICKED(IDC_HIDE_ALL, OnHideAll)
END_MESSAGE_MAP()

namespace {

struct Move {
    UINT id;
    UINT key;
    int by; // entries; more than any list holds stands for an end
};

constexpr int kToTheEnd = 0x10000;
constexpr Move kMoves[] = {{IDC_MOVE_UP, VK_UP, -1},
                           {IDC_MOVE_DOWN, VK_DOWN, 1},
                           {IDC_MOVE_TOP, VK_HOME, -kToTheEnd},
                           {IDC_MOVE_BOTTOM, VK_END, kToTheEnd}};

// The list shows the selected entry among its neighbours rather than at its edge.
void SelectInView(CListBox &list, int index) {
    list.SetCurSel(index);
    CRect item, client;
    list.GetClientRect(&client);
    list.GetItemRect(index, &item);
    const int visible = std::max(client.Height() / std::max(item.Height(), 1), 1);
    list.SetTopIndex(std::max(index - visible / 2, 0));
}

} // namespace

// --- The list of the order

void CFieldOrderList::MoveSelectedTo(int to) {
    const int at = GetCurSel();
    to = std::clamp(to, 0, std::max(GetCount() - 1, 0));
    if (at < 0 || to == at)
        return;
    const int top = GetTopIndex();
    CString name;
    GetText(at, name);
    SetRedraw(FALSE);
    DeleteString(at);
    InsertString(to, name);
    SetTopIndex(top); // else the list jumps as an entry goes and comes
    SetCurSel(to);
    SetRedraw(TRUE);
    Invalidate(FALSE);
    if (m_moved)
        m_moved();
}

bool CFieldOrderList::MoveByKey(UINT key) {
    for (const Move &move : kMoves) {
        if (move.key == key) {
            MoveSelectedTo(GetCurSel() + move.by);
            return true;
        }
    }
    return false;
}

void CFieldOrderList::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    if (!((::GetKeyState(VK_CONTROL) & 0x8000) && MoveByKey(key)))
        CListBox::OnKeyDown(key, repeat, flags);
}

// The system hears of the key as well: Alt with nothing between its down and up would go to the menu.
void CFieldOrderList::OnSysKeyDown(UINT key, UINT repeat, UINT flags) {
    MoveByKey(key);
    CListBox::OnSysKeyDown(key, repeat, flags);
}

// The list itself took the capture as the button went down, and lets it go as it comes up.
void CFieldOrderList::OnMouseMove(UINT flags, CPoint point) {
    if (!(flags & MK_LBUTTON) || GetCapture() != this) {
        CListBox::OnMouseMove(flags, point);
        return;
    }
    CRect client;
    GetClientRect(&client);
    if (point.y < client.top || point.y >= client.bottom) {
        MoveSelectedTo(GetCurSel() + (point.y < client.top ? -1 : 1));
        return;
    }
    BOOL outside = FALSE;
    const int index = static_cast<int>(ItemFromPoint(CPoint(client.left, point.y), outside));
    MoveSelectedTo(outside ? GetCount() - 1 : index);
}

// --- The dialog of the order

CFieldOrderDlg::CFieldOrderDlg(CStringArray *names, int current, CWnd *parent)
    : CDialog(IDD_FIELD_ORDER, parent), m_names(names), m_current(current) {}

BOOL CFieldOrderDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_list.SubclassDlgItem(IDC_FIELD_LIST, this);
    m_list.m_moved = [this] { OnSelect(); };
    for (int i = 0; i < m_names->GetSize(); ++i)
        m_list.AddString(m_names->GetAt(i));
    SelectInView(m_list, std::max(m_current, 0));
    OnSelect();
    return TRUE;
}

// A button that is disabled with the focus on it would take the keyboard with it.
void CFieldOrderDlg::EnableMove(UINT id, bool enable) {
    CWnd *button = GetDlgItem(static_cast<int>(id));
    if (!enable && GetFocus() == button)
        m_list.SetFocus();
    button->EnableWindow(enable);
}

void CFieldOrderDlg::OnSelect() {
    const int at = m_list.GetCurSel();
    for (const Move &move : kMoves)
        EnableMove(move.id, move.by < 0 ? at > 0 : at >= 0 && at + 1 < m_list.GetCount());
}

void CFieldOrderDlg::OnMove(UINT id) {
    for (const Move &move : kMoves) {
        if (move.id == id)
            m_list.MoveSelectedTo(m_list.GetCurSel() + move.by);
    }
}

void CFieldOrderDlg::OnOK() {
    for (int i = 0; i < m_names->GetSize(); ++i) {
        CString name;
        m_list.GetText(i, name);
        m_names->SetAt(i, name);
    }
    CDialog::OnOK();
}

// --- The dialog of the shown fields

CFieldVisibilityDlg::CFieldVisibilityDlg(const CStringArray &names, CArray<bool, bool> &shown, int current,
                                         CWnd *parent)
    : CDialog(IDD_FIELD_VISIBILITY, parent), m_names(names), m_shown(shown), m_current(current) {}

BOOL CFieldVisibilityDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_list.SubclassDlgItem(IDC_FIELD_LIST, this);
    for (int i = 0; i < m_names.GetSize(); ++i) {
        m_list.AddString(m_names.GetAt(i));
        m_list.SetCheck(i, m_shown.GetAt(i) ? 1 : 0);
    }
    SelectInView(m_list, std::max(m_current, 0));
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
