#include <afx.h>

#include <gtest/gtest.h>

TEST(CString, IsOnePointer) {
    EXPECT_EQ(sizeof(CString), sizeof(char *));
}

TEST(CString, Constructors) {
    EXPECT_STREQ(CString(), "");
    EXPECT_STREQ(CString(static_cast<LPCSTR>(nullptr)), "");
    EXPECT_STREQ(CString("abc"), "abc");
    EXPECT_STREQ(CString('x', 3), "xxx");
    EXPECT_STREQ(CString('x', 0), "");
    EXPECT_STREQ(CString("abcdef", 2), "ab");
}

TEST(CString, CopiesShareUntilOneChanges) {
    CString a("hello");
    CString b(a);
    EXPECT_EQ(a.GetString(), b.GetString());
    b.SetAt(0, 'j');
    EXPECT_STREQ(a, "hello");
    EXPECT_STREQ(b, "jello");
}

TEST(CString, GetBufferUnshares) {
    CString a("hello");
    CString b(a);
    b.GetBuffer(20)[0] = 'y';
    b.ReleaseBuffer();
    EXPECT_STREQ(a, "hello");
    EXPECT_STREQ(b, "yello");
}

TEST(CString, AssignsAndAppendsItsOwnText) {
    CString a("abcdef");
    a = a.GetString() + 2;
    EXPECT_STREQ(a, "cdef");
    a += a;
    EXPECT_STREQ(a, "cdefcdef");
    a += a.GetString() + 4;
    EXPECT_STREQ(a, "cdefcdefcdef");
    a.Format("<%s>", a);
    EXPECT_STREQ(a, "<cdefcdefcdef>");
}

TEST(CString, FormatTakesStringsAndNumbers) {
    CString name("grid"), text;
    text.Format("%s has %d rows, %5.2f%% %c %s", name, 12, 3.14159, 'x', "end");
    EXPECT_STREQ(text, "grid has 12 rows,  3.14% x end");
    text.AppendFormat("/%03d", 7);
    EXPECT_STREQ(text, "grid has 12 rows,  3.14% x end/007");
}

TEST(CString, FormatOfLongText) {
    CString text;
    text.Format("%5000d|", 1);
    EXPECT_EQ(text.GetLength(), 5001);
}

TEST(CString, ComparesWithTextsAndCharacters) {
    const CString a("abc");
    EXPECT_TRUE(a == "abc");
    EXPECT_TRUE("abc" == a);
    EXPECT_TRUE(a == CString("abc"));
    EXPECT_TRUE(a != "abd");
    EXPECT_TRUE(a < "abd");
    EXPECT_TRUE("abd" > a);
    EXPECT_TRUE(CString("x") == 'x');
    EXPECT_TRUE(CString("xx") != 'x');
    EXPECT_LT(a.Compare("b"), 0);
    EXPECT_EQ(a.CompareNoCase("ABC"), 0);
    EXPECT_LT(a.CompareNoCase("ABD"), 0);
    EXPECT_GT(a.CompareNoCase("AB"), 0);
    EXPECT_EQ(a.CollateNoCase("ABC"), 0);
}

TEST(CString, ExtractsWithPositionsCutToTheText) {
    const CString a("abcdef");
    EXPECT_STREQ(a.Mid(2), "cdef");
    EXPECT_STREQ(a.Mid(2, 3), "cde");
    EXPECT_STREQ(a.Mid(9), "");
    EXPECT_STREQ(a.Mid(-2, 3), "abc");
    EXPECT_STREQ(a.Left(2), "ab");
    EXPECT_STREQ(a.Left(-1), "");
    EXPECT_STREQ(a.Left(99), "abcdef");
    EXPECT_STREQ(a.Right(2), "ef");
    EXPECT_STREQ(a.Right(99), "abcdef");
    EXPECT_STREQ(a.SpanIncluding("cba"), "abc");
    EXPECT_STREQ(a.SpanExcluding("ed"), "abc");
}

TEST(CString, Tokenize) {
    const CString a("--one-two--three");
    int at = 0;
    EXPECT_STREQ(a.Tokenize("-", at), "one");
    EXPECT_STREQ(a.Tokenize("-", at), "two");
    EXPECT_STREQ(a.Tokenize("-", at), "three");
    EXPECT_STREQ(a.Tokenize("-", at), "");
    EXPECT_EQ(at, -1);
}

TEST(CString, ChangesCaseAndOrder) {
    CString a("aBc1");
    EXPECT_STREQ(a.MakeUpper(), "ABC1");
    EXPECT_STREQ(a.MakeLower(), "abc1");
    EXPECT_STREQ(a.MakeReverse(), "1cba");
    CString empty;
    EXPECT_STREQ(empty.MakeUpper(), "");
}

