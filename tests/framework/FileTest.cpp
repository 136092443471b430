#include <afx.h>

#include <gtest/gtest.h>

namespace {

class FileTest : public testing::Test {
protected:
    void SetUp() override {
        m_name.Format("file_test_%s.tmp", testing::UnitTest::GetInstance()->current_test_info()->name());
        std::remove(m_name);
    }
    void TearDown() override { std::remove(m_name); }

    void Make(LPCSTR content) {
        CFile file(m_name, CFile::modeCreate | CFile::modeWrite);
        file.Write(content, static_cast<UINT>(std::strlen(content)));
        file.Close();
    }
    CString Content() {
        CFile file(m_name, CFile::modeRead | CFile::shareDenyNone);
        CString text;
        const UINT size = static_cast<UINT>(file.GetLength());
        const UINT got = file.Read(text.GetBufferSetLength(static_cast<int>(size)), size);
        text.ReleaseBuffer(static_cast<int>(got));
        return text;
    }

    CString m_name;
};

} // namespace

TEST_F(FileTest, OpenFlagsHaveTheirKnownValues) {
    EXPECT_EQ(CFile::modeRead, 0);
    EXPECT_EQ(CFile::modeWrite, 1);
    EXPECT_EQ(CFile::modeReadWrite, 2);
    EXPECT_EQ(CFile::shareCompat, 0);
    EXPECT_EQ(CFile::shareExclusive, 0x10);
    EXPECT_EQ(CFile::shareDenyWrite, 0x20);
    EXPECT_EQ(CFile::shareDenyRead, 0x30);
    EXPECT_EQ(CFile::shareDenyNone, 0x40);
    EXPECT_EQ(CFile::modeNoInherit, 0x80);
    EXPECT_EQ(CFile::modeCreate, 0x1000);
    EXPECT_EQ(CFile::modeNoTruncate, 0x2000);
    EXPECT_EQ(CFile::typeText, 0x4000);
    EXPECT_EQ(CFile::typeBinary, 0x8000);
}

TEST_F(FileTest, WritesSeeksAndReads) {
    Make("0123456789");
    CFile file(m_name, CFile::modeReadWrite);
    EXPECT_EQ(file.GetLength(), 10u);
    EXPECT_EQ(file.Seek(-3, CFile::end), 7u);
    char text[8] = "";
    EXPECT_EQ(file.Read(text, 7), 3u);
    EXPECT_STREQ(text, "789");
    EXPECT_EQ(file.Read(text, 7), 0u);
    file.SeekToBegin();
    file.Write("ab", 2);
    EXPECT_EQ(file.GetPosition(), 2u);
    EXPECT_EQ(file.Seek(2, CFile::current), 4u);
    EXPECT_EQ(file.SeekToEnd(), 10u);
    file.SetLength(4);
    file.Flush();
    file.Close();
    EXPECT_STREQ(Content(), "ab23");
}

TEST_F(FileTest, CreateTruncatesUnlessToldNotTo) {
    Make("old content");
    CFile(m_name, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite).Close();
    EXPECT_STREQ(Content(), "old content");
    CFile(m_name, CFile::modeCreate | CFile::modeWrite).Close();
    EXPECT_STREQ(Content(), "");
}

TEST_F(FileTest, MissingFileIsReportedNotThrownByOpen) {
    CFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(m_name, CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_STREQ(error.m_strFileName, m_name);
    EXPECT_NE(error.m_lOsError, -1);
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
    EXPECT_FALSE(file.Open(m_name, CFile::modeRead));
}

TEST_F(FileTest, ConstructorThrows) {
    try {
        CFile file(m_name, CFile::modeRead);
        FAIL();
    } catch (CFileException *e) {
        EXPECT_EQ(e->m_cause, CFileException::fileNotFound);
        e->Delete();
    }
}

TEST_F(FileTest, ReadOfAFileOpenForWritingThrows) {
    CFile file(m_name, CFile::modeCreate | CFile::modeWrite);
    char byte;
    try {
        file.Read(&byte, 1);
        FAIL();
    } catch (CFileException *e) {
        EXPECT_NE(e->m_cause, CFileException::none);
        e->Delete();
    }
}

TEST_F(FileTest, NamesAndStatus) {
    Make("12345");
    CFile file(m_name, CFile::modeRead);
    EXPECT_STREQ(file.GetFileName(), m_name);
    EXPECT_STREQ(file.GetFileTitle(), m_name.Left(m_name.GetLength() - 4));
    EXPECT_GT(file.GetFilePath().GetLength(), m_name.GetLength());
    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(m_name, status));
    EXPECT_EQ(status.m_size, 5u);
    EXPECT_GT(status.m_mtime.GetTime(), 1500000000);
    EXPECT_FALSE(CFile::GetStatus("no such file", status));
}

TEST_F(FileTest, RenameAndRemove) {
    Make("x");
    const CString other = m_name + "2";
    std::remove(other);
    CFile::Rename(m_name, other);
    CFileStatus status;
    EXPECT_FALSE(CFile::GetStatus(m_name, status));
    Make("y");
    try {
        CFile::Rename(m_name, other);
        FAIL() << "an existing file is not replaced";
    } catch (CFileException *e) {
        EXPECT_EQ(e->m_cause, CFileException::accessDenied);
        e->Delete();
    }
    CFile::Remove(other);
    try {
        CFile::Remove(other);
        FAIL();
    } catch (CFileException *e) {
        EXPECT_EQ(e->m_cause, CFileException::fileNotFound);
        e->Delete();
    }
}

TEST_F(FileTest, MemoryFileGrows) {
    CMemFile file(8);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.GetLength(), 10u);
    file.Seek(2, CFile::begin);
    char text[4] = "";
    EXPECT_EQ(file.Read(text, 3), 3u);
    EXPECT_STREQ(text, "234");
    file.Seek(12, CFile::begin);
    file.Write("z", 1);
    BYTE *bytes = file.Detach();
    EXPECT_EQ(std::memcmp(bytes, "0123456789\0\0z", 13), 0);
    std::free(bytes);
    EXPECT_EQ(file.GetLength(), 0u);
}

TEST_F(FileTest, MemoryFileOverForeignBytes) {
    BYTE bytes[3] = {1, 2, 3};
    CMemFile file(bytes, sizeof bytes);
    EXPECT_EQ(file.GetLength(), 3u);
    const BYTE nine = 9;
    file.Write(&nine, 1);
    EXPECT_EQ(bytes[0], 9);
    file.SeekToEnd();
    EXPECT_THROW(file.Write(&nine, 1), CMemoryException *);
    try {
        file.Seek(-1, CFile::begin);
        FAIL();
    } catch (CFileException *e) {
        EXPECT_EQ(e->m_cause, CFileException::badSeek);
        e->Delete();
    }
}

TEST(CTime, TakesAndGivesLocalTime) {
    const CTime time(2001, 2, 3, 4, 5, 6);
    EXPECT_EQ(time.GetYear(), 2001);
    EXPECT_EQ(time.GetMonth(), 2);
    EXPECT_EQ(time.GetDay(), 3);
    EXPECT_EQ(time.GetDayOfWeek(), 7);
    EXPECT_STREQ(time.Format("%Y-%m-%d %H:%M:%S"), "2001-02-03 04:05:06");
    EXPECT_LT(time, CTime::GetCurrentTime());
}
