// The window of an editor is destroyed, with the frame that holds it, while its own command shows a box or a dialog,
// looks at the messages that wait, or has its host or its source at work. Freed memory is overwritten meanwhile. Each
// scene names the function that pumps; tests/architecture/pumps.py holds the names against the sources.
#include "DataEditorTest.h"

#include "AllocationFault.h"
#include "TestClipboard.h"
#include "dataeditor/DataEditorDlgs.h"
#include "resources/ResourceIds.h"
#include "search/PatternText.h"

#include <optional>

namespace {

constexpr UINT kWork = WM_APP + 100;

// Holds an editor as hosts do: the frame goes with its window, and the editor with the frame.
class EditorFrame : public CFrameWnd {
public:
    explicit EditorFrame(CallLog *log) : m_editor(log) { ++ms_live; }
    ~EditorFrame() override { --ms_live; }
    static int ms_live;

    TestDataEditor m_editor;
    std::function<void(TestDataEditor &)> m_work;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == kWork)
            m_work(m_editor);
        return CFrameWnd::WindowProc(message, wParam, lParam);
    }
};

int EditorFrame::ms_live = 0;

// A host all of whose services let something through.
class PumpingHost : public RecordingHost {
public:
    using RecordingHost::RecordingHost;

    void Pump() {
        if (m_onPump)
            m_onPump();
    }
    std::function<void()> m_onPump;
    std::function<void()> m_onSummary;

    int CheckAbort() override {
        Pump();
        return RecordingHost::CheckAbort();
    }
    bool PromptSaveAs(CString &name, bool *useFiltered, bool attached) override {
        Pump();
        return RecordingHost::PromptSaveAs(name, useFiltered, attached);
    }
    bool PromptFieldOrder(CStringArray *) override {
        Pump();
        return true;
    }
    void PromptFieldVisibility(CStringArray &names, CArray<bool, bool> &shown) override {
        Pump();
        RecordingHost::PromptFieldVisibility(names, shown);
    }
    void ShowFindDialog(bool selection, CWnd *editor, UINT message) override {
        Pump();
        RecordingHost::ShowFindDialog(selection, editor, message);
    }
    void ShowReplaceDialog(bool selection, CWnd *editor, UINT message) override {
        Pump();
        RecordingHost::ShowReplaceDialog(selection, editor, message);
    }
    bool EditFilter(int number, const char *path) override {
        Pump();
        return RecordingHost::EditFilter(number, path);
    }
    bool SelectFilter(int *number) override {
        Pump();
        return RecordingHost::SelectFilter(number);
    }
    void ShowFileInformation(CUGDataSource *source) override {
        Pump();
        RecordingHost::ShowFileInformation(source);
    }
    void ShowMessage(const char *text) override {
        Pump();
        if (m_onSummary)
            m_onSummary();
        RecordingHost::ShowMessage(text);
    }
    void SetEditorTitle(const char *path, const char *table, CEditorCore *editor) override {
        Pump();
        RecordingHost::SetEditorTitle(path, table, editor);
    }
    void OnGridHotKey() override {
        Pump();
        RecordingHost::OnGridHotKey();
    }
};

// What is dragged ends the frame, and then itself.
class EndingSource : public COleDropSource {
public:
    explicit EndingSource(std::function<void()> end) : m_end(std::move(end)) {}
    SCODE QueryContinueDrag(BOOL, DWORD) override {
        m_end();
        return DRAGDROP_S_CANCEL;
    }

private:
    std::function<void()> m_end;
};

// Answers every dialog of the thread that is up, whichever window is active.
class DialogAnswer {
public:
    explicit DialogAnswer(WPARAM command, const char *number = nullptr) {
        ms_command = command;
        ms_number = number;
        m_timer = ::SetTimer(nullptr, 0, 5, [](HWND, UINT, UINT_PTR, DWORD) {
            ::EnumThreadWindows(::GetCurrentThreadId(), Answer, 0);
        });
    }
    ~DialogAnswer() { ::KillTimer(nullptr, m_timer); }
    DialogAnswer(const DialogAnswer &) = delete;
    DialogAnswer &operator=(const DialogAnswer &) = delete;

private:
    static BOOL CALLBACK Answer(HWND window, LPARAM) {
        char className[16] = "";
        ::GetClassNameA(window, className, sizeof className);
        if (std::strcmp(className, "#32770") != 0 || !::IsWindowVisible(window))
            return TRUE;
        if (ms_number != nullptr)
            ::SetDlgItemTextA(window, IDC_RECORDS_COUNT, ms_number);
        ::SendMessageA(window, WM_COMMAND, ms_command, 0);
        return FALSE;
    }
    static WPARAM ms_command;
    static const char *ms_number;
    UINT_PTR m_timer;
};

