// Every allocation of the data editor's commands failed once: what has to be said is said, the group of the
// source's undo is closed, the wait cursor is down, grid and source agree, and nothing leaks.
#include "DataEditorTest.h"

#include "AllocationFault.h"
#include "dataeditor/DataEditorDlgs.h"
#include "resources/ResourceIds.h"
#include "search/PatternText.h"

#include <optional>
#include <sstream>

namespace {

constexpr const char *kOutOfMemory = "Out of memory!|16";

class DataEditorMemoryTest : public DataEditorTest {
protected:
    // Calls the function as soon as it is ready for its command, whose allocations then count.
    using Work = std::function<void(TestDataEditor &, const std::function<void()> &)>;

    static std::string Texts(TestDataEditor &editor) {
        std::string all;
        CUGCell cell;
        for (long row = 0; row < editor.GetNumberRows(); ++row) {
            for (int col = 0; col < editor.GetNumberCols(); ++col) {
                editor.GetCell(col, row, &cell);
                all += std::string(cell.GetText()) + (col + 1 < editor.GetNumberCols() ? "," : "/");
            }
        }
        return all;
    }
    std::string TextsOfSource() const {
        std::string all;
        for (const auto &row : m_source->m_rows) {
            for (size_t col = 0; col < row.size(); ++col)
                all += row[col] + (col + 1 < row.size() ? "," : "/");
        }
        return all;
    }
    // What a failure may say: that memory ran out, what the command says of a cell, and what the framework
    // says where a window has no memory for a message.
    void ExpectTold(const std::string &boxes, const std::string &otherwise, bool complete) {
        const std::string known =
            std::string(kOutOfMemory) + "\nOut of memory.|4144\nOut of memory.|48\n" + otherwise;
        std::istringstream lines(boxes);
        bool told = complete;
        for (std::string line; std::getline(lines, line);) {
            EXPECT_NE(std::string::npos, known.find(line)) << line;
            told = told || line.find("Out of memory") == 0;
        }
        EXPECT_TRUE(told) << "nothing was said: " << boxes << " after " << Join(m_log.m_calls);
    }
    bool RunOnce(long nth, const Work &work, const std::string &otherwise) {
        TestDataEditor &editor = OpenFiltered(2, 5, {1, 2, 4, 5});
        m_source->m_rows[1][0] = m_source->m_rows[3][0] = "cat";
        PumpAll();
        m_source->m_optionsSet = 0;
        m_log.m_calls.reserve(1000);
        std::optional<AllocationFault> fault;
        work(editor, [&] { fault.emplace(nth); });
        fault->Disarm();
        const bool failed = fault->Failed();
        const std::string boxes = TestApp().TakeBoxes();
        if (failed)
            ExpectTold(boxes, otherwise, m_done(editor));
        EXPECT_EQ(0, m_source->m_openTransactions);
        EXPECT_EQ(TextsOfSource(), Texts(editor));
        EXPECT_EQ(m_source->GetNumRows(), editor.GetNumberRows());
        EXPECT_NE(0, editor.m_GI.m_paintingEnabled);
        EXPECT_GE(0, m_service.m_waits); // the question of a replacement ends it once more
        m_service.m_waits = 0;
        m_dataEditors.clear();
        Forget();
        TestApp().OnIdle(1);
        return failed;
    }
    void Sweep(const Work &work, const std::string &otherwise = "") {
        constexpr long kMost = 5000;
        ASSERT_FALSE(RunOnce(kMost, work, otherwise));
        long nth = 0;
        for (; nth < kMost && !HasFailure() && RunOnce(nth, work, otherwise); ++nth) {
            const long live = AllocationFault::LiveBlocks();
            RunOnce(nth, work, otherwise);
            EXPECT_EQ(live, AllocationFault::LiveBlocks()) << "blocks leaked";
        }
        EXPECT_FALSE(HasFailure()) << "the first failure was with allocation " << nth - 1;
        EXPECT_GT(nth, 0) << "nothing was allocated at all";
        RecordProperty("allocations", static_cast<int>(nth));
    }
    static void Send(TestDataEditor &editor, UINT message, int direction,
                     const std::function<void()> &ready) {
        CFindReplaceData data;
        data.SetData("c?t", "cow", true, true, direction, Search::kAnywhere, false);
        ready();
        ::SendMessageA(editor.m_hWnd, message, reinterpret_cast<WPARAM>(&data), 0);
    }

