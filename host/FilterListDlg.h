// CFilterListDlg: the filters of a table, to choose one and to keep the list in order. What is made, changed and
// deleted here is stored at once.
#pragma once

#include <afxcmn.h>

#include "filter/FilterList.h"

namespace dbf {
class Table;
}

class CFilterListDlg : public CDialog {
public:
    // Borrowed. `attached` is the number of the filter to begin at.
    CFilterListDlg(const dbf::Table &table, int attached, CWnd *parent);

    // Reads the list. False with the reason told.
    bool Load();
    int GetChosen() const { return m_chosen; }

    // Lets the user change one filter and stores it. The default filter becomes what was edited. False when nothing
    // was changed or could be stored, which is told.
    static bool EditOne(const dbf::Table &table, int number, CWnd *parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnNew();
    afx_msg void OnEdit();
    afx_msg void OnDelete();
    afx_msg void OnSelected(NMHDR *notification, LRESULT *result);
    afx_msg void OnDoubleClick(NMHDR *notification, LRESULT *result);
    afx_msg void OnListKey(NMHDR *notification, LRESULT *result);

private:
    static bool LoadList(const dbf::Table &table, filter::FilterList &list);
    static bool StoreList(const dbf::Table &table, const filter::FilterList &list);
    CListCtrl &List() const;
    int Selected() const; // a filter's number, -1 without one
    void Fill(int select);
    void EditDefinition(filter::Definition definition);

    const dbf::Table &m_table;
    filter::FilterList m_filters;
    int m_chosen; // the attached one until another is
    bool m_attachedChanged = false;
};
