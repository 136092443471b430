#include "host/LookupOptionsDlg.h"

#include "host/Resource.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(CLookupOptionsDlg, CDialog)
ON_BN_CLICKED(IDC_LOOKUP_VALIDATE, OnChange)
ON_CBN_SELCHANGE(IDC_LOOKUP_ACTION, OnChange)
END_MESSAGE_MAP()

namespace {

constexpr UINT kMostWidth = 255; // characters
// In the order of LookupAction.
constexpr const char *kActions[] = {"Reject it and go back to the cell", "Replace it",
                                    "Put a text in front of it"};

void ExchangeCheck(CDataExchange *exchange, int id, bool &value) {
    int check = value;
    DDX_Check(exchange, id, check);
    value = check != 0;
}

void ExchangeWidth(CDataExchange *exchange, int id, UINT &value) {
    DDX_Text(exchange, id, value);
    DDV_MinMaxUInt(exchange, value, 1, kMostWidth);
}

} // namespace

CLookupOptionsDlg::CLookupOptionsDlg(const CHostLookupOptions &options, CWnd *parent)
    : CDialog(IDD_LOOKUP_OPTIONS, parent), m_options(options) {
    const int last = static_cast<int>(std::size(kActions)) - 1;
    m_options.m_invalidAction = std::clamp(m_options.m_invalidAction, 0, last);
    m_options.m_codeWidth = std::clamp(m_options.m_codeWidth, 1u, kMostWidth);
    m_options.m_descriptionWidth = std::clamp(m_options.m_descriptionWidth, 1u, kMostWidth);
}

BOOL CLookupOptionsDlg::OnInitDialog() {
    for (const char *action : kActions)
        SendDlgItemMessage(IDC_LOOKUP_ACTION, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(action));
    CDialog::OnInitDialog();
    EnableWhatCounts();
    return TRUE;
}

void CLookupOptionsDlg::DoDataExchange(CDataExchange *exchange) {
    CDialog::DoDataExchange(exchange);
    ExchangeCheck(exchange, IDC_LOOKUP_VALIDATE, m_options.m_validate);
    ExchangeCheck(exchange, IDC_LOOKUP_VALIDATE_KEY, m_options.m_validateOnKey);
    ExchangeCheck(exchange, IDC_LOOKUP_PARTIAL, m_options.m_allowPartialCodes);
    ExchangeCheck(exchange, IDC_LOOKUP_RESOLVE, m_options.m_resolveSubMenus);
    ExchangeCheck(exchange, IDC_LOOKUP_BEEP, m_options.m_beepOnInvalid);
    DDX_CBIndex(exchange, IDC_LOOKUP_ACTION, m_options.m_invalidAction);
    DDX_Text(exchange, IDC_LOOKUP_REPLACE, m_options.m_replaceString);
    DDX_Text(exchange, IDC_LOOKUP_PREPEND, m_options.m_prependString);
    ExchangeWidth(exchange, IDC_LOOKUP_CODE_WIDTH, m_options.m_codeWidth);
    ExchangeWidth(exchange, IDC_LOOKUP_DESCRIPTION_WIDTH, m_options.m_descriptionWidth);
}

// What has no effect as things stand is greyed.
void CLookupOptionsDlg::EnableWhatCounts() {
    const bool validate = IsDlgButtonChecked(IDC_LOOKUP_VALIDATE) != 0;
    const auto action = static_cast<int>(SendDlgItemMessage(IDC_LOOKUP_ACTION, CB_GETCURSEL, 0, 0));
    for (int id : {IDC_LOOKUP_VALIDATE_KEY, IDC_LOOKUP_PARTIAL, IDC_LOOKUP_BEEP, IDC_LOOKUP_ACTION})
        GetDlgItem(id)->EnableWindow(validate);
    GetDlgItem(IDC_LOOKUP_REPLACE)->EnableWindow(validate && action == LookupAction::kReplace);
    GetDlgItem(IDC_LOOKUP_PREPEND)->EnableWindow(validate && action == LookupAction::kPrepend);
}
