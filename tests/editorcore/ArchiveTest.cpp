// The byte forms of the persisted files, against bytes written out by hand.
#include "lookup/Archive.h"

#include "MemoryFile.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

template <class Write> std::string Written(Write write) {
    MemoryFile file;
    CArchive archive(&file, CArchive::store);
    write(archive);
    archive.Close();
    return file.m_bytes;
}

TEST(ArchiveTest, WhatWaitsIsWrittenByAFlush) {
    MemoryFile file;
    CArchive archive(&file, CArchive::store);
    EXPECT_TRUE(archive.IsStoring());
    EXPECT_FALSE(archive.IsLoading());
    EXPECT_EQ(&file, archive.GetFile());
    archive << BYTE{0x41};
    EXPECT_EQ("", file.m_bytes);
    archive.Flush();
    EXPECT_EQ("A", file.m_bytes);
    archive.Flush();
    EXPECT_EQ("A", file.m_bytes);
    CArchive reading(&file, CArchive::load);
    EXPECT_TRUE(reading.IsLoading());
    EXPECT_FALSE(reading.IsStoring());
}

TEST(ArchiveTest, TheBufferMayBeTheCallers) {
    BYTE buffer[4] = {};
    MemoryFile file;
    {
        CArchive archive(&file, CArchive::store, sizeof buffer, buffer);
        archive << WORD{0x4241};
        EXPECT_EQ(0, std::memcmp(buffer, "AB", 2)); // waits there
        EXPECT_EQ("", file.m_bytes);
        archive.Write("CDE", 3);
        EXPECT_EQ("ABCD", file.m_bytes);
    }
    EXPECT_EQ("ABCDE", file.m_bytes);
    MemoryFile again(file.m_bytes);
    CArchive archive(&again, CArchive::load, sizeof buffer, buffer);
    WORD value = 0;
    archive >> value;
    EXPECT_EQ(0x4241, value);
    EXPECT_EQ(0, std::memcmp(buffer, "ABCD", 4));
    char rest[4] = "";
    EXPECT_EQ(3u, archive.Read(rest, 4));
    EXPECT_STREQ("CDE", rest);
}

std::string ReadString(const std::string &bytes) {
    MemoryFile file(bytes);
    CArchive archive(&file, CArchive::load);
    CString text;
    archive >> text;
    return static_cast<const char *>(text);
}