TEST(CString, Trims) {
    EXPECT_STREQ(CString(" \t ab \r\n").Trim(), "ab");
    EXPECT_STREQ(CString("  ab ").TrimLeft(), "ab ");
    EXPECT_STREQ(CString("  ab ").TrimRight(), "  ab");
    EXPECT_STREQ(CString("xxabxx").TrimLeft('x'), "abxx");
    EXPECT_STREQ(CString("xyabyx").TrimRight("xy"), "xyab");
    EXPECT_STREQ(CString("xyabyx").Trim("xy"), "ab");
    EXPECT_STREQ(CString("   ").Trim(), "");
}

TEST(CString, Finds) {
    const CString a("abcabc");
    EXPECT_EQ(a.Find('b'), 1);
    EXPECT_EQ(a.Find('b', 2), 4);
    EXPECT_EQ(a.Find('z'), -1);
    EXPECT_EQ(a.Find('a', 6), -1);
    EXPECT_EQ(a.Find('\0', 6), -1);
    EXPECT_EQ(a.Find('a', 99), -1);
    EXPECT_EQ(a.Find("ca"), 2);
    EXPECT_EQ(a.Find("abc", 1), 3);
    EXPECT_EQ(a.Find(""), 0);
    EXPECT_EQ(a.Find("", 7), -1);
    EXPECT_EQ(a.ReverseFind('a'), 3);
    EXPECT_EQ(a.FindOneOf("xcb"), 1);
}

TEST(CString, ReplacesRemovesInsertsDeletes) {
    CString a("banana");
    EXPECT_EQ(a.Replace('a', 'o'), 3);
    EXPECT_STREQ(a, "bonono");
    EXPECT_EQ(a.Replace("on", "_-_"), 2);
    EXPECT_STREQ(a, "b_-__-_o");
    EXPECT_EQ(a.Replace("_", ""), 4);
    EXPECT_STREQ(a, "b--o");
    EXPECT_EQ(a.Replace("zz", "y"), 0);
    EXPECT_EQ(a.Remove('-'), 2);
    EXPECT_STREQ(a, "bo");
    EXPECT_EQ(a.Insert(1, "xy"), 4);
    EXPECT_EQ(a.Insert(99, 'z'), 5);
    EXPECT_STREQ(a, "bxyoz");
    EXPECT_EQ(a.Delete(1, 2), 3);
    EXPECT_STREQ(a, "boz");
    EXPECT_EQ(a.Delete(1, 99), 1);
    EXPECT_EQ(a.Delete(5), 1);
    EXPECT_STREQ(a, "b");
}

TEST(CString, BufferLengths) {
    CString a;
    std::strcpy(a.GetBuffer(10), "12345");
    a.ReleaseBuffer();
    EXPECT_EQ(a.GetLength(), 5);
    std::memcpy(a.GetBufferSetLength(3), "xyz", 3);
    EXPECT_STREQ(a, "xyz");
    a.ReleaseBuffer(0);
    EXPECT_TRUE(a.IsEmpty());
    a = CString("0123456789012345678901234567890123456789");
    a.ReleaseBuffer(2);
    a.FreeExtra();
    EXPECT_STREQ(a, "01");
    EXPECT_LT(a.GetAllocLength(), 16);
}

TEST(CString, BadIndexThrows) {
    CString a("ab");
    EXPECT_EQ(a.GetAt(2), '\0');
    EXPECT_THROW(a.GetAt(3), CInvalidArgException *);
    EXPECT_THROW(a.GetAt(-1), CInvalidArgException *);
    EXPECT_THROW(a.SetAt(2, 'x'), CInvalidArgException *);
}

TEST(CString, KeepsEmbeddedNulls) {
    CString a("a\0b", 3);
    EXPECT_EQ(a.GetLength(), 3);
    const CString b = a + "c";
    EXPECT_EQ(b.GetLength(), 4);
    EXPECT_EQ(b[3], 'c');
}

TEST(CString, ConcatenatesEverything) {
    const CString a("b");
    EXPECT_STREQ("a" + a + 'c' + CString("d"), "abcd");
    EXPECT_STREQ('x' + a, "xb");
}

TEST(CString, ExtractSubString) {
    CString part;
    EXPECT_TRUE(AfxExtractSubString(part, "one\ntwo\n\nfour", 1));
    EXPECT_STREQ(part, "two");
    EXPECT_TRUE(AfxExtractSubString(part, "one\ntwo\n\nfour", 2));
    EXPECT_STREQ(part, "");
    EXPECT_FALSE(AfxExtractSubString(part, "one\ntwo", 2));
}

TEST(CString, FormatStrings) {
    CString text;
    const LPCSTR names[] = {"X", "Y"};
    AfxFormatStrings(text, "%2 before %1 and %3, 100%", names, 2);
    EXPECT_STREQ(text, "Y before X and ?, 100%");
}
