#include "host/FilterDlg.h"

#include "filter/DbfRecords.h"
#include "filter/Utf8.h"
#include "host/Resource.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(CFilterDlg, CDialog)
    ON_EN_CHANGE(IDC_FILTER_EXPRESSION, OnExpressionChanged)
    ON_LBN_DBLCLK(IDC_FILTER_FIELDS, OnInsertField)
    ON_BN_CLICKED(IDC_FILTER_INSERT, OnInsertField)
END_MESSAGE_MAP()

namespace {

constexpr filter::Row kMostCounted = 200'000; // records that are counted while the user types,
constexpr ULONGLONG kLongestCountMs = 150;    // in about this time at most: memos take longer than numbers

CString TextOf(CWnd *window) {
    CString text;
    window->GetWindowText(text);
    return text;
}

const dbf::CodePage *PageOf(const dbf::Table &table) {
    return dbf::findCodePage(table.displayCodePage());
}

} // namespace

CFilterDlg::CFilterDlg(const dbf::Table &table, filter::Definition &filter, CWnd *parent)
    : CDialog(IDD_FILTER, parent), m_table(table), m_filter(filter) {}

BOOL CFilterDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    CString title = "Default Filter";
    if (m_filter.number > 0)
        title.Format("Filter %d", m_filter.number);
    SetWindowText(title);
    GetDlgItem(IDC_FILTER_NAME)->EnableWindow(m_filter.number > 0);
    SetDlgItemText(IDC_FILTER_NAME, m_filter.number > 0 ? m_filter.name.c_str() : "(the default filter)");
    for (const dbf::Field &field : m_table.layout().fields)
        SendDlgItemMessage(IDC_FILTER_FIELDS, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(field.name.c_str()));
    SendDlgItemMessage(IDC_FILTER_FIELDS, LB_SETCURSEL, 0, 0);
    SetDlgItemText(IDC_FILTER_EXPRESSION, m_filter.expression.c_str());
    OnExpressionChanged();
    CWnd *expression = GetDlgItem(IDC_FILTER_EXPRESSION);
    expression->SendMessage(EM_SETSEL, 0, -1);
    expression->SetFocus();
    return FALSE;
}

// An edit box of several lines leaves Ctrl+A to others.
BOOL CFilterDlg::PreTranslateMessage(MSG *message) {
    const bool selectAll = message->message == WM_KEYDOWN && message->wParam == 'A' && ::GetKeyState(VK_CONTROL) < 0;
    CWnd *expression = GetDlgItem(IDC_FILTER_EXPRESSION);
    if (!selectAll || expression == nullptr || message->hwnd != expression->m_hWnd)
        return CDialog::PreTranslateMessage(message);
    expression->SendMessage(EM_SETSEL, 0, -1);
    return TRUE;
}

// Shows what is wrong, or what passes. An expression not begun yet is no mistake to be told of.
bool CFilterDlg::Check(filter::Mistake *mistake) {
    const CString typed = TextOf(GetDlgItem(IDC_FILTER_EXPRESSION));
    const filter::DbfRecords records(m_table);
    const std::string text = filter::toUtf8(static_cast<const char *>(typed), PageOf(m_table));
    const auto expression = filter::Expression::compile(text, records, *mistake);
    const std::string told = filter::fromUtf8(mistake->text, PageOf(m_table));
    if (expression)
        SetDlgItemText(IDC_FILTER_MISTAKE, CountPassing(*expression));
    else
        SetDlgItemText(IDC_FILTER_MISTAKE, typed.IsEmpty() ? "" : told.c_str());
    if (mistake->position != filter::Mistake::kNowhere)
        mistake->position = filter::charactersBefore(text, mistake->position);
    return expression != nullptr;
}

CString CFilterDlg::CountPassing(filter::Expression &expression) const {
    filter::Row rows = std::min<filter::Row>(m_table.rowCount(), kMostCounted);
    unsigned long passing = 0;
    filter::Mistake mistake;
    const ULONGLONG begun = ::GetTickCount64();
    const auto goOn = [&](filter::Row done) {
        const bool inTime = ::GetTickCount64() - begun < kLongestCountMs;
        rows = inTime ? rows : done;
        return inTime;
    };
    const auto outcome = expression.walk(0, rows, [&](filter::Row) { ++passing; }, goOn, mistake);
    CString text;
    if (outcome == filter::Expression::Outcome::failed)
        text = mistake.text.c_str();
    else
        text.Format(rows < m_table.rowCount() ? "%lu of the first %lu records pass." : "%lu of %lu records pass.", passing,
                    static_cast<unsigned long>(rows));
    return text;
}

void CFilterDlg::OnExpressionChanged() {
    filter::Mistake mistake;
    GetDlgItem(IDOK)->EnableWindow(Check(&mistake));
}

void CFilterDlg::OnInsertField() {
    const auto field = SendDlgItemMessage(IDC_FILTER_FIELDS, LB_GETCURSEL, 0, 0);
    if (field < 0)
        return;
    const std::string name = filter::nameInExpression(m_table.field(static_cast<std::size_t>(field)).name);
    CWnd *expression = GetDlgItem(IDC_FILTER_EXPRESSION);
    expression->SendMessage(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(name.c_str()));
    expression->SetFocus();
}

void CFilterDlg::OnOK() {
    filter::Mistake mistake;
    if (!Check(&mistake)) {
        CWnd *expression = GetDlgItem(IDC_FILTER_EXPRESSION);
        expression->SetFocus();
        if (mistake.position != filter::Mistake::kNowhere)
            expression->SendMessage(EM_SETSEL, mistake.position, static_cast<LPARAM>(mistake.position));
        return;
    }
    m_filter.expression = TextOf(GetDlgItem(IDC_FILTER_EXPRESSION));
    if (m_filter.number > 0)
        m_filter.name = TextOf(GetDlgItem(IDC_FILTER_NAME));
    EndDialog(IDOK);
}