WPARAM DialogAnswer::ms_command = 0;
const char *DialogAnswer::ms_number = nullptr;

class EditorDestroyedTest : public DataEditorTest {
protected:
    using Step = std::function<void(TestDataEditor &)>;
    enum class By { box, dialog, host, source, messages, drag };

    EditorDestroyedTest() {
        CEditorCore::Initialise(&m_pumping);
        ms_test = this;
    }
    ~EditorDestroyedTest() override {
        Disarm();
        EXPECT_EQ(0, EditorFrame::ms_live);
        CEditorCore::Initialise(&m_service);
        ms_test = nullptr;
    }

    // A frame with an open editor; `loaded` false leaves it without a table.
    EditorFrame *MakeFrame() {
        auto *frame = new EditorFrame(&m_log);
        frame->CreateEx(0, AfxRegisterWndClass(0), "doomed", WS_POPUP | WS_VISIBLE, CRect(0, 0, 500, 300), nullptr, 0);
        frame->SetForegroundWindow();
        frame->m_editor.CreateGrid(WS_VISIBLE, CRect(0, 0, 500, 300), frame, 300);
        return frame;
    }
    EditorFrame *OpenFrame() {
        EditorFrame *frame = MakeFrame();
        auto *source = new RecordingSource(&m_log, m_fields, m_rows);
        m_source = source;
        m_pumping.m_sources.push_back(source);
        EXPECT_TRUE(frame->m_editor.LoadData(m_path.c_str(), nullptr, m_filter, m_mode, nullptr));
        return frame;
    }