// The cause of the archive exception that it throws, -1 for none.
template <class Act> int CauseOf(Act act) {
    try {
        act();
    } catch (CArchiveException *e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return -1;
}

int CauseOfReadingString(const std::string &bytes) {
    return CauseOf([&] { ReadString(bytes); });
}

std::string StringOf(size_t length) {
    return Written([&](CArchive &ar) { ar << CString(std::string(length, 'x').c_str()); });
}

TEST(ArchiveTest, NumbersAreLittleEndian) {
    EXPECT_EQ("7f 02 01 04 03 02 01",
              Hex(Written([](CArchive &ar) { ar << BYTE(0x7F) << WORD(0x0102) << 0x01020304; })));
    EXPECT_EQ("ff ff ff ff", Hex(Written([](CArchive &ar) { ar << -1; })));
}

// What stands in front of that many characters, which reads back as the same.
std::string LengthOf(ULONGLONG length, BOOL wide = FALSE) {
    const std::string bytes = Written([&](CArchive &ar) { AfxWriteStringLength(ar, length, wide); });
    MemoryFile file(bytes);
    CArchive archive(&file, CArchive::load);
    int bytesEach = 0;
    EXPECT_EQ(length, AfxReadStringLength(archive, bytesEach));
    EXPECT_EQ(wide ? 2 : 1, bytesEach);
    EXPECT_EQ(0u, archive.BytesLeft());
    return Hex(bytes);
}

TEST(ArchiveTest, AStringsLengthHasOneThreeSevenOrFifteenBytes) {
    EXPECT_EQ("00", LengthOf(0));
    EXPECT_EQ("fe", LengthOf(0xFE));
    EXPECT_EQ("ff ff 00", LengthOf(0xFF));
    EXPECT_EQ("ff fd ff", LengthOf(0xFFFD));
    EXPECT_EQ("ff ff ff fe ff 00 00", LengthOf(0xFFFE));
    EXPECT_EQ("ff ff ff fe ff ff ff", LengthOf(0xFFFFFFFE));
    EXPECT_EQ("ff ff ff ff ff ff ff ff ff ff ff 00 00 00 00", LengthOf(0xFFFFFFFF));
    EXPECT_EQ("ff ff ff ff ff ff ff 04 03 02 01 08 07 06 05", LengthOf(0x0506070801020304));
}

TEST(ArchiveTest, AWideStringsLengthStartsOverBehindItsMark) {
    EXPECT_EQ("ff fe ff 03", LengthOf(3, TRUE));
    EXPECT_EQ("ff fe ff ff ff 00", LengthOf(0xFF, TRUE));
    EXPECT_EQ("ff fe ff ff ff ff fe ff 00 00", LengthOf(0xFFFE, TRUE));
}

TEST(ArchiveTest, FillBufferReadsOnAndTellsTheEnd) {
    MemoryFile file(Bytes("01 02"));
    CArchive archive(&file, CArchive::load);
    EXPECT_TRUE(archive.FillBuffer());
    BYTE first = 0;
    archive >> first;
    EXPECT_EQ(1, first);
    EXPECT_FALSE(archive.FillBuffer());
}

TEST(ArchiveTest, ACountIsAWordOrSixBytes) {
    EXPECT_EQ("fe ff", Hex(Written([](CArchive &ar) { ar.WriteCount(0xFFFE); })));
    EXPECT_EQ("ff ff ff ff 00 00", Hex(Written([](CArchive &ar) { ar.WriteCount(0xFFFF); })));
    MemoryFile file(Bytes("fe ff ff ff 04 03 02 01"));
    CArchive archive(&file, CArchive::load);
    EXPECT_EQ(0xFFFEu, archive.ReadCount());
    EXPECT_EQ(0x01020304u, archive.ReadCount());
}

TEST(ArchiveTest, AShortStringHasAByteInFront) {
    EXPECT_EQ("00", Hex(StringOf(0)));
    EXPECT_EQ("02 78 78", Hex(StringOf(2)));
    EXPECT_EQ("fe 78", Hex(StringOf(254).substr(0, 2)));
    EXPECT_EQ(255u, StringOf(254).size());
}

TEST(ArchiveTest, AStringOf255HasAWordInFront) {
    EXPECT_EQ("ff ff 00 78", Hex(StringOf(255).substr(0, 4)));
    EXPECT_EQ("ff fd ff 78", Hex(StringOf(0xFFFD).substr(0, 4)));
}

TEST(ArchiveTest, AStringOfFFFEHasALongInFront) {
    EXPECT_EQ("ff ff ff fe ff 00 00 78", Hex(StringOf(0xFFFE).substr(0, 8)));
    EXPECT_EQ(8u + 0xFFFE - 1, StringOf(0xFFFE).size());
}

TEST(ArchiveTest, EveryFormOfALengthIsRead) {
    for (size_t length : {0u, 1u, 254u, 255u, 256u, 0xFFFDu, 0xFFFEu, 0x10001u})
        EXPECT_EQ(std::string(length, 'x'), ReadString(StringOf(length))) << length;
    EXPECT_EQ("ab", ReadString(Bytes("ff ff ff ff ff ff ff 02 00 00 00 00 00 00 00 61 62")));
}

TEST(ArchiveTest, AWideStringIsAcceptedInEveryFormOfLength) {
    EXPECT_EQ("ab", ReadString(Bytes("ff fe ff 02 61 00 62 00")));
    EXPECT_EQ("ab", ReadString(Bytes("ff fe ff ff 02 00 61 00 62 00")));
    EXPECT_EQ("", ReadString(Bytes("ff fe ff 00")));
}

TEST(ArchiveTest, AFileCutAnywhereInAStringIsItsEnd) {
    for (const std::string &whole : {StringOf(3), StringOf(255), Bytes("ff fe ff 02 61 00 62 00")}) {
        for (size_t length = 0; length < whole.size(); ++length)
            EXPECT_EQ(CArchiveException::endOfFile, CauseOfReadingString(whole.substr(0, length))) << length;
    }
}

TEST(ArchiveTest, ALengthBeyondTheFileIsItsEndAndTakesNoMemory) {
    EXPECT_EQ(CArchiveException::endOfFile, CauseOfReadingString(Bytes("ff ff ff fe ff ff ff 61")));
    EXPECT_EQ(CArchiveException::endOfFile,
              CauseOfReadingString(Bytes("ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff 61")));
}

TEST(ArchiveTest, NumbersPastTheEndAreTheEndOfTheFile) {
    MemoryFile file(Bytes("01 02 03"));
    CArchive archive(&file, CArchive::load);
    int number;
    EXPECT_EQ(CArchiveException::endOfFile, CauseOf([&] { archive >> number; }));
}

TEST(ArchiveTest, TheWrongDirectionIsRefused) {
    MemoryFile file(Bytes("01 02 03 04"));
    CArchive loading(&file, CArchive::load);
    EXPECT_EQ(CArchiveException::readOnly, CauseOf([&] { loading << 1; }));
    CArchive storing(&file, CArchive::store);
    int number;
    EXPECT_EQ(CArchiveException::writeOnly, CauseOf([&] { storing >> number; }));
}

TEST(ArchiveTest, ABlockReadTellsHowMuchItGot) {
    MemoryFile file(Bytes("01 02 03"));
    CArchive archive(&file, CArchive::load);
    char block[8];
    EXPECT_EQ(3u, archive.Read(block, sizeof block));
    EXPECT_EQ(0u, archive.Read(block, sizeof block));
}

TEST(ArchiveTest, WhatPassesTheBufferIsWrittenInOrder) {
    std::string expected;
    const std::string bytes = Written([&](CArchive &ar) {
        for (int i = 0; i < 3000; ++i) {
            ar << static_cast<WORD>(i);
            expected += static_cast<char>(i & 0xFF);
            expected += static_cast<char>(i >> 8);
        }
    });
    EXPECT_EQ(expected, bytes);
}

TEST(ArchiveTest, BytesLeftCountsTheBufferAndWhatIsBehindIt) {
    MemoryFile file(std::string(10000, 'x'));
    CArchive archive(&file, CArchive::load);
    EXPECT_EQ(archive.BytesLeft(), 10000u);
    char bytes[5000];
    archive.Read(bytes, 1);
    EXPECT_EQ(archive.BytesLeft(), 9999u);
    archive.Read(bytes, 4999);
    EXPECT_EQ(archive.BytesLeft(), 5000u);
    archive.Read(bytes, 5000);
    EXPECT_EQ(archive.BytesLeft(), 0u);
}

TEST(ArchiveTest, ATextStandsInTheBufferOrAcrossItsEnd) {
    const std::string first(4000, 'a'), second(254, 'b');
    MemoryFile file(Bytes("FF A0 0F") + first + Bytes("FE") + second);
    CArchive archive(&file, CArchive::load);
    unsigned length;
    LPCSTR text = archive.ReadText(&length);
    EXPECT_EQ(std::string(text, length), first);
    text = archive.ReadText(&length);
    EXPECT_EQ(std::string(text, length), second);
    EXPECT_EQ(CauseOf([&] { archive.ReadText(&length); }), CArchiveException::endOfFile);
}

} // namespace
