// CFindDlg: the search of the open tables, and with replacing too. It stays open while the tables are worked on, and
// sends each wish to the editor of the table that is active then.
#pragma once

#include <afxwin.h>

#include "dataeditor/FindReplaceData.h"

#include <functional>

class CFindDlg : public CDialog {
public:
    // Whom a wish goes to; null while no table is open.
    using Target = std::function<CWnd *()>;

    explicit CFindDlg(Target target) : m_target(std::move(target)) {}

    // Shows the dialog, as a search or with replacing. `selection` offers the selected cells as the scope.
    void Show(bool replace, bool selection, UINT message, CWnd *parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override; // the next one, or the replacements
    void OnCancel() override { ShowWindow(SW_HIDE); }
    DECLARE_MESSAGE_MAP()
    afx_msg void OnTextChanged();
    afx_msg void OnTextChosen();
    afx_msg void OnScope();

private:
    void Arrange();
    void Restore();
    void Store();
    static void ReadHistory(CWnd *list, const char *section);
    static void Remember(CWnd *list, const char *section);
    int ScopeDirection() const;
    void EnableWish(bool enable);
    bool CanBeSearched();

    Target m_target;
    bool m_replace = false;
    UINT m_message = 0;
    bool m_running = false; // a wish is at work, perhaps with a question up
    CFindReplaceData m_data;
};
