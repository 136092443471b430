// CHostService: what the host answers to the library.
#pragma once

#include <afxwin.h>

#include "editorcore/AppInterface.h"
#include "host/FindDlg.h"
#include "host/HostOptions.h"
#include "host/LongWork.h"

class CDbfDataSource;

class CHostService final : public CVAppInterface {
public:
    // IDYES, IDNO or IDCANCEL, of a table with changes.
    static int AskToSave(const char *path);
    CHostService();
    CHostOptions &Options() { return m_options; }
    // Takes back the wait cursor that a failed operation of the library left raised.
    void EndWaitCursor();
    CLongWork &LongWork() { return m_longWork; }

    void SetEditorTitle(const char *path, const char *table, CEditorCore *editor) override;
    void OnGridHotKey() override;
    bool LoadXParmsSet(const char *setName,
                       CMap<CString, const char *, CExecuteInfo, CExecuteInfo &> *sets) override;
    void GetAppTitle(CString &title) override;
    int CheckAbort() override;
    CUGDataSource *CreateDataSource(const char *path) override;
    void ShowFileInformation(CUGDataSource *source) override;
    bool PromptSaveAs(CString &name, bool *useFiltered, bool filterAttached) override;
    bool PromptFieldOrder(CStringArray *names) override;
    void PromptFieldVisibility(CStringArray &names, CArray<bool, bool> &shown) override;
    bool PromptXParms(CStringArray &names, CStringArray &types, CArray<bool, bool> &visible, CString lastSet,
                      const char *path, CArray<CFieldStatus, CFieldStatus &> *statuses, CString &chosenSet,
                      CArray<CExecuteInfo *, CExecuteInfo *> &results) override;
    void ShowFindDialog(bool inMultipleSelection, CWnd *editor, UINT message) override;
    void ShowReplaceDialog(bool inMultipleSelection, CWnd *editor, UINT message) override;
    CVEditorOptions *GetEditorOptions() override { return &m_options; }
    void GetDefaultFieldWidths(UINT *code, UINT *description) override;
    bool EditLookupTableProperties(bool *caseSensitive, bool *acceptEmptyCells, bool *enableValidation,
                                   bool *sortMenuItems) override;
    void GetLookupOptions(bool *validate, bool *validateOnKey, bool *resolveSubMenus, bool *allowPartialCodes,
                          bool *beepOnInvalid, int *invalidAction, CString *replaceString,
                          CString *prependString) override;
    bool EditLookupUserOptions(bool *validate, bool *validateOnKey, bool *resolveSubMenus,
                               bool *allowPartialCodes, bool *beepOnInvalid, int *invalidAction,
                               CString *replaceString, CString *prependString, UINT *codeWidth,
                               UINT *descriptionWidth) override;
    void EditLookupAdminOptions(CLookupOptionsMgr *manager) override;
    void SetDefaultFieldWidths(UINT code, UINT description) override;
    bool EditFilter(int number, const char *path) override;
    bool SelectFilter(int *filterNumber) override;
    void DoWaitCursor(int step) override;
    void ShowMessage(const char *text) override;

private:
    static bool MayClose(CDbfDataSource &source);
    static bool MayOverwrite(const std::string &path);

    CHostOptions m_options;
    CFindDlg m_findDlg;
    CLongWork m_longWork;
    int m_waits = 0; // wait cursors that the library has raised
};
