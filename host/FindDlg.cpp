#include "host/FindDlg.h"

#include "host/Resource.h"
#include "search/PatternText.h"

BEGIN_MESSAGE_MAP(CFindDlg, CDialog)
    ON_CBN_EDITCHANGE(IDC_FIND_TEXT, OnTextChanged)
    ON_CBN_SELCHANGE(IDC_FIND_TEXT, OnTextChosen)
    ON_BN_CLICKED(IDC_FIND_UP, OnScope)
    ON_BN_CLICKED(IDC_FIND_DOWN, OnScope)
    ON_BN_CLICKED(IDC_FIND_ALL, OnScope)
    ON_BN_CLICKED(IDC_FIND_SELECTION, OnScope)
END_MESSAGE_MAP()

namespace {

constexpr int kHistoryLength = 10;
const char *const kSection = "Find";
const char *const kFindHistory = "Find\\Texts";
const char *const kReplaceHistory = "Find\\Replacements";

// In the order of Search::MatchMode.
const char *const kModes[] = {"Whole cell", "Anywhere in the cell", "Start of the cell", "End of the cell",
                              "Whole words"};

CComboBox *List(CWnd *list) {
    return static_cast<CComboBox *>(list);
}

CString TextOf(CWnd *window) {
    CString text;
    window->GetWindowText(text);
    return text;
}

CString Key(int index) {
    CString key;
    key.Format("Text%d", index);
    return key;
}

} // namespace

void CFindDlg::Show(bool replace, bool selection, UINT message, CWnd *parent) {
    m_replace = replace;
    m_message = message;
    if (GetSafeHwnd() == nullptr && !Create(IDD_FIND, parent))
        return;
    Arrange();
    if (selection)
        CheckRadioButton(IDC_FIND_UP, IDC_FIND_SELECTION, IDC_FIND_SELECTION);
    else if (IsDlgButtonChecked(IDC_FIND_SELECTION))
        CheckRadioButton(IDC_FIND_UP, IDC_FIND_SELECTION, IDC_FIND_DOWN);
    OnScope();
    ShowWindow(SW_SHOW);
    SetActiveWindow();
    GetDlgItem(IDC_FIND_TEXT)->SetFocus();
    List(GetDlgItem(IDC_FIND_TEXT))->SetEditSel(0, -1);
}

BOOL CFindDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    for (const char *mode : kModes)
        SendDlgItemMessage(IDC_FIND_MODE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(mode));
    ReadHistory(GetDlgItem(IDC_FIND_TEXT), kFindHistory);
    ReadHistory(GetDlgItem(IDC_REPLACE_TEXT), kReplaceHistory);
    Restore();
    OnTextChanged();
    return TRUE;
}

// The same window serves both; what only a replacement needs is hidden for a search.
void CFindDlg::Arrange() {
    SetWindowText(m_replace ? "Replace" : "Find");
    SetDlgItemText(IDOK, m_replace ? "&Replace..." : "&Find Next");
    for (int id : {IDC_REPLACE_LABEL, IDC_REPLACE_TEXT})
        GetDlgItem(id)->ShowWindow(m_replace ? SW_SHOW : SW_HIDE);
}

// --- What is kept between sessions

void CFindDlg::Restore() {
    CWinApp *app = AfxGetApp();
    SendDlgItemMessage(IDC_FIND_MODE, CB_SETCURSEL, app->GetProfileInt(kSection, "Mode", Search::kAnywhere), 0);
    CheckDlgButton(IDC_FIND_CASE, app->GetProfileInt(kSection, "MatchCase", 0));
    CheckDlgButton(IDC_FIND_REGEX, app->GetProfileInt(kSection, "Regex", 0));
    CheckDlgButton(IDC_FIND_ALL_FIELDS, app->GetProfileInt(kSection, "AllFields", 1));
    const int direction = app->GetProfileInt(kSection, "Direction", kSearchDown);
    CheckRadioButton(IDC_FIND_UP, IDC_FIND_SELECTION,
                     IDC_FIND_UP + (direction < kSearchUp || direction > kSearchAll ? kSearchDown : direction));
}

