#include "dataeditor/DataEditorDlgs.h"

#include "editorcore/EditorCore.h"
#include "resources/ResourceIds.h"

#include <afxcmn.h>

#include <algorithm>
#include <cstdlib>

BEGIN_MESSAGE_MAP(CYesNoCancelAllDlg, CDialog)
    ON_BN_CLICKED(IDC_ASK_YES, OnYes)
    ON_BN_CLICKED(IDC_ASK_NO, OnNo)
    ON_BN_CLICKED(IDC_ASK_ALL, OnAll)
    ON_BN_CLICKED(IDC_ASK_CANCEL, OnCancelButton)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CLockColumns, CDialog)
    ON_NOTIFY(UDN_DELTAPOS, IDC_LOCK_SPIN, OnSpin)
END_MESSAGE_MAP()

CYesNoCancelAllDlg::CYesNoCancelAllDlg(const char *message, CWnd *parent)
    : CDialog(IDD_YES_NO_CANCEL_ALL, parent), m_strMessage(message) {}

BOOL CYesNoCancelAllDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    CVAppInterface *host = CEditorCore::GetAppInterface();
    host->DoWaitCursor(-1);
    CString title;
    host->GetAppTitle(title);
    SetWindowText(title);
    if (CWnd *message = GetDlgItem(IDC_ASK_MESSAGE))
        message->SetWindowText(m_strMessage);
    return TRUE;
}

CLockColumns::CLockColumns(int lockedCols, int cols, CWnd *parent)
    : CDialog(IDD_LOCK_COLUMNS, parent), m_nLockedCols(std::min(lockedCols, cols)), m_nMaxCols(std::max(cols, 0)) {}

int CLockColumns::Limited(int count) const {
    return std::clamp(count, 0, m_nMaxCols);
}

BOOL CLockColumns::OnInitDialog() {
    CDialog::OnInitDialog();
    SetDlgItemInt(IDC_LOCK_COUNT, static_cast<UINT>(m_nLockedCols), TRUE);
    return TRUE;
}

// The up arrow comes with a negative delta.
void CLockColumns::OnSpin(NMHDR *header, LRESULT *result) {
    CString text;
    GetDlgItemText(IDC_LOCK_COUNT, text);
    const long long count = std::atoi(text) - static_cast<long long>(reinterpret_cast<NMUPDOWN *>(header)->iDelta);
    text.Format("%d", static_cast<int>(std::clamp(count, 0LL, static_cast<long long>(m_nMaxCols))));
    SetDlgItemText(IDC_LOCK_COUNT, text);
    *result = 0;
}

void CLockColumns::OnOK() {
    m_nLockedCols = Limited(static_cast<int>(GetDlgItemInt(IDC_LOCK_COUNT, nullptr, TRUE)));
    CDialog::OnOK();
}
