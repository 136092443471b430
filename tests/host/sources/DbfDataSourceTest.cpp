// The table as the grid sees it, on real files.
#include "AllocationFailure.h"
#include "DbfBytes.h"
#include "DbfDataSource.h"
#include "DbfTable.h"
#include "filter/FilterList.h"
#include "grid/UGDefine.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

using namespace dbftest;

namespace {

class DbfDataSource : public testing::Test {
protected:
    void SetUp() override {
        const char *name = testing::UnitTest::GetInstance()->current_test_info()->name();
        path = testing::TempDir() + "source-" + name + ".dbf";
        write(people());
    }
    void TearDown() override {
        source.Close(true);
        std::remove(path.c_str());
        std::remove(filter::FilterList::pathBeside(path).c_str());
    }

    // Puts a filter into the list beside the table.
    void define(int number, const std::string &expression) {
        const std::string list = filter::FilterList::pathBeside(path);
        filter::FilterList filters;
        ASSERT_TRUE(filters.load(list, nullptr));
        filters.put({number, "mine", expression});
        ASSERT_TRUE(filters.save(list, nullptr));
    }
    // One character a record: + passes, - fails, ? no answer.
    std::string passing() {
        std::string text;
        for (long record = 1; record <= source.GetNumRows(); ++record) {
            int passes = -1;
            const bool answered = source.GetOption(UGSRC_PASSES_FILTER, &record, &passes) == 0;
            text += answered ? passes == 1 ? '+' : '-' : '?';
        }
        return text;
    }

    // The files of the folder for tests whose names begin like this.
    static void removeAll(const std::string &beginning) {
        for (const auto &entry : std::filesystem::directory_iterator(testing::TempDir())) {
            if (entry.path().filename().string().starts_with(beginning)) {
                std::filesystem::remove(entry.path());
            }
        }
    }
    void write(const std::string &bytes) { std::ofstream(path, std::ios::binary) << bytes; }
    std::string read(const std::string &file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    std::string cell(int col, long row) {
        CUGCell result;
        const int code = source.GetCell(col, row, &result);
        return code == GRID_SUCCESS ? std::string(result.GetText()) : "error " + std::to_string(code);
    }
    int set(int col, long row, const char *text) {
        CUGCell value;
        value.SetText(text);
        return source.SetCell(col, row, &value);
    }

    std::string path;
    std::string told;
    int rowsChanged = 0;
    bool mayClose = true;
    CDbfDataSource source{{[this](const std::string &message) { told += message + "|"; },
                           [this] { ++rowsChanged; },
                           [this](CDbfDataSource &) { return mayClose; },
                           {},
                           {}}};
};

} // namespace

TEST_F(DbfDataSource, ValuesRefusedInATransactionAreToldOnceAtItsEnd) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    source.StartTransaction();
    EXPECT_NE(set(1, 0, "much"), 0);
    EXPECT_NE(set(1, 1, "more"), 0);
    EXPECT_EQ(told, "");
    source.EndTransaction();
    const std::string first = told.substr(0, told.find('\n'));
    EXPECT_EQ(told, first + "\n\n2 values were left out.|");
    told.clear();
    EXPECT_NE(set(1, 0, "much"), 0);
    EXPECT_EQ(told, first + "|") << "outside a transaction each is told at once";
    told.clear();
    source.StartTransaction();
    EXPECT_NE(set(1, 0, "much"), 0);
    source.EndTransaction();
    EXPECT_EQ(told, first + "|");
}

TEST_F(DbfDataSource, AnswersNothingBeforeItIsOpen) {
    CUGCell value;
    CString name;
    int type = 0;
    EXPECT_EQ(source.GetNumRows(), -1);
    EXPECT_EQ(source.GetNumCols(), -1);
    EXPECT_NE(source.GetCell(0, 0, &value), 0);
    EXPECT_NE(source.SetCell(0, 0, &value), 0);
    EXPECT_NE(source.GetColName(0, &name), 0);
    EXPECT_NE(source.GetColType(0, &type), 0);
    EXPECT_NE(source.AppendRow(), 0);
    EXPECT_NE(source.Save(), 0);
    EXPECT_EQ(source.GetFieldWidth(0), 0);
    EXPECT_FALSE(source.CanUndo() || source.CanRedo());
    source.Undo();
    source.StartTransaction();
    EXPECT_EQ(source.Close(false), 0);
}

