#include "host/FilterListDlg.h"

#include "dbf/Table.h"
#include "host/FilterDlg.h"
#include "host/Resource.h"

BEGIN_MESSAGE_MAP(CFilterListDlg, CDialog)
    ON_BN_CLICKED(IDC_FILTER_NEW, OnNew)
    ON_BN_CLICKED(IDC_FILTER_EDIT, OnEdit)
    ON_BN_CLICKED(IDC_FILTER_DELETE, OnDelete)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_FILTER_LIST, OnSelected)
    ON_NOTIFY(NM_DBLCLK, IDC_FILTER_LIST, OnDoubleClick)
    ON_NOTIFY(LVN_KEYDOWN, IDC_FILTER_LIST, OnListKey)
END_MESSAGE_MAP()

namespace {

// Widths in hundredths of the list's.
struct Column {
    const char *heading;
    int share;
};
constexpr Column kColumns[] = {{"No.", 10}, {"Name", 30}, {"Expression", 60}};

const dbf::CodePage *PageOf(const dbf::Table &table) {
    return dbf::findCodePage(table.displayCodePage());
}

bool Tell(const dbf::Result &result) {
    if (!result)
        AfxMessageBox(result.message.c_str(), MB_ICONEXCLAMATION);
    return result.ok;
}

} // namespace

CFilterListDlg::CFilterListDlg(const dbf::Table &table, int attached, CWnd *parent)
    : CDialog(IDD_FILTER_LIST, parent), m_table(table), m_chosen(attached) {}

bool CFilterListDlg::LoadList(const dbf::Table &table, filter::FilterList &list) {
    return Tell(list.load(filter::FilterList::pathBeside(table.path()), PageOf(table)));
}

bool CFilterListDlg::StoreList(const dbf::Table &table, const filter::FilterList &list) {
    return Tell(list.save(filter::FilterList::pathBeside(table.path()), PageOf(table)));
}

bool CFilterListDlg::Load() {
    return LoadList(m_table, m_filters);
}

bool CFilterListDlg::EditOne(const dbf::Table &table, int number, CWnd *parent) {
    filter::FilterList list;
    if (!LoadList(table, list))
        return false;
    const filter::Definition *known = list.find(number);
    filter::Definition edited = known != nullptr ? *known : filter::Definition{number, {}, {}};
    while (CFilterDlg(table, edited, parent).DoModal() == IDOK) {
        list.put(edited);
        list.put({0, {}, edited.expression});
        if (StoreList(table, list))
            return true;
    }
    return false;
}

CListCtrl &CFilterListDlg::List() const {
    return *static_cast<CListCtrl *>(GetDlgItem(IDC_FILTER_LIST));
}

BOOL CFilterListDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    List().SetExtendedStyle(LVS_EX_FULLROWSELECT);
    CRect area;
    List().GetClientRect(&area);
    const int width = area.Width() - ::GetSystemMetrics(SM_CXVSCROLL);
    for (int i = 0; i < static_cast<int>(std::size(kColumns)); ++i)
        List().InsertColumn(i, kColumns[i].heading, LVCFMT_LEFT, width * kColumns[i].share / 100);
    Fill(m_chosen);
    return FALSE;
}

// Shows the list with this filter selected, or the first one.
void CFilterListDlg::Fill(int select) {
    List().DeleteAllItems();
    int selected = 0;
    for (const filter::Definition &each : m_filters.all()) {
        CString number;
        number.Format("%d", each.number);
        const int index = List().InsertItem(List().GetItemCount(), number);
        List().SetItemText(index, 1, each.number == 0 ? "(default filter)" : each.name.c_str());
        List().SetItemText(index, 2, each.expression.c_str());
        List().SetItemData(index, static_cast<DWORD_PTR>(each.number));
        if (each.number == select)
            selected = index;
    }
    constexpr UINT kCurrent = LVIS_SELECTED | LVIS_FOCUSED;
    if (List().GetItemCount() > 0) {
        List().SetItemState(selected, kCurrent, kCurrent);
        List().EnsureVisible(selected, FALSE);
    }
    LRESULT unused = 0;
    OnSelected(nullptr, &unused);
    List().SetFocus(); // so that Enter attaches what is selected
}

int CFilterListDlg::Selected() const {
    const int index = List().GetNextItem(-1, LVNI_SELECTED);
    return index < 0 ? -1 : static_cast<int>(List().GetItemData(index));
}

void CFilterListDlg::OnSelected(NMHDR *, LRESULT *result) {
    for (int id : {static_cast<int>(IDOK), IDC_FILTER_EDIT, IDC_FILTER_DELETE})
        GetDlgItem(id)->EnableWindow(Selected() >= 0);
    *result = 0;
}

void CFilterListDlg::OnDoubleClick(NMHDR *, LRESULT *result) {
    OnOK();
    *result = 0;
}

void CFilterListDlg::OnListKey(NMHDR *notification, LRESULT *result) {
    switch (reinterpret_cast<NMLVKEYDOWN *>(notification)->wVKey) {
    case VK_INSERT: OnNew(); break;
    case VK_DELETE: OnDelete(); break;
    case VK_F2: OnEdit(); break;
    default: break;
    }
    *result = 0;
}

void CFilterListDlg::EditDefinition(filter::Definition definition) {
    while (CFilterDlg(m_table, definition, this).DoModal() == IDOK) {
        filter::FilterList changed = m_filters;
        changed.put(definition);
        if (!StoreList(m_table, changed))
            continue; // what was typed is shown again
        m_filters = std::move(changed);
        m_attachedChanged = m_attachedChanged || definition.number == m_chosen;
        break;
    }
    Fill(definition.number);
}

void CFilterListDlg::OnNew() {
    EditDefinition({m_filters.unusedNumber(), {}, {}});
}

void CFilterListDlg::OnEdit() {
    if (const filter::Definition *selected = m_filters.find(Selected()))
        EditDefinition(*selected);
}

void CFilterListDlg::OnDelete() {
    const filter::Definition *selected = m_filters.find(Selected());
    if (selected == nullptr)
        return;
    CString question;
    question.Format("Delete this filter?\n\n%d  %s\n%s", selected->number, selected->name.c_str(),
                    selected->expression.c_str());
    if (AfxMessageBox(question, MB_YESNO | MB_ICONQUESTION) != IDYES)
        return;
    filter::FilterList changed = m_filters;
    changed.remove(selected->number);
    if (StoreList(m_table, changed))
        m_filters = std::move(changed);
    Fill(-1);
}

// The attached filter is attached anew when it was changed: the records are to be those that the list tells of.
void CFilterListDlg::OnCancel() {
    EndDialog(m_attachedChanged && m_filters.find(m_chosen) != nullptr ? IDOK : IDCANCEL);
}

void CFilterListDlg::OnOK() {
    if (Selected() < 0)
        return;
    m_chosen = Selected();
    EndDialog(IDOK);
}
