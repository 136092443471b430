// The mode of a table's file, which says who may read and write it.
#include "DbfBytes.h"

#include <cstdio>
#include <fstream>

#include <sys/stat.h>

using namespace dbftest;

namespace {

class FilePermission : public testing::Test {
protected:
    void SetUp() override {
        std::ofstream(path, std::ios::binary) << people();
        before = ::umask(077);
    }
    void TearDown() override {
        ::umask(before);
        std::remove(path.c_str());
    }
    mode_t mode() const {
        struct stat info {};
        EXPECT_EQ(::stat(path.c_str(), &info), 0);
        return info.st_mode & 07777;
    }

    const std::string path = testing::TempDir() + "file-permission.dbf";
    mode_t before = 0;
};

} // namespace

TEST_F(FilePermission, ASaveKeepsTheMode) {
    for (const mode_t kept : {0664u, 0600u, 0646u}) {
        ASSERT_EQ(::chmod(path.c_str(), kept), 0);
        std::unique_ptr<dbf::Table> table;
        ASSERT_TRUE(dbf::Table::open(path, {}, table));
        ASSERT_TRUE(table->setCellText(0, 0, std::to_string(kept)));
        ASSERT_TRUE(table->save());
        EXPECT_EQ(mode(), kept) << "not what the process gives new files";
    }
}

TEST_F(FilePermission, ANewFileHasWhatTheProcessGivesNewFiles) {
    std::unique_ptr<dbf::Table> table;
    ASSERT_TRUE(dbf::Table::open(path, {}, table));
    const std::string other = path + ".other.dbf";
    ASSERT_TRUE(table->saveAs(other));
    struct stat info {};
    EXPECT_EQ(::stat(other.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u);
    std::remove(other.c_str());
}