    // Whether the command has done all in spite of the failure, which then need not be told.
    std::function<bool(TestDataEditor &)> m_done = [](TestDataEditor &) { return false; };
};

TEST_F(DataEditorMemoryTest, Finding) {
    for (const int direction : {kSearchDown, kSearchAll})
        Sweep([direction](TestDataEditor &editor, const auto &ready) {
            Send(editor, kMsgFindNext, direction, ready);
        });
}

TEST_F(DataEditorMemoryTest, FindingInTheSelection) {
    Sweep([](TestDataEditor &editor, const auto &ready) {
        editor.ClearSelections();
        editor.SelectRange(0, 1, 1, 3);
        Send(editor, kMsgFindNext, kSearchSelection, ready);
    });
}

TEST_F(DataEditorMemoryTest, ReplacingAll) {
    m_done = [this](TestDataEditor &) { return m_source->Text(0, 1) + m_source->Text(0, 3) == "cowcow"; };
    Sweep(
        [](TestDataEditor &editor, const auto &ready) {
            WithDialog act(
                [](HWND dialog) { ::SendMessageA(dialog, WM_COMMAND, CYesNoCancelAllDlg::kAll, 0); }, true);
            Send(editor, kMsgReplaceNext, kSearchDown, ready);
        },
        "Could not set text in cell 0, 1!|16\nCould not set text in cell 0, 3!|16\nCould not get cell!|16");
}

TEST_F(DataEditorMemoryTest, ReplacingOneByOne) {
    m_done = [this](TestDataEditor &) { return m_source->Text(0, 1) + m_source->Text(0, 3) == "cowcow"; };
    Sweep(
        [](TestDataEditor &editor, const auto &ready) {
            WithDialog act(
                [](HWND dialog) { ::SendMessageA(dialog, WM_COMMAND, CYesNoCancelAllDlg::kYes, 0); }, true);
            ready();
            editor.DoReplace(0, "cat", "cow", "cat", kSearchDown, true);
        },
        "Could not set text in cell 0, 1!|16\nCould not set text in cell 0, 3!|16\nCould not get cell!|16");
}

// Painting is not the commands' own; where it has no memory, the command has done all.
TEST_F(DataEditorMemoryTest, Filters) {
    m_done = [this](TestDataEditor &editor) {
        return editor.GetFilter() == kNoFilter && m_source->m_optionsSet == 4;
    };
    Sweep([](TestDataEditor &editor, const auto &ready) {
        ready();
        editor.OnAttachFilter(4);
        editor.OnSelectAttachFilter();
        editor.OnEditFilter();
        editor.OnDetachFilter();
    });
}

TEST_F(DataEditorMemoryTest, DeletingFilteredRecords) {
    m_done = [](TestDataEditor &editor) { return editor.GetNumberRows() == 1; };
    Sweep(
        [](TestDataEditor &editor, const auto &ready) {
            TestApp().Answer({IDYES});
            ready();
            editor.OnDeleteRows();
        },
        "Delete filtered records?\n(You will not be able to undo this operation)|36");
}

TEST_F(DataEditorMemoryTest, GoingToARecord) {
    Sweep([](TestDataEditor &editor, const auto &ready) {
        WithDialog act(
            [](HWND dialog) {
                ::SetDlgItemTextA(dialog, IDC_RECORDS_COUNT, "3");
                ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
            },
            true);
        ready();
        editor.OnGotoRecord();
    });
}

TEST_F(DataEditorMemoryTest, Freezing) {
    Sweep([](TestDataEditor &editor, const auto &ready) {
        WithDialog act(
            [](HWND dialog) {
                ::SetDlgItemTextA(dialog, IDC_LOCK_COUNT, "1");
                ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
            },
            true);
        ready();
        editor.OnLockColumns();
    });
}

TEST_F(DataEditorMemoryTest, Appearance) {
    Sweep([](TestDataEditor &editor, const auto &ready) {
        const CString field("F1");
        ready();
        editor.SetIsShowingHorizLines(false);
        editor.SetIsShowingVerticleLines(false);
        editor.SetTextAlignment();
        editor.VerticallyAlignGridField('m');
        editor.AttachColourSet(field, CPoint(1, 2));
        editor.DetachColourSet(field);
    });
}

TEST_F(DataEditorMemoryTest, TextsFromOutside) {
    m_done = [this](TestDataEditor &) {
        return m_source->Text(0, 0) + m_source->Text(1, 0) ==
               "typed by another windowtyped by another window";
    };
    Sweep([](TestDataEditor &editor, const auto &ready) {
        ready();
        editor.EnterEditText("typed by another window", 0, 0, true);
        editor.EnterEditText("typed by another window", 1, 0, false);
    });
}

} // namespace