TEST_F(DbfDataSource, DescribesTheFields) {
    ASSERT_EQ(source.Open(path.c_str(), "-table "), 0);
    std::string text;
    for (int col = 0; col < source.GetNumCols(); ++col) {
        CString name;
        int type = -1;
        source.GetColName(col, &name);
        source.GetColType(col, &type);
        text += std::string(name) + " " + std::to_string(type) + " " +
                std::to_string(source.GetFieldWidth(col)) + " " +
                std::to_string(source.GetFieldDecimals(col)) + ";";
    }
    EXPECT_EQ(text, "NAME 0 8 0;PAY 3 7 2;BORN 7 10 0;ACTIVE 1 1 0;");
    EXPECT_EQ(source.GetNumRows(), 3);
}

TEST_F(DbfDataSource, ShowsCellsAndLeavesOtherPropertiesAlone) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    CUGCell value;
    value.SetText("below");
    value.SetAlignment(UG_ALIGN_VCENTER);
    EXPECT_EQ(source.GetCell(1, 2, &value), 0); // blank: nothing to merge
    EXPECT_STREQ(value.GetText(), "below");
    EXPECT_EQ(source.GetCell(1, 0, &value), 0);
    EXPECT_STREQ(value.GetText(), "1200.50");
    EXPECT_EQ(value.GetAlignment(), UG_ALIGN_VCENTER);
    EXPECT_EQ(value.GetReadOnly(), -1);
    EXPECT_EQ(cell(0, 3), "error 1");
    EXPECT_EQ(cell(4, 0), "error 1");
    EXPECT_EQ(cell(-1, 0), "1"); // the side heading
    EXPECT_EQ(cell(-2, 0), "error 1");
}

TEST_F(DbfDataSource, MarksFieldsThatAreOnlyShown) {
    write(header(0x30, 1, 5, descriptor("I", 'I', 4)) + raw(" \x07\0\0\0\x1A"));
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    CUGCell value;
    ASSERT_EQ(source.GetCell(0, 0, &value), 0);
    EXPECT_STREQ(value.GetText(), "7");
    EXPECT_EQ(value.GetReadOnly(), 1);
}

TEST_F(DbfDataSource, TellsWhyValueIsRefused) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    EXPECT_EQ(set(1, 0, "12"), 0);
    EXPECT_EQ(set(1, 0, "much"), 1);
    EXPECT_EQ(told, "Field PAY: \"much\" is not a number|");
    EXPECT_EQ(cell(1, 0), "12.00");
}

TEST_F(DbfDataSource, TellsWhyTableCannotBeOpened) {
    write("no table");
    EXPECT_EQ(source.Open(path.c_str(), ""), 1);
    EXPECT_EQ(told, "Cannot open \"" + path + "\": the header is cut short (8 bytes)|");
    EXPECT_EQ(source.Open((path + ".none").c_str(), ""), 1);
}

TEST_F(DbfDataSource, TellsWhatIsOddAboutTable) {
    write(people().substr(0, 190));
    EXPECT_EQ(source.Open(path.c_str(), ""), 0);
    EXPECT_EQ(told, "\"" + path + "\":\n\nThe header speaks of 3 records, but only 1 are whole in the file|");
}

TEST_F(DbfDataSource, TellsTenThingsThatAreOddAndHowManyMore) {
    write(DbfTableBytes(13, 1, 5, std::string(13, 'Z')));
    EXPECT_EQ(source.Open(path.c_str(), ""), 0);
    EXPECT_NE(told.find("Field 10 (F9) is of the unknown type Z"), std::string::npos) << told;
    EXPECT_EQ(told.find("Field 11"), std::string::npos) << told;
    EXPECT_NE(told.find("\nand 3 more|"), std::string::npos) << told;
}

TEST_F(DbfDataSource, OpensForViewing) {
    int writable = -1;
    int unused = 0;
    ASSERT_EQ(source.Open(path.c_str(), "-table -viewers"), 0);
    ASSERT_EQ(source.GetOption(UGSRC_WRITABLE, &writable, &unused), 0);
    EXPECT_EQ(writable, 1);
    ASSERT_EQ(source.Open(path.c_str(), "-table T-view "), 0);
    ASSERT_EQ(source.GetOption(UGSRC_WRITABLE, &writable, &unused), 0);
    EXPECT_EQ(writable, 0);
    EXPECT_EQ(set(0, 0, "x"), 1);
}

