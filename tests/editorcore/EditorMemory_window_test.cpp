// Every allocation of the long commands failed once: what has to be said is said, table, view and history agree
// afterwards, and nothing leaks.
#include "EditorWindowTest.h"

#include "AllocationFault.h"
#include "DbfTable.h"
#include "host/sources/DbfDataSource.h"
#include "resources/ResourceIds.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

constexpr int kFields = 4;
constexpr int kRecords = 6;
constexpr const char *kOutOfMemory = "Out of memory!|16";
constexpr const char *kNoMemoryInWindow = "Out of memory.|4144\nOut of memory.|48";

class EditorMemoryTest : public EditorWindowTest {
protected:
    using Work = std::function<void(TestEditor &)>;

    EditorMemoryTest() { m_path = MakeFile("table.dbf", DbfTableBytes(kFields, kRecords)); }

    TestEditor &MakeWithSource() {
        TestEditor &editor = Make();
        m_source = new CDbfDataSource;
        m_service.m_sources.push_back(m_source);
        return editor;
    }
    bool Load(TestEditor &editor) { return editor.LoadData(m_path.c_str(), nullptr, kEditNormal, ""); }

    // The table as text, columns as shown.
    static std::string Texts(TestEditor &editor) {
        std::string all;
        CUGCell cell;
        for (long row = 0; row < editor.GetNumberRows(); ++row) {
            for (int col = 0; col < editor.GetNumberCols(); ++col) {
                editor.GetCell(col, row, &cell);
                all += std::string(col > 0 ? "," : "") + cell.GetText();
            }
            all += "/";
        }
        return all;
    }
    static std::string View(TestEditor &editor) { return editor.Order() + " " + Texts(editor); }
    void ExpectAgreement(TestEditor &editor) {
        EXPECT_EQ(std::string::npos, editor.Order().find("but")) << editor.Order();
        if (CUGDataSource *source = editor.GetCurrentDataSrc(false))
            EXPECT_EQ(source->GetNumRows(), editor.GetNumberRows());
        else
            EXPECT_EQ("cur=(0,0) size=0x0", editor.State());
        EXPECT_NE(0, editor.m_GI.m_paintingEnabled);
    }

    // Only what is to be said, and what the framework says when a window has no memory for a message.
    static void ExpectKnown(const std::string &boxes, const char *texts) {
        std::istringstream lines(boxes);
        for (std::string line; std::getline(lines, line);) {
            const std::string known = std::string(texts) + "\n" + kNoMemoryInWindow;
            EXPECT_NE(std::string::npos, known.find(line)) << line;
        }
    }
    // One run on a table of its own with the nth allocation failed; false when there is no nth.
    bool RunOnce(long nth, const Work &work, const char *text) {
        fs::remove(PathOf("tabledbf.@layout"));
        TestEditor &editor = MakeWithSource();
        EXPECT_TRUE(Load(editor));
        const std::string before = View(editor);
        Forget();
        AllocationFault fault(nth);
        work(editor);
        fault.Disarm();
        const bool failed = fault.Failed();
        const std::string boxes = TestApp().TakeBoxes();
        ExpectKnown(boxes, text);
        if (m_gridMayLag)
            editor.OnDataSourceNotify(0, 1, 0);
        ExpectAgreement(editor);
        const std::string after = View(editor);
        if (failed && boxes == text && !m_mayBeDone) {
            EXPECT_EQ(before, after);
        }
        ExpectUndoneAndRedone(editor, before, after);
        CloseAll();
        return failed;
    }
    void ExpectUndoneAndRedone(TestEditor &editor, const std::string &before, const std::string &after) {
        int steps = 0;
        for (; editor.CanUndo() && steps < 100; ++steps) {
            editor.Undo();
            editor.OnDataSourceNotify(0, 1, 0);
        }
        if (steps > 0 || !m_mayLoseUndo) {
            EXPECT_EQ(before, View(editor));
        }
        if (m_viewOnly)
            return; // the notification above empties the history of the view
        for (int i = 0; i < steps; ++i) {
            editor.Redo();
            editor.OnDataSourceNotify(0, 1, 0);
        }
        EXPECT_EQ(after, View(editor));
    }
    void CloseAll() {
        m_editors.clear();
        m_service.m_sources.clear();
        Forget();
        TestApp().OnIdle(1); // the framework frees its temporary objects when there is nothing to do
    }
    void Sweep(const Work &work, const char *text) {
        constexpr long kMost = 5000;
        ASSERT_FALSE(RunOnce(kMost, work, text));
        long nth = 0;
        for (; nth < kMost && !HasFailure() && RunOnce(nth, work, text); ++nth) {
            const long live = AllocationFault::LiveBlocks(); // what is kept from the first time on is there by now
            RunOnce(nth, work, text);
            EXPECT_EQ(live, AllocationFault::LiveBlocks()) << "blocks leaked";
        }
        EXPECT_FALSE(HasFailure()) << "the first failure was with allocation " << nth - 1;
        EXPECT_GT(nth, 0) << "nothing was allocated at all";
        RecordProperty("allocations", static_cast<int>(nth));
    }
    static void Order(TestEditor &editor, std::initializer_list<UINT> fields) {
        CUIntArray order;
        for (UINT field : fields)
            order.Add(field);
        editor.ReOrderCols(order);
    }
    void SetClipboard(TestEditor &editor, const char *text) {
        CString all(text);
        ASSERT_EQ(GRID_SUCCESS, editor.CopyToClipBoard(&all));
    }

