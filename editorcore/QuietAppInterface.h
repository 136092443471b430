// CQuietAppInterface: a host that offers nothing, takes everything and shows nothing, for programs without windows that
// use a part of the library. They override what they need.
#pragma once

#include "editorcore/AppInterface.h"

class CQuietAppInterface : public CVAppInterface {
public:
    void SetEditorTitle(const char *, const char *, CEditorCore *) override {}
    void OnGridHotKey() override {}
    bool LoadXParmsSet(const char *, CMap<CString, const char *, CExecuteInfo, CExecuteInfo &> *) override {
        return false;
    }
    void GetAppTitle(CString &title) override { title.Empty(); }
    int CheckAbort() override { return 0; }
    CUGDataSource *CreateDataSource(const char *) override { return nullptr; }
    void ShowFileInformation(CUGDataSource *) override {}
    bool PromptSaveAs(CString &, bool *, bool) override { return false; }
    bool PromptFieldOrder(CStringArray *) override { return false; }
    void PromptFieldVisibility(CStringArray &, CArray<bool, bool> &) override {}
    bool PromptXParms(CStringArray &, CStringArray &, CArray<bool, bool> &, CString, const char *,
                      CArray<CFieldStatus, CFieldStatus &> *, CString &,
                      CArray<CExecuteInfo *, CExecuteInfo *> &) override {
        return false;
    }
    void ShowFindDialog(bool, CWnd *, UINT) override {}
    void ShowReplaceDialog(bool, CWnd *, UINT) override {}
    CVEditorOptions *GetEditorOptions() override { return nullptr; }
    void GetDefaultFieldWidths(UINT *code, UINT *description) override { *code = *description = 10; }
    bool EditLookupTableProperties(bool *, bool *, bool *, bool *) override { return false; }
    void GetLookupOptions(bool *validate, bool *validateOnKey, bool *resolveSubMenus, bool *allowPartialCodes,
                          bool *beepOnInvalid, int *invalidAction, CString *, CString *) override {
        *validate = *validateOnKey = *resolveSubMenus = *allowPartialCodes = *beepOnInvalid = false;
        *invalidAction = 0;
    }
    bool EditLookupUserOptions(bool *, bool *, bool *, bool *, bool *, int *, CString *, CString *, UINT *,
                               UINT *) override {
        return false;
    }
    void EditLookupAdminOptions(CLookupOptionsMgr *) override {}
    void SetDefaultFieldWidths(UINT, UINT) override {}
    bool EditFilter(int, const char *) override { return false; }
    bool SelectFilter(int *) override { return false; }
    void DoWaitCursor(int) override {}
    void ShowMessage(const char *) override {}
};
