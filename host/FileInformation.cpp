#include "host/FileInformation.h"

#include "grid/UGDataSource.h"
#include "host/Resource.h"

#include <cstring>

namespace {

// By the numbers that a source's GetColType gives.
const char *const kTypeNames[] = {"character", "logical", "whole number", "number",
                                  "float",     "binary",  "memo",         "date"};

} // namespace

CString DescribeField(CUGDataSource *source, int field) {
    CString name, text;
    int type = -1;
    source->GetColName(field, &name);
    source->GetColType(field, &type);
    const bool known = type >= 0 && type < static_cast<int>(std::size(kTypeNames));
    const int decimals = source->GetFieldDecimals(field);
    text.Format("%s, %s %d", static_cast<const char *>(name), known ? kTypeNames[type] : "unknown",
                source->GetFieldWidth(field));
    if (decimals > 0)
        text.AppendFormat(".%d", decimals);
    return text;
}

CString NameOf(const char *path) {
    const char *backslash = std::strrchr(path, '\\');
    return backslash != nullptr ? backslash + 1 : path;
}

CString PathOf(CUGDataSource &source) {
    CString path;
    CString *out = &path;
    int none = 0;
    source.GetOption(UGSRC_PATH, &out, &none);
    return path;
}

CFileInformationDlg::CFileInformationDlg(CUGDataSource *source, CWnd *parent)
    : CDialog(IDD_FILE_INFORMATION, parent), m_source(source) {}

CString CFileInformationDlg::Describe() const {
    CString text;
    text.Format("File: %s\r\nRecords: %ld\r\nFields: %d\r\n\r\n", static_cast<const char *>(PathOf(*m_source)),
                m_source->GetNumRows(), m_source->GetNumCols());
    for (int field = 0; field < m_source->GetNumCols(); ++field)
        text += DescribeField(m_source, field) + "\r\n";
    return text;
}

BOOL CFileInformationDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    SetDlgItemText(IDC_INFORMATION, Describe());
    GetDlgItem(IDOK)->SetFocus(); // in the text the focus would select all of it
    return FALSE;
}
