// The real file system behind the table engine.
#include "DbfBytes.h"

#include <cstdio>
#include <fstream>
#include <iterator>

using namespace dbftest;

namespace {

class FileStoreTest : public testing::Test {
protected:
    void SetUp() override {
        const char *name = testing::UnitTest::GetInstance()->current_test_info()->name();
        path = testing::TempDir() + "store-" + name + ".dbf";
    }
    void TearDown() override {
        std::remove(path.c_str());
        std::remove((path + "2").c_str());
    }
    static void write(const std::string &file, const std::string &bytes) {
        std::ofstream(file, std::ios::binary) << bytes;
    }
    static std::string read(const std::string &file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    static std::string text(const dbf::MappedFile &file) {
        return {file.bytes().begin(), file.bytes().end()};
    }

    dbf::FileStore &files = dbf::systemFiles();
    std::string path;
    std::unique_ptr<dbf::MappedFile> mapped;
    dbf::FileStamp stamp;
};

} // namespace

TEST_F(FileStoreTest, MapsFileWhileOthersRead) {
    write(path, "bytes");
    ASSERT_TRUE(files.map(path, mapped, stamp));
    EXPECT_EQ(text(*mapped), "bytes");
    EXPECT_EQ(read(path), "bytes");
    EXPECT_EQ(stamp.size, 5u);
    dbf::FileStamp now;
    EXPECT_TRUE(files.stat(path, now));
    EXPECT_EQ(now, stamp);
}

TEST_F(FileStoreTest, MapsEmptyFile) {
    write(path, "");
    ASSERT_TRUE(files.map(path, mapped, stamp));
    EXPECT_TRUE(mapped->bytes().empty());
}

TEST_F(FileStoreTest, NamesFileThatCannotBeOpened) {
    const dbf::Result missing = files.map(path, mapped, stamp);
    EXPECT_FALSE(missing);
    EXPECT_EQ(missing.message.find("Cannot open \"" + path + "\": "), 0u) << missing.message;
    EXPECT_FALSE(files.map(testing::TempDir(), mapped, stamp));
    EXPECT_FALSE(files.stat(path, stamp));
    EXPECT_FALSE(files.isWritable(path));
    EXPECT_EQ(mapped, nullptr);
}

TEST_F(FileStoreTest, PutsNewFileInPlaceOfOld) {
    write(path, "old");
    std::unique_ptr<dbf::FileWriter> first;
    std::unique_ptr<dbf::FileWriter> second;
    ASSERT_TRUE(files.createBeside(path, first));
    ASSERT_TRUE(files.createBeside(path, second));
    EXPECT_NE(first->path(), second->path());
    const std::string bytes = "new";
    ASSERT_TRUE(first->write({reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size()}));
    ASSERT_TRUE(first->flush());
    const std::string name = first->path();
    const std::string unused = second->path();
    first.reset();
    second.reset();
    EXPECT_EQ(read(path), "old");
    ASSERT_TRUE(files.replace(name, path));
    EXPECT_EQ(read(path), "new");
    EXPECT_FALSE(files.stat(name, stamp));
    files.remove(unused);
    EXPECT_FALSE(files.stat(unused, stamp));
}

TEST_F(FileStoreTest, LeavesBothFilesWhenReplacingFails) {
    write(path, "old");
    const dbf::Result failed = files.replace(path, testing::TempDir() + "no/such/folder.dbf");
    EXPECT_FALSE(failed);
    EXPECT_EQ(failed.message.find("Cannot replace \""), 0u) << failed.message;
    EXPECT_EQ(read(path), "old");
    std::unique_ptr<dbf::FileWriter> writer;
    EXPECT_FALSE(files.createBeside(testing::TempDir() + "no/such/folder.dbf", writer));
}

TEST_F(FileStoreTest, SavesTableOverItself) {
    write(path, people());
    std::unique_ptr<dbf::Table> table;
    dbf::OpenOptions how;
    how.today = fixedToday;
    ASSERT_TRUE(dbf::Table::open(path, how, table));
    for (const char *name : {"One", "Two"}) {
        ASSERT_TRUE(table->setCellText(0, 0, name));
        const dbf::Result saved = table->save();
        ASSERT_TRUE(saved) << saved.message;
        EXPECT_EQ(read(path).substr(162, 3), name);
    }
    const dbf::Result copied = table->saveAs(path + "2");
    ASSERT_TRUE(copied) << copied.message;
    EXPECT_EQ(read(path), read(path + "2"));
}

TEST_F(FileStoreTest, OpensTheSamples) {
    std::unique_ptr<dbf::Table> table;
    ASSERT_TRUE(dbf::Table::open(ORVANE_SAMPLES "/staff.dbf", {}, table));
    EXPECT_EQ(table->rowCount(), 300u);
    EXPECT_EQ(joined(table->openWarnings()), "");
    std::size_t notes = 0;
    std::size_t deleted = 0;
    for (dbf::Table::Row row = 0; row < 300; ++row) {
        notes += table->cellText(row, table->findColumn("NOTES")).empty() ? 0 : 1;
        deleted += table->isMarkedDeleted(row) ? 1 : 0;
    }
    EXPECT_GT(notes, 50u);
    EXPECT_EQ(deleted, 2u);
    ASSERT_TRUE(dbf::Table::open(ORVANE_SAMPLES "/cities.dbf", {}, table));
    EXPECT_EQ(table->cellText(table->rowCount() - 1, 0), "Z\xFCrich");
}