    void Destroy() {
        if (!m_doomed)
            return;
        const HWND window = std::exchange(m_doomed, nullptr);
        ::KillTimer(window, 1);
        ::KillTimer(m_pumped, 1);
        m_boxes = TestApp().TakeBoxes();
        ::DestroyWindow(window);
        ::EndMenu(); // menus outlive the windows that they belong to
        // So do dialogs that belong to another window, and somebody answers them.
        ::EnumThreadWindows(::GetCurrentThreadId(), AnswerDialog, 0);
    }
    static BOOL CALLBACK AnswerDialog(HWND window, LPARAM) {
        char className[16] = "";
        ::GetClassNameA(window, className, sizeof className);
        if (std::strcmp(className, "#32770") == 0 && ::IsWindowVisible(window)) {
            for (const WPARAM answer : {WPARAM(CYesNoCancelAllDlg::kAll), WPARAM(IDOK), WPARAM(IDCANCEL)})
                ::PostMessageA(window, WM_COMMAND, answer, 0);
        }
        return TRUE;
    }
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        if (ms_test != nullptr)
            ms_test->Destroy();
    }
    // From here on what pumps by `by` ends the frame.
    void Arm(EditorFrame *frame, By by) {
        m_doomed = frame->m_hWnd;
        m_pumped = frame->m_editor.Cells();
        TestApp().TakeBoxes();
        if (by == By::box)
            TestApp().m_whileUp = [this](const std::string &) { Destroy(); };
        if (by == By::host)
            m_pumping.m_onPump = [this] { Destroy(); };
        if (by == By::source)
            m_source->m_onCall = [this](const std::string &operation) {
                if (operation == m_operation)
                    Destroy();
            };
        if (by == By::dialog || by == By::messages) {
            ::SetTimer(m_doomed, 1, 5, OnTimer);
            ::SetTimer(m_pumped, 1, 5, OnTimer);
        }
    }
    void Disarm() {
        TestApp().m_whileUp = nullptr;
        m_pumping.m_onPump = nullptr;
        m_doomed = nullptr;
    }

    // `function` pumps by `by` within `work`, and says `said` where it shows a box.
    void Dies(const char *function, By by, const std::string &said, const Step &work, const Step &before = [](auto &) {},
              const std::function<EditorFrame *()> &make = nullptr) {
        SCOPED_TRACE(function + (": " + said));
        EditorFrame *frame = make ? make() : OpenFrame();
        before(frame->m_editor);
        PumpAll();
        const int waits = m_pumping.m_waits;
        bool returned = false, alive = false;
        const HWND window = frame->m_hWnd;
        frame->m_work = [&](TestDataEditor &editor) {
            Arm(frame, by);
            work(editor);
            returned = true;
            alive = EditorFrame::ms_live > 0;
            ExpectAgreed(editor);
        };
        {
            const SpoiledMemory spoiled;
            ::SendMessageA(window, kWork, 0, 0);
        }
        EXPECT_FALSE(::IsWindow(window)) << "nothing pumped: " << TestApp().TakeBoxes();
        EXPECT_TRUE(returned && alive);
        EXPECT_EQ(said, m_boxes.substr(0, said.size()));
        EXPECT_EQ("", TestApp().TakeBoxes()) << "said to nobody";
        EXPECT_EQ(0, EditorFrame::ms_live) << "the frame goes when its command is done";
        m_calls = m_log.Take();
        EXPECT_NE(std::string::npos, m_calls.find("src.delete"));
        EXPECT_GE(waits + m_staysRaised, m_pumping.m_waits);
        if (::IsWindow(window))
            ::DestroyWindow(window);
        Disarm();
        PumpAll();
        TestApp().Answer({});
        TestApp().TakeBoxes();
        m_log.Take();
    }
    // The source is the editor's still, or nothing of the table is shown any more.
    void ExpectAgreed(TestDataEditor &editor) {
        EXPECT_EQ(nullptr, editor.GetSafeHwnd());
        const std::string size = std::to_string(editor.GetNumberCols()) + "x" + std::to_string(editor.CUGCtrl::GetNumberRows());
        EXPECT_TRUE(editor.IsDataSrcOpen() || size == "0x0") << size;
        EXPECT_NE(0, editor.m_GI.m_paintingEnabled);
    }

    // The same for a box that comes where memory runs out, at whichever allocation.
    void DiesWithoutMemory(const char *function, const std::string &said, const Step &work) {
        constexpr long kMost = 300;
        SCOPED_TRACE(function + (": " + said));
        for (long nth = 0; nth < kMost; ++nth) {
            EditorFrame *frame = OpenFrame();
            const HWND window = frame->m_hWnd;
            PumpAll();
            bool failed = false;
            frame->m_work = [&](TestDataEditor &editor) {
                Arm(frame, By::box);
                const SpoiledMemory spoiled;
                AllocationFault fault(nth);
                TestApp().m_whileUp = [&](const std::string &text) {
                    fault.Disarm();
                    if (text == said)
                        Destroy();
                };
                work(editor);
                fault.Disarm();
                failed = fault.Failed();
            };
            ::SendMessageA(window, kWork, 0, 0);
            const bool died = !::IsWindow(window);
            if (!died)
                ::DestroyWindow(window);
            Disarm();
            PumpAll();
            TestApp().TakeBoxes();
            m_log.Take();
            EXPECT_EQ(0, EditorFrame::ms_live);
            if (died)
                return;
            ASSERT_TRUE(failed) << "it never came up";
        }
        FAIL() << "it never came up";
    }

    static void Type(TestDataEditor &editor, const char *text) {
        editor.StartEdit();
        TypeText(editor.Edit(), text);
    }
    static void Put(const char *text) { SetClipboardText(nullptr, text); }
    static void Search(TestDataEditor &editor, UINT message, const char *find, int direction = kSearchDown) {
        CFindReplaceData data;
        data.SetData(find, "cow", true, false, direction, Search::kAnywhere, false);
        editor.SendMessage(message, reinterpret_cast<WPARAM>(&data), 0);
    }
    void FailAt(const char *operation) { m_source->m_results[operation] = GRID_ERROR; }

    PumpingHost m_pumping{&m_log};
    int m_fields = 2, m_filter = kNoFilter, m_mode = kEditNormal;
    long m_rows = 4;
    std::string m_path = "table";
    std::string m_operation; // of the source, for By::source
    int m_staysRaised = 0;
    HWND m_doomed = nullptr, m_pumped = nullptr;
    std::string m_calls; // of the last scene
    std::string m_boxes; // shown until the end of the window
    static EditorDestroyedTest *ms_test;
};

EditorDestroyedTest *EditorDestroyedTest::ms_test = nullptr;

// --- Edits

