// What the editor benchmarks share: a host that answers with defaults, a window of the stated size, and a table
// of medians.
#pragma once

#include <afxwin.h>

#include "editorcore/EditorCore.h"

#include <functional>
#include <string>
#include <vector>

class CBenchOptions final : public CVEditorOptions {
public:
    void GetCellFont(LOGFONTA *font) override;
    void GetHeadingFont(LOGFONTA *font) override { GetCellFont(font); }
    void SetCellFont(const LOGFONTA *) override {}
    void SetHeadingFont(const LOGFONTA *) override {}
    COLORREF GetCellTextColour() override { return 0; }
    COLORREF GetCellHighlightColour() override { return RGB(0, 90, 158); }
    int GetUndoLevels() override { return 100; }
    int GetMaxDisplayColWidth() override { return 40; }
    bool IsEnterKeyTab() override { return false; }
    void SetEnterKeyTab(bool) override {}
    bool IsRightJustifyingNumbers() override { return true; }
    bool IsRightJustifyingText() override { return false; }
    void SetGridLines(bool, bool) override {}
    void GetGridLines(bool *horizontal, bool *vertical) override { *horizontal = *vertical = true; }
};

class CBenchHost final : public CVAppInterface {
public:
    void SetEditorTitle(const char *, const char *, CEditorCore *) override {}
    void OnGridHotKey() override {}
    bool LoadXParmsSet(const char *, CMap<CString, const char *, CExecuteInfo, CExecuteInfo &> *) override {
        return false;
    }
    void GetAppTitle(CString &title) override { title = "Bench"; }
    int CheckAbort() override { return 0; }
    CUGDataSource *CreateDataSource(const char *path) override;
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
    CVEditorOptions *GetEditorOptions() override { return &m_options; }
    void GetDefaultFieldWidths(UINT *, UINT *) override {}
    bool EditLookupTableProperties(bool *, bool *, bool *, bool *) override { return false; }
    void GetLookupOptions(bool *, bool *, bool *, bool *, bool *, int *, CString *, CString *) override {}
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

private:
    CBenchOptions m_options;
};

// One line of the result: median with minimum and maximum.
class CBenchTable {
public:
    void Add(const char *what, const char *unit, std::vector<double> values);
    // Runs the work `runs` times after one that is not counted, in milliseconds.
    void Time(const char *what, int runs, const std::function<void()> &work);
    static double Milliseconds(const std::function<void()> &work);
    static double Median(std::vector<double> values);
};