TEST_F(DbfDataSource, GivesItsPath) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    CString received;
    CString *pointer = &received;
    int zero = 0;
    EXPECT_EQ(source.GetOption(UGSRC_PATH, &pointer, &zero), 0);
    EXPECT_EQ(std::string(received), path);
    EXPECT_EQ(source.GetOption(99, &pointer, &zero), -1);
}

TEST_F(DbfDataSource, InsertsAndDeletesRows) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    EXPECT_EQ(source.InsertRows(1, 2), 0);
    EXPECT_EQ(source.AppendRow(), 0);
    EXPECT_EQ(source.InsertRow(0), 0);
    EXPECT_EQ(source.GetNumRows(), 7);
    EXPECT_EQ(source.DeleteRow(0), 0);
    EXPECT_EQ(source.DeleteRows(0, 3), 0);
    EXPECT_EQ(source.GetNumRows(), 3);
    EXPECT_EQ(cell(0, 0), "Bert");
    EXPECT_EQ(source.InsertRows(1, 0), 0);
    EXPECT_EQ(source.InsertRows(9, 1), 1);
    EXPECT_EQ(source.DeleteRows(2, 9), 1);
    EXPECT_EQ(source.DeleteRows(-1, -1), 1);
}

TEST_F(DbfDataSource, NotifiesWhenUndoChangesTheNumberOfRows) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    source.StartTransaction();
    set(0, 0, "x");
    source.EndTransaction();
    source.StartTransaction();
    source.DeleteRows(0, 2);
    source.EndTransaction();
    source.Undo();
    EXPECT_EQ(rowsChanged, 1);
    EXPECT_EQ(cell(0, 0), "x");
    source.Undo();
    EXPECT_EQ(rowsChanged, 1);
    EXPECT_EQ(cell(0, 0), "Anna");
    EXPECT_FALSE(source.CanUndo());
    source.Redo();
    source.Redo();
    EXPECT_EQ(rowsChanged, 2);
    EXPECT_FALSE(source.CanRedo());
}

TEST_F(DbfDataSource, NothingLeavesASearchThatRunsOutOfMemory) {
    write(header(0x03, 3, 41, descriptor("LONG", 'C', 40)) + (" " + std::string(40, 'a')) + (" " + std::string(40, 'b')) +
          (" " + std::string(40, 'c')));
    ASSERT_EQ(source.Open(path.c_str(), ""), GRID_SUCCESS);
    const std::string wanted(40, 'C');
    for (int number = 1; number <= 3; ++number) {
        long row = -1;
        told.clear();
        allocations::failAt(number);
        EXPECT_NO_THROW(EXPECT_EQ(source.FindFirst(0, wanted.c_str(), &row), GRID_ERROR));
        allocations::failAt(0);
        EXPECT_EQ(told, "Low memory - cannot carry out operation!|");
        EXPECT_EQ(source.FindFirst(0, wanted.c_str(), &row), GRID_SUCCESS);
    }
}

TEST_F(DbfDataSource, FindsWholeTextsIgnoringCase) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    source.InsertRows(3, 2);
    set(0, 4, "ANNA");
    long row = -1;
    EXPECT_EQ(source.FindFirst(0, "anna", &row), 0);
    EXPECT_EQ(row, 0);
    EXPECT_EQ(source.FindNext(0, "anna", &row), 0);
    EXPECT_EQ(row, 4);
    EXPECT_EQ(source.FindNext(0, "anna", &row), 1);
    EXPECT_EQ(source.FindFirst(0, "ann", &row), 1);
    EXPECT_EQ(source.FindFirst(9, "anna", &row), 1);
}

TEST_F(DbfDataSource, SavesAndIsThenUnmodified) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    EXPECT_EQ(source.Save(), 0);
    EXPECT_EQ(read(path), people()); // nothing to save, nothing touched
    set(0, 0, "Saved");
    EXPECT_TRUE(source.CanUndo());
    EXPECT_EQ(source.Save(), 0) << told;
    EXPECT_FALSE(source.CanUndo());
    EXPECT_EQ(read(path).substr(161, 9), " Saved   ");
    EXPECT_EQ(cell(0, 0), "Saved");
}

