// CFilterDlg: one filter, its name and its expression. What is typed is checked at once, and the mistake named; an
// expression that is right tells how many records pass.
#pragma once

#include <afxwin.h>

#include "filter/Expression.h"
#include "filter/FilterList.h"

namespace dbf {
class Table;
}

class CFilterDlg : public CDialog {
public:
    // Both are borrowed; `filter` holds what was typed after OK. The default filter, number 0, has no name.
    CFilterDlg(const dbf::Table &table, filter::Definition &filter, CWnd *parent);

protected:
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG *message) override;
    void OnOK() override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnExpressionChanged();
    afx_msg void OnInsertField();

private:
    bool Check(filter::Mistake *mistake);
    CString CountPassing(filter::Expression &expression) const;

    const dbf::Table &m_table;
    filter::Definition &m_filter;
};