void CFindDlg::Store() {
    CWinApp *app = AfxGetApp();
    app->WriteProfileInt(kSection, "Mode", static_cast<int>(SendDlgItemMessage(IDC_FIND_MODE, CB_GETCURSEL, 0, 0)));
    app->WriteProfileInt(kSection, "MatchCase", static_cast<int>(IsDlgButtonChecked(IDC_FIND_CASE)));
    app->WriteProfileInt(kSection, "Regex", static_cast<int>(IsDlgButtonChecked(IDC_FIND_REGEX)));
    app->WriteProfileInt(kSection, "AllFields", static_cast<int>(IsDlgButtonChecked(IDC_FIND_ALL_FIELDS)));
    if (ScopeDirection() != kSearchSelection)
        app->WriteProfileInt(kSection, "Direction", ScopeDirection());
    Remember(GetDlgItem(IDC_FIND_TEXT), kFindHistory);
    if (m_replace)
        Remember(GetDlgItem(IDC_REPLACE_TEXT), kReplaceHistory);
}

void CFindDlg::ReadHistory(CWnd *list, const char *section) {
    for (int i = 0; i < kHistoryLength; ++i) {
        const CString text = AfxGetApp()->GetProfileString(section, Key(i));
        if (!text.IsEmpty())
            List(list)->AddString(text);
    }
    List(list)->SetCurSel(0);
}

// The text goes to the head of its list, once.
void CFindDlg::Remember(CWnd *window, const char *section) {
    CComboBox *list = List(window);
    const CString text = TextOf(window);
    if (text.IsEmpty())
        return;
    const int known = list->FindStringExact(-1, text);
    if (known != CB_ERR)
        list->DeleteString(static_cast<UINT>(known));
    list->InsertString(0, text);
    while (list->GetCount() > kHistoryLength)
        list->DeleteString(kHistoryLength);
    list->SetCurSel(0);
    for (int i = 0; i < list->GetCount(); ++i) {
        CString entry;
        list->GetLBText(i, entry);
        AfxGetApp()->WriteProfileString(section, Key(i), entry);
    }
}

// --- The wish

void CFindDlg::EnableWish(bool enable) {
    GetDlgItem(IDOK)->EnableWindow(enable);
}

// There is nothing to wish for without a text.
void CFindDlg::OnTextChanged() {
    EnableWish(GetDlgItem(IDC_FIND_TEXT)->GetWindowTextLength() > 0);
}

// The list tells before it shows what was chosen.
void CFindDlg::OnTextChosen() {
    EnableWish(true);
}

// Within the selection every field of it is searched.
void CFindDlg::OnScope() {
    GetDlgItem(IDC_FIND_ALL_FIELDS)->EnableWindow(ScopeDirection() != kSearchSelection);
}

int CFindDlg::ScopeDirection() const {
    for (int direction : {kSearchUp, kSearchAll, kSearchSelection}) {
        if (IsDlgButtonChecked(IDC_FIND_UP + direction))
            return direction;
    }
    return kSearchDown;
}

// The editor takes what cannot be searched for as what is nowhere found, so the reason is said here.
bool CFindDlg::CanBeSearched() {
    if (!IsDlgButtonChecked(IDC_FIND_REGEX))
        return true;
    const std::string refused = Search::WhyRefused(TextOf(GetDlgItem(IDC_FIND_TEXT)).GetString());
    if (!refused.empty())
        AfxMessageBox(refused.c_str());
    return refused.empty();
}

void CFindDlg::OnOK() {
    CWnd *editor = m_target();
    // Beside another question, which disables the frame, the table is not to be touched.
    if (m_running || editor == nullptr || !AfxGetMainWnd()->IsWindowEnabled())
        return;
    if (GetDlgItem(IDC_FIND_TEXT)->GetWindowTextLength() == 0 || !CanBeSearched())
        return;
    Store();
    m_data.SetData(TextOf(GetDlgItem(IDC_FIND_TEXT)), TextOf(GetDlgItem(IDC_REPLACE_TEXT)),
                   IsDlgButtonChecked(IDC_FIND_CASE) != 0, IsDlgButtonChecked(IDC_FIND_ALL_FIELDS) != 0,
                   ScopeDirection(), static_cast<int>(SendDlgItemMessage(IDC_FIND_MODE, CB_GETCURSEL, 0, 0)),
                   IsDlgButtonChecked(IDC_FIND_REGEX) != 0);
    m_running = true; // this dialog stays enabled beside the questions of a replacement
    editor->SendMessage(m_message, reinterpret_cast<WPARAM>(&m_data), 0);
    m_running = false;
}