TEST_F(DbfDataSource, SavesUnderAnotherName) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    set(0, 0, "Saved");
    const std::string copy = path + "-copy.dbf";
    EXPECT_EQ(source.SaveAs(copy.c_str(), ""), 0) << told;
    EXPECT_EQ(read(path), people());
    EXPECT_EQ(read(copy).substr(161, 9), " Saved   ");
    EXPECT_EQ(source.SaveAs((testing::TempDir() + "none/none.dbf").c_str(), ""), 1);
    EXPECT_NE(told, "");
    EXPECT_EQ(cell(0, 0), "Saved");
    source.Close(true);
    std::remove(copy.c_str());
}

TEST_F(DbfDataSource, ATableThatWasSavedUnderAnotherNameIsToldToBeWhenMemoryFailsThen) {
    define(1, "PAY > 0");
    const std::string copy = testing::TempDir() + "source-copy.dbf";
    for (int number = 1;; ++number) {
        ASSERT_EQ(source.Open(path.c_str(), ""), GRID_SUCCESS);
        allocations::failAt(number);
        const int code = source.SaveAs(copy.c_str(), "");
        const bool failed = allocations::hasFailed();
        allocations::failAt(0);
        ASSERT_EQ(code == GRID_SUCCESS, source.GetTable()->path() == copy) << number;
        source.Close(true);
        removeAll("source-copy.");
        if (!failed) {
            return;
        }
    }
}

TEST_F(DbfDataSource, DoesNotOverwriteForeignChange) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    set(0, 0, "Mine");
    std::ofstream(path, std::ios::binary | std::ios::app) << "more";
    if (read(path) == people()) { // the platform keeps others from writing to an open table
        EXPECT_EQ(source.Save(), 0);
        return;
    }
    EXPECT_EQ(source.Save(), 1);
    EXPECT_EQ(read(path), people() + "more");
    EXPECT_TRUE(source.CanUndo());
}

TEST_F(DbfDataSource, AsksBeforeItLosesChanges) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    mayClose = false;
    set(0, 0, "x");
    EXPECT_EQ(source.Close(false), 1);
    EXPECT_EQ(cell(0, 0), "x");
    source.Undo();
    EXPECT_EQ(source.Close(false), 0);
    EXPECT_EQ(source.GetNumRows(), -1);
}

TEST_F(DbfDataSource, AttachesFiltersByNumberAndDetachesThem) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    EXPECT_EQ(passing(), "???") << "no test is possible without a filter";
    EXPECT_NE(source.SetOption(UGSRC_ATTACH_FILTER, 0, 0), 0);
    EXPECT_EQ(std::exchange(told, ""), "The default filter of \"" + path + "\" has not been made yet.|");
    define(0, "PAY > 0");
    define(4, "NAME > 'B'");
    EXPECT_EQ(source.SetOption(UGSRC_ATTACH_FILTER, 0, 0), 0);
    EXPECT_EQ(passing(), "+--");
    EXPECT_EQ(source.SetOption(UGSRC_ATTACH_FILTER, 4, 0), 0);
    EXPECT_EQ(passing(), "-++");
    EXPECT_EQ(source.SetOption(UGSRC_ONLY_FILTERED, 1, 0), 0);
    EXPECT_EQ(source.GetNumRows(), 3);
    EXPECT_EQ(source.SetOption(UGSRC_DETACH_FILTER, 0, 0), 0);
    EXPECT_EQ(passing(), "???");
    EXPECT_EQ(source.SetOption(3, 0, 0), GRID_NOT_IMPLEMENTED);
    EXPECT_EQ(told, "");
}

TEST_F(DbfDataSource, AFilterThatCannotBeUsedLeavesTheOneBefore) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    define(1, "PAY > 0");
    define(2, "PAID > 0");
    EXPECT_EQ(source.SetOption(UGSRC_ATTACH_FILTER, 1, 0), 0);
    EXPECT_NE(source.SetOption(UGSRC_ATTACH_FILTER, 2, 0), 0);
    EXPECT_EQ(std::exchange(told, ""), "Filter 2 \"mine\" cannot be used:\n\nPAID > 0\n\nThere is no field \"PAID\".|");
    EXPECT_EQ(passing(), "+--");
    set(1, 2, "7");
    EXPECT_EQ(passing(), "+-+") << "still kept up to date";
    std::ofstream(filter::FilterList::pathBeside(path), std::ios::binary | std::ios::trunc) << "no list";
    EXPECT_NE(source.SetOption(UGSRC_ATTACH_FILTER, 1, 0), 0);
    EXPECT_NE(told.find("cannot be read"), std::string::npos) << told;
    EXPECT_EQ(passing(), "+-+");
}

