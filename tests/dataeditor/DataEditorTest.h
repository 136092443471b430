// The fixture of the data editor's window tests: what the core's has, with data editors.
#pragma once

#include "EditorWindowTest.h"

#include "dataeditor/OrvaneEditor.h"

class TestDataEditor : public COrvaneEditor {
public:
    explicit TestDataEditor(CallLog *log) : m_log(log) {}

    HWND Cells() const { return m_grid.GetSafeHwnd(); }
    HWND Edit() const { return m_grid.m_edit.GetSafeHwnd(); }
    HWND TopHeading() const { return m_topHdg.GetSafeHwnd(); }
    HWND SideHeading() const { return m_sideHdg.GetSafeHwnd(); }
    CEditorLayout *Layout() { return m_pLayout; }
    bool Navigate(UINT key) { return OnNavigateFilteredRecords(key); }
    int Locked() const { return m_nLockedCols; }
    UINT_PTR Timer() const { return m_nPickListTimer; }
    void RequestAbort() { m_bAbortRequested = true; }
    // The flags alone, as if another way had set them.
    void SetLines(bool horizontal, bool vertical) {
        m_bShowHorizLines = horizontal;
        m_bShowVertLines = vertical;
    }
    // "cur=(c,r) top"
    std::string At() { return std::to_string(GetCurrentCol()) + "," + std::to_string(GetCurrentRow()); }
    int OnCanMove(int, long, int, long) override { return m_canMove; }
    int OnMenuStart(int, long, int) override { return m_canMenu; }
    bool m_canMove = true;
    bool m_canMenu = false;
    void OnLClicked(int col, long row, int updn, RECT *rect, POINT *point, int processed) override {
        ++m_clicks;
        COrvaneEditor::OnLClicked(col, row, updn, rect, point, processed);
    }
    int m_clicks = 0;
    void OnFileModify() override {
        m_log->Note("FileModify");
        COrvaneEditor::OnFileModify();
    }

private:
    CallLog *m_log;
};

class DataEditorTest : public EditorWindowTest {
protected:
    ~DataEditorTest() override { m_dataEditors.clear(); }

    TestDataEditor &MakeEditor();
    // With a source open whose fields are F0, F1, ...; everything noted so far forgotten.
    TestDataEditor &OpenEditor(int fields, long rows, int filter = kNoFilter, int mode = kEditNormal);
    // The same with a filter attached and used, which the given records, 1-based, pass.
    TestDataEditor &OpenFiltered(int fields, long rows, std::initializer_list<long> passing);
    void Key(TestDataEditor &editor, UINT key, UINT character = 0);

    std::vector<std::unique_ptr<TestDataEditor>> m_dataEditors;
};
