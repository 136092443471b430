// RecordingHost and RecordingOptions: the host's services, noting what is asked of them.
#pragma once

#include "QuietHost.h"
#include "RecordingSource.h"

#include <afxwin.h>

#include <deque>
#include <functional>
#include <string>

class RecordingOptions : public CQuietEditorOptions {
public:
    explicit RecordingOptions(CallLog *log);

    void GetCellFont(LOGFONTA *font) override { *font = m_cellFont; }
    void GetHeadingFont(LOGFONTA *font) override { *font = m_headingFont; }
    void SetCellFont(const LOGFONTA *font) override;
    void SetHeadingFont(const LOGFONTA *font) override;
    COLORREF GetCellTextColour() override { return 0x112233; }
    COLORREF GetCellHighlightColour() override { return 0x445566; }
    int GetUndoLevels() override;
    int GetMaxDisplayColWidth() override { return 33; }
    bool IsEnterKeyTab() override { return m_enterIsTab; }
    void SetEnterKeyTab(bool enterIsTab) override;
    void SetGridLines(bool horizontal, bool vertical) override {
        m_horizontal = horizontal;
        m_vertical = vertical;
    }
    void GetGridLines(bool *horizontal, bool *vertical) override {
        *horizontal = m_horizontal;
        *vertical = m_vertical;
    }

    LOGFONTA m_cellFont{};
    LOGFONTA m_headingFont{};
    bool m_horizontal = true, m_vertical = true;
    int m_undoLevels = 5;
    bool m_outOfMemory = false; // GetUndoLevels throws
    bool m_enterIsTab = false;
    std::function<void()> m_onSetEnterKey;

private:
    CallLog *m_log;
};

// What a host keeps of the lookup options; the dialog of the user options gives the same.
struct RecordedLookupOptions {
    bool m_validate = true;
    bool m_validateOnKey = false;
    bool m_resolveSubMenus = false;
    bool m_allowPartialCodes = false;
    bool m_beepOnInvalid = false;
    int m_invalidAction = 0; // index
    CString m_replaceString;
    CString m_prependString;
    UINT m_codeWidth = 0; // of the dialog
    UINT m_descriptionWidth = 0;
};

class RecordingHost : public QuietHost {
public:
    explicit RecordingHost(CallLog *log) : m_options(log), m_log(log) {}

    void SetEditorTitle(const char *path, const char *table, CEditorCore *editor) override;
    void OnGridHotKey() override { m_log->Note("HotKey"); }
    void GetAppTitle(CString &title) override { title = "Test"; }
    int CheckAbort() override {
        ++m_looks;
        return m_abortAtLook > 0 && m_looks >= m_abortAtLook ? 1 : m_abort;
    }
    // The sources of m_sources in turn, then null.
    CUGDataSource *CreateDataSource(const char *path) override;
    bool PromptSaveAs(CString &name, bool *useFiltered, bool attached) override {
        return m_onSaveAs && m_onSaveAs(name, useFiltered, attached);
    }
    bool PromptFieldOrder(CStringArray *names) override { return m_onOrder && m_onOrder(names); }
    void PromptFieldVisibility(CStringArray &names, CArray<bool, bool> &shown) override {
        if (m_onVisibility)
            m_onVisibility(names, shown);
    }
    void ShowFindDialog(bool selection, CWnd *, UINT message) override { NoteDialog("FindDialog", selection, message); }
    void ShowReplaceDialog(bool selection, CWnd *, UINT message) override {
        NoteDialog("ReplaceDialog", selection, message);
    }
    CVEditorOptions *GetEditorOptions() override { return &m_options; }
    // Leaves the widths as they come unless m_widths says otherwise.
    void GetDefaultFieldWidths(UINT *code, UINT *description) override;
    void SetDefaultFieldWidths(UINT code, UINT description) override;
    void GetLookupOptions(bool *validate, bool *validateOnKey, bool *resolveSubMenus, bool *allowPartialCodes,
                          bool *beepOnInvalid, int *invalidAction, CString *replaceString,
                          CString *prependString) override;
    bool EditLookupUserOptions(bool *validate, bool *validateOnKey, bool *resolveSubMenus, bool *allowPartialCodes,
                               bool *beepOnInvalid, int *invalidAction, CString *replaceString,
                               CString *prependString, UINT *codeWidth, UINT *descriptionWidth) override;
    void EditLookupAdminOptions(CLookupOptionsMgr *manager) override {
        m_log->Note("AdminOptions");
        m_adminManager = manager;
    }
    bool EditFilter(int number, const char *path) override {
        m_log->Note("EditFilter(" + std::to_string(number) + "," + path + ")");
        return m_filterAnswer;
    }
    bool SelectFilter(int *number) override {
        m_log->Note("SelectFilter(" + std::to_string(*number) + ")");
        *number = m_filterChosen;
        return m_filterAnswer;
    }
    void ShowFileInformation(CUGDataSource *source) override {
        m_log->Note("FileInformation");
        m_informed = source;
    }
    void DoWaitCursor(int step) override {
        m_waits += step;
        m_log->Note("Wait(" + std::to_string(step) + ")");
    }
    void ShowMessage(const char *text) override { m_log->Note(std::string("Message(") + text + ")"); }

    RecordingOptions m_options;
    std::deque<CUGDataSource *> m_sources;
    CUGDataSource *m_informed = nullptr; // of the last ShowFileInformation
    int m_waits = 0; // begun and not ended
    int m_abort = 0;
    long m_looks = 0;       // CheckAbort calls
    long m_abortAtLook = 0; // from this one on the answer is to stop; 0 for m_abort alone
    std::function<void(CEditorCore *)> m_onTitle;
    std::function<bool(CStringArray *)> m_onOrder;
    std::function<bool(CString &, bool *, bool)> m_onSaveAs;
    RecordedLookupOptions m_lookup;
    bool m_lookupAnswer = true;
    UINT m_widths[2] = {0, 0}; // 0 for what the library proposes
    CLookupOptionsMgr *m_adminManager = nullptr;
    bool m_filterAnswer = true;
    int m_filterChosen = 0;
    std::function<void(CStringArray &, CArray<bool, bool> &)> m_onVisibility;

private:
    void CopyLookup(bool *validate, bool *validateOnKey, bool *resolveSubMenus, bool *allowPartialCodes,
                    bool *beepOnInvalid, int *invalidAction, CString *replaceString, CString *prependString) const;
    void NoteDialog(const char *which, bool selection, UINT message) {
        m_log->Note(std::string(which) + "(" + std::to_string(selection) + "," + std::to_string(message) + ")");
    }

    CallLog *m_log;
};