TEST_F(DbfDataSource, TheFilterFollowsEditsUndoAndRedo) {
    define(0, "PAY > 0");
    ASSERT_EQ(source.Open(path.c_str(), "-filter 0"), 0);
    EXPECT_EQ(passing(), "+--");
    set(1, 1, "3");
    source.InsertRows(0, 1);
    EXPECT_EQ(passing(), "-++-");
    source.Undo();
    EXPECT_EQ(passing(), "+--");
    source.Redo();
    EXPECT_EQ(passing(), "-++-");
    ASSERT_EQ(source.Save(), 0);
    EXPECT_EQ(passing(), "-++-");
}

TEST_F(DbfDataSource, OpensWithAFilterOrNotAtAll) {
    EXPECT_NE(source.Open(path.c_str(), "-filter 3"), 0);
    EXPECT_EQ(std::exchange(told, ""), "Filter 3 of \"" + path + "\" has not been made yet.|");
    EXPECT_EQ(source.GetNumRows(), -1);
    define(3, "ACTIVE = 'F'");
    ASSERT_EQ(source.Open(path.c_str(), "-table t -filter 3"), 0);
    EXPECT_EQ(passing(), "-+-");
}

TEST_F(DbfDataSource, ATableForViewingIsFilteredAndNothingInItDeleted) {
    define(3, "ACTIVE = 'F'");
    ASSERT_EQ(source.Open(path.c_str(), " -filter 3-view "), 0) << "as an editor joins them";
    EXPECT_EQ(passing(), "-+-");
    EXPECT_NE(source.DeleteRows(-1, -1), 0);
    EXPECT_EQ(told, "\"" + path + "\" was opened for viewing only|");
    EXPECT_EQ(source.GetNumRows(), 3);
    define(3, "ACTIVE = 'T'");
    EXPECT_EQ(source.SetOption(UGSRC_ATTACH_FILTER, 3, 0), 0);
    EXPECT_EQ(passing(), "+--");
}

TEST_F(DbfDataSource, DeletesTheFilteredRecordsAsOneStep) {
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    EXPECT_NE(source.DeleteRows(-1, -1), 0);
    EXPECT_EQ(std::exchange(told, ""), "There is no filter whose records could be deleted|");
    define(0, "PAY is null or PAY > 0");
    ASSERT_EQ(source.SetOption(UGSRC_ATTACH_FILTER, 0, 0), 0);
    ASSERT_EQ(source.DeleteRows(-1, -1), 0);
    EXPECT_EQ(source.GetNumRows(), 1);
    EXPECT_EQ(cell(0, 0), "Bert");
    source.Undo();
    EXPECT_EQ(source.GetNumRows(), 3);
    EXPECT_EQ(passing(), "+-+");
    EXPECT_FALSE(source.CanUndo());
}

TEST_F(DbfDataSource, SavesOnlyTheFilteredRecordsUnderAnotherName) {
    const std::string other = path + ".other.dbf";
    define(2, "NAME > 'B'");
    ASSERT_EQ(source.Open(path.c_str(), "-filter 2"), 0);
    set(0, 2, "Carola");
    ASSERT_EQ(source.SaveAs(other.c_str(), " -filter 2"), 0);
    EXPECT_EQ(source.GetNumRows(), 2);
    EXPECT_EQ(cell(0, 0) + cell(0, 1), "BertCarola");
    EXPECT_EQ(passing(), "++");
    source.Close(true);
    ASSERT_EQ(source.Open(other.c_str(), "-filter 2"), 0) << "the list went along";
    EXPECT_EQ(passing(), "++");
    source.Close(true);
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    EXPECT_EQ(source.GetNumRows(), 3) << "the old file is as it was";
    std::remove(other.c_str());
    std::remove(filter::FilterList::pathBeside(other).c_str());
}

TEST_F(DbfDataSource, ASaveWithAFilterThatCannotBeUsedWritesNothing) {
    const std::string other = path + ".other.dbf";
    ASSERT_EQ(source.Open(path.c_str(), ""), 0);
    EXPECT_NE(source.SaveAs(other.c_str(), "-filter 9"), 0);
    EXPECT_EQ(told, "Filter 9 of \"" + path + "\" has not been made yet.|");
    EXPECT_EQ(read(other), "");
}
