// Arrays in the persisted files, against bytes written out by hand.
#include "lookup/ArchiveArrays.h"

#include "MemoryFile.h"

#include <gtest/gtest.h>

namespace {

template <class Array> std::string Stored(Array &array) {
    MemoryFile file;
    CArchive archive(&file, CArchive::store);
    SerializeArray(archive, array);
    archive.Close();
    return file.m_bytes;
}

template <class Array> bool Loaded(Array &array, const std::string &bytes) {
    MemoryFile file(bytes);
    CArchive archive(&file, CArchive::load);
    try {
        SerializeArray(archive, array);
        return true;
    } catch (CArchiveException *e) {
        EXPECT_EQ(CArchiveException::endOfFile, e->m_cause);
        e->Delete();
        return false;
    }
}

std::string Joined(const CStringArray &strings) {
    std::string all;
    for (int i = 0; i < strings.GetSize(); ++i)
        all += std::string(strings.GetAt(i)) + ";";
    return all;
}

TEST(ArchiveArraysTest, AnEmptyStringArrayIsTwoZeroBytes) {
    CStringArray strings;
    EXPECT_EQ("00 00", Hex(Stored(strings)));
    strings.Add("old");
    EXPECT_TRUE(Loaded(strings, Bytes("00 00")));
    EXPECT_EQ("", Joined(strings));
}

TEST(ArchiveArraysTest, AStringArrayIsItsCountAndItsStrings) {
    CStringArray strings;
    strings.Add("ab");
    strings.Add("");
    strings.Add("c");
    EXPECT_EQ("03 00 02 61 62 00 01 63", Hex(Stored(strings)));
    CStringArray read;
    EXPECT_TRUE(Loaded(read, Stored(strings)));
    EXPECT_EQ("ab;;c;", Joined(read));
}

TEST(ArchiveArraysTest, NumbersAreLongsBehindTheirCount) {
    CArray<int, int> numbers;
    numbers.Add(1);
    numbers.Add(-2);
    EXPECT_EQ("02 00 01 00 00 00 fe ff ff ff", Hex(Stored(numbers)));
    CArray<int, int> read;
    EXPECT_TRUE(Loaded(read, Bytes("02 00 01 00 00 00 fe ff ff ff")));
    ASSERT_EQ(2, read.GetSize());
    EXPECT_EQ(-2, read.GetAt(1));
}

TEST(ArchiveArraysTest, TheCountOfFFFFElementsTakesSixBytesAndOneLessTakesTwo) {
    CArray<int, int> numbers;
    numbers.SetSize(0xFFFF);
    EXPECT_EQ("ff ff ff ff 00 00 00 00", Hex(Stored(numbers)).substr(0, 23));
    EXPECT_EQ(6u + 4u * 0xFFFF, Stored(numbers).size());
    EXPECT_TRUE(Loaded(numbers, Stored(numbers)));
    EXPECT_EQ(0xFFFF, numbers.GetSize());
    numbers.SetSize(0xFFFE);
    EXPECT_EQ("fe ff 00 00", Hex(Stored(numbers)).substr(0, 11));
    EXPECT_EQ(2u + 4u * 0xFFFE, Stored(numbers).size());
}

TEST(ArchiveArraysTest, ACountThatTheFileCannotHoldIsItsEndAndTheArrayStays) {
    CStringArray strings;
    strings.Add("kept");
    EXPECT_FALSE(Loaded(strings, Bytes("03 00 01 61")));
    EXPECT_FALSE(Loaded(strings, Bytes("ff ff ff ff ff 7f 01 61")));
    EXPECT_FALSE(Loaded(strings, Bytes("02 00 05 61 62"))); // cut in a string
    EXPECT_EQ("kept;", Joined(strings));
    CArray<int, int> numbers;
    EXPECT_FALSE(Loaded(numbers, Bytes("02 00 01 00 00 00 02 00 00")));
}

} // namespace
