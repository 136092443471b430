// LookupHost: the host's services as far as lookup tables ask for them; the others answer nothing. It is the host of
// the tables as long as it lives.
#pragma once

#include "editorcore/AppInterface.h"
#include "lookup/LookupTableFile.h"

#include <functional>
#include <string>

class LookupHost : public CVAppInterface {
public:
    LookupHost() { CLookupTableFile::SetAppInterface(this); }
    ~LookupHost() { CLookupTableFile::SetAppInterface(nullptr); }

    int CheckAbort() override {
        ++m_abortChecks;
        return m_abortAt != 0 && m_abortChecks >= m_abortAt;
    }
    bool EditLookupTableProperties(bool *caseSensitive, bool *acceptEmptyCells, bool *enableValidation,
                                   bool *sortMenuItems) override {
        ++m_propertyQuestions;
        if (m_onProperties)
            m_onProperties(caseSensitive, acceptEmptyCells, enableValidation, sortMenuItems);
        return m_propertyAnswer;
    }
    void DoWaitCursor(int step) override { m_waits += (m_waits.empty() ? "" : " ") + std::to_string(step); }

    void SetEditorTitle(const char *, const char *, CEditorCore *) override {}
    void OnGridHotKey() override {}
    bool LoadXParmsSet(const char *, CMap<CString, const char *, CExecuteInfo, CExecuteInfo &> *) override {
        return false;
    }
    void GetAppTitle(CString &) override {}
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
    void GetDefaultFieldWidths(UINT *, UINT *) override {}
    void GetLookupOptions(bool *, bool *, bool *, bool *, bool *, int *, CString *, CString *) override {}
    bool EditLookupUserOptions(bool *, bool *, bool *, bool *, bool *, int *, CString *, CString *, UINT *,
                               UINT *) override {
        return false;
    }
    void EditLookupAdminOptions(CLookupOptionsMgr *) override {}
    void SetDefaultFieldWidths(UINT, UINT) override {}
    bool EditFilter(int, const char *) override { return false; }
    bool SelectFilter(int *) override { return false; }
    void ShowMessage(const char *) override {}

    std::string m_waits; // the steps of the wait cursor
    long m_abortChecks = 0;
    long m_abortAt = 0; // the check from which on the operation is to stop; 0 for none
    int m_propertyQuestions = 0;
    bool m_propertyAnswer = true;
    std::function<void(bool *, bool *, bool *, bool *)> m_onProperties;
};