TEST_F(EditorDestroyedTest, InTheQuestionsOfAnEdit) {
    m_mode = kEditVerify;
    const auto typed = [](TestDataEditor &editor) { Type(editor, "x"); };
    const char *const question = "Original = 0.0, New = x - Substitute?";
    Dies("VarifyEdit", By::box, question, [](auto &editor) { editor.SaveEditContents(); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { SendKey(editor.Edit(), VK_TAB); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { SendKey(editor.Edit(), VK_RETURN); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { SendKey(editor.Edit(), VK_ESCAPE); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { ClickLeft(editor.Cells(), 60, 60); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { ClickLeft(editor.TopHeading(), 60, 5); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { editor.OnHideCols(); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { editor.OnSave(); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { static_cast<CEditorCore &>(editor).OnSaveAs("new", false, -1); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { editor.SetEditMode(kEditNormal); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { editor.ExecInsertRows(0, 1, true); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { editor.ExecDeleteRows(0, 1); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { editor.OnOrderCols(nullptr); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { editor.ResetFileView(true); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { editor.EnterEditText("y", 0, 0, true); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { editor.EnterPickListText("y"); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { Search(editor, kMsgFindNext, "0.3"); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { Search(editor, kMsgReplaceNext, "0.3"); }, typed);
    Dies("VarifyEdit", By::box, question, [](auto &editor) { editor.CloseDataSource(false); }, typed);
    Put("a\tb\r\nc\td");
    Dies("VarifyEdit", By::box, question, [](auto &editor) { editor.OnPaste(); }, typed);
}

TEST_F(EditorDestroyedTest, WhereNoRecordCanBeAddedForAnEdit) {
    m_rows = 0;
    Dies("OnCellEdit", By::box, "Could not add new record to data source!", [](auto &editor) { SendKey(editor.Edit(), VK_TAB); },
         [this](auto &editor) {
             FailAt("AppendRow");
             Type(editor, "x");
         });
}

// --- Records

TEST_F(EditorDestroyedTest, InWhatIsSaidOfRecords) {
    const auto failing = [this](const char *operation) { return [this, operation](auto &) { FailAt(operation); }; };
    Dies("AppendRecord", By::box, "Could not add record to data source!", [](auto &editor) { editor.OnAppendRow(0); },
         failing("AppendRow"));
    Dies("InsertRecords", By::box, "Could not append data source record!",
         [](auto &editor) { editor.ExecInsertRows(4, 1, true); }, failing("AppendRow"));
    m_staysRaised = 1; // the wait cursor, on this path
    Dies("DeleteRecords", By::box, "Could not remove rows from grid!", [](auto &editor) { editor.ExecDeleteRows(0, 9); });
    m_staysRaised = m_pumping.m_waits = 0;
    Dies("DeleteRecords", By::box, "Could not delete records!", [](auto &editor) { editor.ExecDeleteRows(0, 1); },
         failing("DeleteRow"));
    Dies("SaveRowsToClipboard", By::box, "Could not save data to be deleted!",
         [](auto &editor) {
             const DialogAnswer one(IDOK);
             static_cast<CEditorCore &>(editor).OnDeleteRows(true);
         },
         [](auto &editor) { editor.EnableMultiSelect(0); });
    m_operation = "DeleteRow";
    Dies("DeleteRecords", By::source, "", [](auto &editor) { editor.ExecDeleteRows(0, 1); });
    m_mode = kEditReadOnly;
    Dies("OnInsertRows", By::box, "Cannot insert records!", [](auto &editor) { editor.OnInsertRows(); });
    Dies("OnDeleteRows", By::box, "Cannot delete records!", [](auto &editor) { editor.OnDeleteRows(); });
}

TEST_F(EditorDestroyedTest, InTheDialogsOfRecords) {
    Dies("AskForRecords", By::dialog, "", [](auto &editor) { editor.OnInsertRows(); });
    Dies("AskForRecords", By::dialog, "", [](auto &editor) { editor.OnDeleteRows(); });
    Dies("OnGotoRecord", By::dialog, "", [](auto &editor) { editor.OnGotoRecord(); });
    Dies("OnLockColumns", By::dialog, "", [](auto &editor) { editor.OnLockColumns(); });
    Dies("DisplayNoUndoMessage", By::dialog, "", [](auto &editor) { editor.DisplayNoUndoMessage(); });
}

// --- Columns, open, close and save

TEST_F(EditorDestroyedTest, WhileTheHostAsksForColumns) {
    Dies("OnUnHideCols", By::host, "", [](auto &editor) { editor.OnUnHideCols(); });
    Dies("OnOrderCols", By::host, "", [](auto &editor) { editor.OnOrderCols(nullptr); });
}

TEST_F(EditorDestroyedTest, WhereMemoryRunsOut) {
    DiesWithoutMemory("OnHideCols", "Low memory - cannot carry out operation!", [](auto &editor) { editor.OnHideCols(); });
    DiesWithoutMemory("ReportOutOfMemory", "Out of memory!", [](auto &editor) { editor.ExecInsertRows(1, 1, true); });
    DiesWithoutMemory("ReportOutOfMemory", "Out of memory!", [](auto &editor) { editor.OnDetachFilter(); });
    DiesWithoutMemory("LoadData", "Cannot load file due to low memory!", [this](auto &editor) {
        editor.LoadData("other", nullptr, kNoFilter, kEditNormal, nullptr);
    });
}

TEST_F(EditorDestroyedTest, WhileATableComesUpOrIsAskedFor) {
    const auto empty = [this] { return MakeFrame(); };
    const auto load = [this](auto &editor) {
        m_source = new RecordingSource(&m_log, 2, 2);
        m_pumping.m_sources.push_back(m_source);
        m_source->m_onCall = [this](const std::string &operation) {
            if (operation == m_operation)
                Destroy();
        };
        editor.LoadData("table", nullptr, kNoFilter, kEditNormal, nullptr);
    };
    m_operation = "Open";
    Dies("OpenSource", By::messages, "", load, [](auto &) {}, empty);
    m_operation = "";
    Dies("PumpDroppingClicks", By::messages, "", [&](auto &editor) {
        ::Sleep(20); // the timer's message waits from here on
        load(editor);
    }, [](auto &) {}, empty);
    Dies("GetCurrentDataSrc", By::box, "Could not get data source!", [this](auto &editor) {
        editor.OnSave();
        m_log.Note("src.delete"); // there was none
    }, [](auto &) {}, empty);
    Dies("GetCurrentDataSrc", By::box, "Could not get data source!", [](auto &editor) { editor.OnFileInformation(); },
         [](auto &editor) { editor.CloseDataSource(false); });
}

TEST_F(EditorDestroyedTest, WhileItSaves) {
    const std::string there = MakeFile("there.dat");
    m_path = MakeFile("t.dat");
    Dies("MayWriteTo", By::box, "The file '" + m_path + "' is already open in the Editor.",
         [this](auto &editor) { static_cast<CEditorCore &>(editor).OnSaveAs(m_path.c_str(), true, 1); });
    TestApp().Answer({IDYES});
    Dies("MayWriteTo", By::box, "The file '" + there + "' already exists!",
         [&](auto &editor) { static_cast<CEditorCore &>(editor).OnSaveAs(there.c_str(), false, -1); });
    Dies("SaveUnderNewPath", By::box, "Could not save ", [this](auto &editor) {
        FailAt("SaveAs");
        static_cast<CEditorCore &>(editor).OnSaveAs(PathOf("new.dat").c_str(), false, -1);
    });
    const auto to = [this](const char *name) {
        return [this, name](CString &path, bool *, bool) {
            path = PathOf(name).c_str();
            return true;
        };
    };
    m_pumping.m_onSaveAs = to("new.dat");
    Dies("OnSaveAs", By::host, "", [](auto &editor) { editor.OnSaveAs(); });
    m_operation = "SaveAs";
    Dies("SaveUnderNewPath", By::source, "", [](auto &editor) { editor.OnSaveAs(); });
    m_operation = "Save";
    Dies("OnSave", By::source, "", [](auto &editor) { editor.OnSave(); });
    Dies("OnKeyDown", By::host, "", [](auto &editor) { SendKey(editor.Cells(), VK_F6); });
    Dies("UpdateTitle", By::host, "", [](auto &editor) { editor.UpdateTitle(); });
    Dies("OnFileInformation", By::host, "", [](auto &editor) { editor.OnFileInformation(); });
    Dies("CloseSource", By::source, "", [](auto &editor) {
        editor.SetIsUsingBackupFile(false);
        editor.CloseDataSource(false);
    });
    m_operation = "Close";
    Dies("CloseSource", By::source, "", [](auto &editor) { editor.CloseDataSource(false); });
}

// --- The clipboard

TEST_F(EditorDestroyedTest, InWhatIsSaidOfThePaste) {
    const Step paste = [](auto &editor) { editor.OnPaste(); };
    Put(nullptr);
    Dies("TakeClipboardText", By::box, "Could not get clipboard data!", paste);
    Put("x");
    {
        const HeldClipboard held;
        Dies("TakeClipboardText", By::box, "Could not open clipboard!", paste);
    }
    Put("a\tb\tc");
    Dies("PlacePaste", By::box, "The data to be pasted has more columns per row", paste);
    Put("a\r\nb\r\nc");
    Dies("AddMissingRecords", By::box, "Could not append row!", paste, [this](auto &editor) {
        FailAt("AppendRow");
        editor.GotoCell(0, 3);
    });
    Dies("AbortOperation", By::host, "", [](auto &editor) {
        CString text("a\tb");
        editor.Paste(text);
    });
    Dies("AbortOperation", By::host, "", [](auto &editor) { editor.OnCopy(); },
         [](auto &editor) { editor.SelectRange(0, 0, 1, 3); });
    Put("a\r\nb\r\nc");
    Dies("AddMissingRecords", By::messages, "", [this](auto &editor) {
        TestApp().m_whileUp = [this](const std::string &text) {
            if (text == "Could not reset number of grid rows!")
                Destroy();
        };
        m_source->m_onCall = [this](const std::string &operation) { m_source->m_answersRows = operation != "AppendRow"; };
        editor.OnPaste();
    }, [](auto &editor) { editor.GotoCell(0, 3); });
    Dies("AbortOperation", By::host, "", [](auto &editor) { static_cast<CEditorCore &>(editor).OnDeleteRows(true); },
         [](auto &editor) { editor.SelectRange(0, 0, 1, 3); });
    EXPECT_EQ(std::string::npos, m_calls.find("DeleteRow")) << m_calls;
    m_operation = "InsertRow";
    Put("a\tb\r\nc\td");
    Dies("InsertRecords", By::source, "", paste);
}

// --- Finding, replacing and filters

TEST_F(EditorDestroyedTest, WhileItSearches) {
    const auto find = [](const char *text) { return [text](TestDataEditor &editor) { Search(editor, kMsgFindNext, text); }; };
    Dies("OnFind", By::host, "", [](auto &editor) { editor.OnFind(); });
    Dies("OnFindAgain", By::box, "No find string defined.", [](auto &editor) { editor.OnFindAgain(); });
    Dies("CellText", By::box, "Could not get cell!", find("0.3"), [this](auto &) { FailAt("GetCell"); });
    Dies("GoToFound", By::box, "Could not go to cell (0, 3)!", find("0.3"), [](auto &editor) { editor.m_canMove = false; });
    Dies("GoToFound", By::box, "Could not go to cell (0, 3)!", [](auto &editor) { Search(editor, kMsgFindNext, "0.3", kSearchSelection); },
         [](auto &editor) {
             editor.SelectRange(0, 0, 1, 3);
             editor.m_canMove = false;
         });
    Dies("SayNoMatch", By::box, "Could not match the search string 'none'.", find("none"));
    Dies("AbortOperation", By::host, "", find("none"));
}

TEST_F(EditorDestroyedTest, WhileItReplaces) {
    const auto replace = [](const char *text) { return [text](TestDataEditor &editor) { Search(editor, kMsgReplaceNext, text); }; };
    // Answers the question with All, so that what comes after it ends the window.
    const auto all = [](TestDataEditor &editor) {
        const DialogAnswer all(CYesNoCancelAllDlg::kAll);
        Search(editor, kMsgReplaceNext, "0.2");
    };
    Dies("OnFindReplace", By::host, "", [](auto &editor) { editor.OnFindReplace(); });
    Dies("AskToReplace", By::dialog, "", replace("0.2"));
    Dies("AskToReplace", By::box, "Could not goto cell 0, 2!", replace("0.2"), [](auto &editor) { editor.m_canMove = false; });
    Dies("StoreReplacement", By::box, "Could not set text in cell 0, 2!", all, [this](auto &) { FailAt("SetCell"); });
    Dies("SayNoMatch", By::box, "Could not match the search string 'none'.", replace("none"));
    Dies("AbortOperation", By::host, "", replace("none"));
    const auto summing = [&](TestDataEditor &editor) {
        m_pumping.m_onPump = nullptr;
        m_pumping.m_onSummary = [this] { Destroy(); };
        all(editor);
        m_pumping.m_onSummary = nullptr;
    };
    Dies("TellReplaced", By::host, "", summing);
    m_mode = kEditReadOnly;
    Dies("OnFindReplace", By::box, "Cannot replace text as file is open as read only!", [](auto &editor) { editor.OnFindReplace(); });
}

TEST_F(EditorDestroyedTest, InTheSummaryOfAReplacementThatStopped) {
    m_pumping.m_onSummary = [this] { Destroy(); };
    Dies("TellStopped", By::messages, "", [](TestDataEditor &editor) {
        const DialogAnswer all(CYesNoCancelAllDlg::kAll);
        Search(editor, kMsgReplaceNext, "0.");
    }, [this](auto &) {
        m_source->m_onSetCell = [](int, long row) { return row == 2 ? GRID_ERROR : GRID_SUCCESS; };
    });
}

TEST_F(EditorDestroyedTest, WhileItFilters) {
    m_filter = 3;
    Dies("OnSelectAttachFilter", By::host, "", [](auto &editor) { editor.OnSelectAttachFilter(); });
    Dies("OnEditFilter", By::host, "", [](auto &editor) { editor.OnEditFilter(); });
    m_operation = "SetOption";
    Dies("SetSourceOption", By::source, "", [](auto &editor) { editor.OnAttachFilter(1); });
    Dies("SetSourceOption", By::source, "", [](auto &editor) { editor.OnDetachFilter(); });
    const Step filtered = [](auto &editor) { editor.SetUseFilteredRecords(true); };
    TestApp().Answer({IDYES});
    Dies("OnDeleteRows", By::box, "Delete filtered records?", [](auto &editor) { editor.OnDeleteRows(); }, filtered);
    TestApp().Answer({IDYES});
    m_operation = "DeleteRows";
    Dies("DeleteFilteredRecords", By::source, "", [](auto &editor) { editor.OnDeleteRows(); }, filtered);
    TestApp().Answer({IDYES});
    Dies("DeleteFilteredRecords", By::messages, "", [this](auto &editor) {
        TestApp().m_whileUp = [this](const std::string &text) {
            if (text.find("Error") == 0)
                Destroy();
        };
        editor.OnDeleteRows();
    }, [&](auto &editor) {
        filtered(editor);
        FailAt("DeleteRows");
    });
}

TEST_F(EditorDestroyedTest, WhereThereIsNoSuchRecord) {
    const auto go = [](const char *number) {
        return [number](TestDataEditor &editor) {
            const DialogAnswer answer(IDOK, number);
            editor.OnGotoRecord();
        };
    };
    Dies("GotoRecord", By::box, "Please enter a number one or greater.", go("0"));
    Dies("GotoRecord", By::box, "Could not go to record", go("2"), [](auto &editor) { editor.m_canMove = false; });
}

// --- Loops over the messages that wait

TEST_F(EditorDestroyedTest, WhileTheMouseIsHeldBeyondTheCells) {
    m_rows = 4000;
    Dies("PumpDragMessages", By::messages, "", [](auto &editor) {
        editor.OnSH_LClicked(0, 1);
        editor.SetCapture();
        MoveMouse(editor.m_hWnd, 5, 320, MK_LBUTTON);
    });
    Dies("DragScroll", By::messages, "", [](auto &editor) {
        PressLeft(editor.Cells(), 5, 5);
        MoveMouse(editor.Cells(), 5, 900, MK_LBUTTON);
    });
}

TEST_F(EditorDestroyedTest, WhileAMenuOrASystemBoxIsUp) {
    AfxOleInit();
    Dies("ShowPopupMenu", By::messages, "", [](auto &editor) {
        editor.m_canMenu = true;
        editor.EnablePopupMenu(1);
        editor.GetPopupMenu()->AppendMenu(MF_STRING, 1000, "first");
        ::SendMessageA(editor.TopHeading(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(60, 5));
    });
    Dies("FindDialogText", By::messages, "", [](auto &editor) { editor.FindDialogText("none", nullptr, false, false); });
    // The system asks the source when something moves.
    const UINT_PTR mover = ::SetTimer(
        nullptr, 0, 5, [](HWND, UINT, UINT_PTR, DWORD) { ::mouse_event(MOUSEEVENTF_MOVE, 0, 0, 0, 0); });
    EndingSource ending([this] { Destroy(); });
    Dies("StartDrag", By::drag, "", [&](auto &editor) { editor.StartDrag("moved", &ending, DROPEFFECT_COPY); });
    ::KillTimer(nullptr, mover);
}

} // namespace
