// What is to be told of a table: the description of a field, and the dialog of the whole file.
#pragma once

#include <afxwin.h>

class CUGDataSource;

// Name, type and width, as in "SALARY, number 9.2".
CString DescribeField(CUGDataSource *source, int field);

// The name behind the last backslash.
CString NameOf(const char *path);

// The path of the source's file; empty when it has none.
CString PathOf(CUGDataSource &source);

class CFileInformationDlg : public CDialog {
public:
    CFileInformationDlg(CUGDataSource *source, CWnd *parent);

protected:
    BOOL OnInitDialog() override;

private:
    CString Describe() const;

    CUGDataSource *m_source; // borrowed
};
