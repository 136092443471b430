// What others make of tables written here: a reader of its own in Python, and a reader that finds the file in
// the middle of a save that was killed.
#include "DbfBytes.h"

#include <csignal>
#include <cstdio>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

using namespace dbftest;

namespace {

std::string outputOf(const std::string &command) {
    std::string text;
    if (FILE *pipe = ::popen((command + " 2>&1").c_str(), "r")) {
        char part[4096];
        while (const std::size_t length = std::fread(part, 1, sizeof part, pipe)) {
            text.append(part, length);
        }
        ::pclose(pipe);
    }
    return text;
}

std::unique_ptr<dbf::Table> openFile(const std::string &path) {
    std::unique_ptr<dbf::Table> table;
    const dbf::Result opened = dbf::Table::open(path, {}, table);
    EXPECT_TRUE(opened) << opened.message;
    return table;
}

} // namespace

TEST(DbfInterop, IndependentReaderSeesTheSameValues) {
    const std::string path = testing::TempDir() + "interop.dbf";
    std::string bytes = people();
    bytes[29] = 0x01; // cp437
    std::ofstream(path, std::ios::binary) << bytes;
    const auto table = openFile(path);
    ASSERT_TRUE(table->setCellText(0, 0, "\xC4nne"));
    ASSERT_TRUE(table->insertRows(1, 1));
    ASSERT_TRUE(table->setCellText(1, 1, "-0.5"));
    ASSERT_TRUE(table->setCellText(1, 2, "2024-02-29"));
    ASSERT_TRUE(table->setCellText(1, 3, "y"));
    ASSERT_TRUE(table->removeRows(3, 1));
    ASSERT_TRUE(table->save());
    EXPECT_EQ(outputOf("python3 " READ_DBF " " + path + " cp437"),
              "NAME:C8.0 PAY:N7.2 BORN:D8.0 ACTIVE:L1.0\n"
              "\xC3\x84nne|1200.50|19720229|T\n"
              "|-0.50|20240229|T\n"
              "*Bert|-99.99|19991231|F\n");
    std::remove(path.c_str());
}

// The child saves again and again, alternating between two states, until it is killed.
TEST(DbfInterop, KilledSaveLeavesOldOrNewFile) {
    const std::string folder = testing::TempDir() + "killed-" + std::to_string(::getpid());
    const std::string path = folder + "/t.dbf";
    ASSERT_EQ(std::system(("mkdir -p " + folder).c_str()), 0);
    const std::string head = header(0x03, 20'000, 11, descriptor("A", 'C', 10));
    std::ofstream(path, std::ios::binary) << head + std::string(220'000, ' ') + '\x1A';
    for (int kill = 0; kill < 15; ++kill) {
        const pid_t child = ::fork();
        if (child == 0) {
            std::unique_ptr<dbf::Table> table;
            dbf::Table::open(path, {}, table);
            for (int i = 0;; ++i) {
                table->setCellText(0, 0, i % 2 ? "odd" : "even");
                table->setCellText(19'999, 0, i % 2 ? "odd" : "even");
                table->save();
            }
        }
        ::usleep(static_cast<useconds_t>(5'000 + kill * 1'700));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const auto table = openFile(path);
        ASSERT_TRUE(table);
        EXPECT_EQ(table->rowCount(), 20'000u);
        EXPECT_EQ(joined(table->openWarnings()), "");
        EXPECT_EQ(table->cellText(0, 0), table->cellText(19'999, 0));
    }
    EXPECT_EQ(std::system(("rm -r " + folder).c_str()), 0);
}