    std::string m_path;
    CDbfDataSource *m_source = nullptr;
    bool m_viewOnly = false;
    bool m_mayBeDone = false;   // the message may come behind the change
    bool m_mayLoseUndo = false; // the change stands and its command is lost
    bool m_gridMayLag = false;  // rows that the grid is told of at its next look at the source
};

TEST_F(EditorMemoryTest, Hiding) {
    m_viewOnly = true;
    Sweep(
        [](TestEditor &editor) {
            editor.GotoCell(1, 0);
            editor.OnHideCols();
        },
        "Low memory - cannot carry out operation!|16");
}

TEST_F(EditorMemoryTest, ShowingAgain) {
    m_viewOnly = m_mayBeDone = m_mayLoseUndo = true;
    TestEditor *current = nullptr;
    m_service.m_onVisibility = [&](CStringArray &, CArray<bool, bool> &) { Order(*current, {3, 0}); };
    Sweep(
        [&](TestEditor &editor) {
            current = &editor;
            editor.OnUnHideCols();
        },
        kOutOfMemory);
}

TEST_F(EditorMemoryTest, Ordering) {
    m_viewOnly = m_mayBeDone = true;
    m_service.m_onOrder = [](CStringArray *names) {
        names->SetAt(0, "F3");
        names->SetAt(3, "F0");
        return true;
    };
    Sweep([](TestEditor &editor) { editor.OnOrderCols(nullptr); }, "");
}

TEST_F(EditorMemoryTest, PastingOverCells) {
    m_mayBeDone = true; // cells written before stay, inside the one step
    SetClipboard(Make(), "a\tb\r\nc\td");
    CloseAll();
    Sweep([](TestEditor &editor) { editor.OnPaste(); }, kOutOfMemory);
}

TEST_F(EditorMemoryTest, PastingWholeRecords) {
    m_mayBeDone = true;
    SetClipboard(Make(), "a\tb\tc\td\r\ne\tf\tg\th");
    CloseAll();
    Sweep([](TestEditor &editor) { editor.OnPaste(); }, "Out of memory!|16\nCould not append data source record!|16\nCould not insert records!|16");
}

TEST_F(EditorMemoryTest, Inserting) {
    m_mayBeDone = true;
    Sweep([](TestEditor &editor) { editor.ExecInsertRows(2, 3, true); },
          "Out of memory!|16\nCould not insert records!|16");
}

TEST_F(EditorMemoryTest, InsertingAtTheEnd) {
    m_mayBeDone = m_gridMayLag = true;
    Sweep([](TestEditor &editor) { editor.ExecInsertRows(kRecords, 3, true); },
          "Out of memory!|16\nCould not append data source record!|16");
}

TEST_F(EditorMemoryTest, Deleting) {
    m_mayBeDone = true;
    Sweep(
        [](TestEditor &editor) {
            editor.ClearSelections();
            editor.SelectRange(0, 1, 0, 2);
            editor.OnDeleteRows(true);
        },
        "Out of memory!|16\nCould not delete records!|16");
}

// The dialog of an insertion and what it does.
TEST_F(EditorMemoryTest, AskingAndInserting) {
    m_mayBeDone = true;
    Sweep(
        [](TestEditor &editor) {
            // Again, since the dialog stays where there is no memory to take its count.
            WithDialog act(
                [](HWND dialog) {
                    ::SetDlgItemTextA(dialog, IDC_RECORDS_COUNT, "2");
                    ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
                },
                true);
            editor.OnInsertRows();
        },
        "Out of memory!|16\nCould not insert records!|16");
}

TEST_F(EditorMemoryTest, Loading) {
    const auto run = [this](long nth) {
        fs::remove(PathOf("tabledbf.@layout"));
        TestEditor &editor = MakeWithSource();
        AllocationFault fault(nth);
        const bool loaded = Load(editor);
        fault.Disarm();
        const std::string boxes = TestApp().TakeBoxes();
        ExpectKnown(boxes, "Cannot load file due to low memory!|16");
        EXPECT_EQ(loaded, editor.IsDataSrcOpen());
        ExpectAgreement(editor);
        EXPECT_EQ(nullptr, ::GetCapture());
        const bool failed = fault.Failed();
        if (!loaded && m_service.m_sources.empty()) { // the same editor takes it when there is memory again
            m_service.m_sources.push_back(new CDbfDataSource);
            EXPECT_TRUE(Load(editor));
            EXPECT_EQ("0,1,2,3 of 0,1,2,3", editor.Order());
        }
        for (CUGDataSource *left : m_service.m_sources)
            delete left;
        CloseAll();
        return failed;
    };
    long nth = 0;
    for (; !HasFailure() && run(nth); ++nth) {
        const long live = AllocationFault::LiveBlocks();
        run(nth);
        EXPECT_EQ(live, AllocationFault::LiveBlocks()) << "blocks leaked";
    }
    EXPECT_GT(nth, 0);
    EXPECT_FALSE(HasFailure()) << "the first failure was with allocation " << nth - 1;
}

} // namespace
