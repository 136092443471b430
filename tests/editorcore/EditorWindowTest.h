// The fixture of the editor's window tests: editors in a host window, and the host's services recorded.
#pragma once

#include "editorcore/EditorCore.h"

#include "RecordingHost.h"
#include "RecordingSource.h"
#include "WindowTestApp.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class TestEditor : public CEditorCore {
public:
    explicit TestEditor(CallLog *log) : m_log(log) {}

    HWND Cells() const { return m_grid.GetSafeHwnd(); }
    HWND Edit() const { return m_grid.m_edit.GetSafeHwnd(); }
    CCommandListMgr *Commands() { return m_pCommandList; }
    CEditorLayout *Layout() { return m_pLayout; }
    CColumnCellTypeMap *Types() { return m_pColCellTypes; }
    bool ConstructFailed() const { return m_bConstructFailed; }
    void RequestAbort() { m_bAbortRequested = true; }
    bool Abort() { return AbortOperation(); }
    static CFont *CellFont() { return ms_pCellFont; }
    static CFont *HeadingFont() { return ms_pHeadingFont; }
    static int MaxDisplayColWidth() { return ms_nMaxDisplayColWidth; }
    static int Live() { return static_cast<int>(m_InstanceList.GetSize()); }
    std::string State();
    // "0,2 of 0,1,2": the fields shown, as layout and grid agree on them, and every field in position order.
    std::string Order();
    // The grid's column widths; the layout's widths by field.
    std::string Widths();
    std::string FieldWidths();
    // "0,0..2,1 mode=1 anchor=(0,-1)": the selection's rectangle, and the heading selection's.
    std::string Selection();
    HWND TopHeading() const { return m_topHdg.GetSafeHwnd(); }
    HWND SideHeading() const { return m_sideHdg.GetSafeHwnd(); }
    HWND Corner() const { return m_cornerBtn.GetSafeHwnd(); }
    using CEditorCore::GetClipBoardDataInfo;
    using CEditorCore::SelectColumns;
    using CEditorCore::SelectRows;

    // As if CEditorCore::Initialise had not been called.
    static void ForgetInitialise() {
        ms_bInitCalled = false;
        ms_pAppInterface = nullptr;
    }
    // "from>to" of each change of the current cell, while it is noted.
    std::vector<std::string> m_cellChanges;
    bool m_notesCellChanges = false;

    // What a host does in these notifications.
    std::function<void()> m_onCellChange, m_onSetCell;

    int OnSetCell(int col, long row, CUGCell *cell) override {
        if (m_onSetCell)
            std::exchange(m_onSetCell, nullptr)();
        return CEditorCore::OnSetCell(col, row, cell);
    }
    void OnCellChange(int oldCol, int newCol, long oldRow, long newRow) override {
        if (m_onCellChange)
            std::exchange(m_onCellChange, nullptr)();
        if (!m_notesCellChanges)
            return;
        m_cellChanges.push_back(std::to_string(oldCol) + "," + std::to_string(oldRow) + ">" +
                                std::to_string(newCol) + "," + std::to_string(newRow));
    }
    void SetCustomOptions() override { m_log->Note("CustomOptions"); }
    void SetTextAlignment() override { m_log->Note("TextAlignment"); }
    void OnLClicked(int col, long row, int updn, RECT *rect, POINT *point, int processed) override;
    void OnKeyUp(UINT *key, int) override { m_log->Note("KeyUp(" + std::to_string(*key) + ")"); }

private:
    CallLog *m_log;
};

class EditorWindowTest : public testing::Test {
protected:
    EditorWindowTest();
    ~EditorWindowTest() override;

    // A new editor with its window.
    TestEditor &Make();
    // A source that the next load gets; the editor owns it then.
    RecordingSource *Source(int fields, long rows, const std::string &name = "src");
    // An editor with a source open, and everything noted so far forgotten.
    TestEditor &Open(int fields, long rows, int mode = kEditNormal);
    void Forget();
    // A file of the test's own folder; made with this content.
    std::string MakeFile(const char *name, const std::string &content = "data");
    std::string PathOf(const char *name) const { return m_folder + "\\" + name; }
    static std::string Content(const std::string &path);
    // The text of the edit box.
    static std::string Box(TestEditor &editor) { return editor.Edit() ? WindowText(editor.Edit()) : "closed"; }
    static CPersistUIntArray Fields(std::initializer_list<UINT> fields) {
        CPersistUIntArray all;
        for (UINT field : fields)
            all.Add(field);
        return all;
    }

    CallLog m_log;
    RecordingHost m_service{&m_log};
    std::string m_folder;
    HostWindow m_host;
    std::vector<std::unique_ptr<TestEditor>> m_editors;
    RecordingSource *m_source = nullptr; // of Open; borrowed
};
