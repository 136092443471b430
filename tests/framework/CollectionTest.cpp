#include <afxcoll.h>

#include <gtest/gtest.h>
#include <string>

namespace {

// Throws while it is copied when told so, and counts what lives.
struct Fragile {
    static inline int living = 0;
    static inline int copiesUntilThrow = -1;
    int value = 0;

    Fragile() { living++; }
    explicit Fragile(int v) : value(v) { living++; }
    Fragile(const Fragile &other) : value(other.value) {
        if (copiesUntilThrow == 0)
            throw std::bad_alloc();
        copiesUntilThrow--;
        living++;
    }
    Fragile &operator=(const Fragile &) = default;
    ~Fragile() { living--; }
};

template <class ARRAY> std::string Show(ARRAY &array) {
    std::string text;
    for (int i = 0; i < array.GetSize(); i++)
        text += (i ? "," : "") + std::to_string(array[i]);
    return text;
}

template <class MAP> std::string Keys(const MAP &map) {
    std::string text;
    int key = 0, value = 0;
    for (POSITION position = map.GetStartPosition(); position;) {
        map.GetNextAssoc(position, key, value);
        text += std::to_string(key) + " ";
    }
    return text;
}

} // namespace

TEST(CArray, GrowsInsertsAndRemoves) {
    CArray<int, int> a;
    EXPECT_EQ(a.GetUpperBound(), -1);
    EXPECT_EQ(a.Add(1), 0);
    EXPECT_EQ(a.Add(2), 1);
    a.SetAtGrow(4, 5);
    EXPECT_EQ(Show(a), "1,2,0,0,5");
    a.InsertAt(1, 9, 2);
    EXPECT_EQ(Show(a), "1,9,9,2,0,0,5");
    a.RemoveAt(1, 3);
    EXPECT_EQ(Show(a), "1,0,0,5");
    a.InsertAt(6, 7);
    EXPECT_EQ(Show(a), "1,0,0,5,0,0,7");
    CArray<int, int> b;
    b.Add(-1);
    b.Add(-2);
    a.InsertAt(1, &b);
    EXPECT_EQ(Show(a), "1,-1,-2,0,0,5,0,0,7");
    EXPECT_EQ(b.Append(a), 2);
    EXPECT_EQ(b.GetSize(), 11);
    b.Copy(a);
    EXPECT_EQ(Show(b), Show(a));
    a.SetSize(2);
    EXPECT_EQ(Show(a), "1,-1");
    a.RemoveAll();
    EXPECT_TRUE(a.IsEmpty());
    EXPECT_EQ(a.GetData(), nullptr);
}

TEST(CArray, NewElementsAreZero) {
    CArray<int, int> a;
    a.SetSize(3);
    EXPECT_EQ(Show(a), "0,0,0");
    a[1] = 4;
    a.SetSize(1);
    a.SetSize(3);
    EXPECT_EQ(Show(a), "0,0,0");
}

TEST(CArray, AddsItsOwnElement) {
    CArray<CString, const CString &> a;
    a.Add("long enough to be on the heap");
    for (int i = 0; i < 40; i++)
        a.Add(a[0]);
    EXPECT_STREQ(a[40], a[0]);
    a.InsertAt(0, a[3]);
    a.SetAtGrow(60, a[0]);
    EXPECT_STREQ(a[60], "long enough to be on the heap");
}

TEST(CArray, HoldsBooleans) {
    CArray<bool, bool> a;
    a.SetSize(3);
    bool &second = a[1];
    second = true;
    EXPECT_TRUE(a.GetData()[1]);
    EXPECT_FALSE(a.GetData()[2]);
}

TEST(CArray, BadArgumentsThrow) {
    CArray<int, int> a;
    a.Add(1);
    EXPECT_THROW(a.SetSize(-1), CInvalidArgException *);
    EXPECT_THROW(a.GetAt(1), CInvalidArgException *);
    EXPECT_THROW(a[-1], CInvalidArgException *);
    EXPECT_THROW(a.RemoveAt(0, 2), CInvalidArgException *);
    EXPECT_THROW(a.RemoveAt(2, 0), CInvalidArgException *);
    EXPECT_THROW(a.InsertAt(-1, 1), CInvalidArgException *);
    EXPECT_EQ(Show(a), "1");
}

TEST(CArray, FailedGrowthLeavesTheArrayWhole) {
    {
        CArray<Fragile, const Fragile &> a;
        for (int i = 0; i < 5; i++)
            a.Add(Fragile(i));
        for (int fail = 0; fail < 8; fail++) {
            Fragile::copiesUntilThrow = fail;
            try {
                a.SetSize(200);
                Fragile::copiesUntilThrow = -1;
                a.SetSize(5);
                a.FreeExtra();
            } catch (const std::bad_alloc &) {
                Fragile::copiesUntilThrow = -1;
            }
            ASSERT_EQ(a.GetSize(), 5);
            for (int i = 0; i < 5; i++)
                ASSERT_EQ(a[i].value, i);
        }
        Fragile::copiesUntilThrow = -1;
    }
    EXPECT_EQ(Fragile::living, 0);
}

TEST(CList, WalksBothWays) {
    CList<int, int> list;
    list.AddTail(2);
    list.AddTail(3);
    const POSITION one = list.AddHead(1);
    EXPECT_EQ(list.GetCount(), 3);
    std::string text;
    for (POSITION p = list.GetHeadPosition(); p;)
        text += std::to_string(list.GetNext(p));
    for (POSITION p = list.GetTailPosition(); p;)
        text += std::to_string(list.GetPrev(p));
    EXPECT_EQ(text, "123321");
    list.InsertAfter(one, 7);
    list.InsertBefore(one, 8);
    list.SetAt(one, 6);
    EXPECT_EQ(list.RemoveHead(), 8);
    EXPECT_EQ(list.GetHead(), 6);
    EXPECT_EQ(list.RemoveTail(), 3);
    list.RemoveAt(list.FindIndex(1));
    EXPECT_EQ(list.GetTail(), 2);
    EXPECT_EQ(list.FindIndex(2), nullptr);
    EXPECT_EQ(list.Find(2), list.GetTailPosition());
    EXPECT_EQ(list.Find(2, list.GetTailPosition()), nullptr);
    list.RemoveAll();
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_THROW(list.RemoveHead(), CInvalidArgException *);
}

TEST(CList, AddsAnotherList) {
    CStringList a(4), b;
    a.AddTail("x");
    b.AddTail("1");
    b.AddTail("2");
    a.AddHead(&b);
    a.AddTail(&b);
    CString text;
    for (POSITION p = a.GetHeadPosition(); p;)
        text += a.GetNext(p);
    EXPECT_STREQ(text, "12x12");
    EXPECT_NE(a.Find("x"), nullptr);
}

TEST(CMap, DefaultHashes) {
    EXPECT_EQ(HashKey<int>(0x123), 0x12u);
    // ((0 * 33 + 'a') * 33) + 'b'
    EXPECT_EQ(HashKey<LPCSTR>("ab"), 97u * 33 + 98);
    EXPECT_EQ(HashKey<LPCSTR>("\xff"), static_cast<UINT>(-1)) << "characters are signed";
}

TEST(CMap, IteratesByBucketWithTheNewestFirst) {
    CMap<int, int, int, int> map;
    map.InitHashTable(3);
    // Hashes are key >> 4: 0,1,2,3,4,5 and so the buckets 0,1,2,0,1,2.
    for (int key : {0x00, 0x10, 0x20, 0x30, 0x40, 0x50})
        map.SetAt(key, key);
    EXPECT_EQ(Keys(map), "48 0 64 16 80 32 ");
    map.SetAt(0x00, 5);
    EXPECT_EQ(Keys(map), "48 0 64 16 80 32 ") << "an old key keeps its place";
    EXPECT_TRUE(map.RemoveKey(0x40));
    EXPECT_FALSE(map.RemoveKey(0x40));
    EXPECT_EQ(Keys(map), "48 0 16 80 32 ");
}

TEST(CMap, DefaultTableHasSeventeenBuckets) {
    CMap<int, int, int, int> map;
    EXPECT_EQ(map.GetHashTableSize(), 17u);
    map[17 << 4] = 1;
    map[1 << 4] = 2;
    map[0] = 3;
    EXPECT_EQ(Keys(map), "0 272 16 ");
}

TEST(CMap, StringKeysLookedUpByText) {
    CMap<CString, const char *, int, int> map;
    map.InitHashTable(7, FALSE);
    map.SetAt("one", 1);
    map["two"] = 2;
    map["two"] = 22;
    int value = 0;
    EXPECT_TRUE(map.Lookup("two", value));
    EXPECT_EQ(value, 22);
    EXPECT_FALSE(map.Lookup(CString("three"), value));
    EXPECT_EQ(map.GetCount(), 2);
    ASSERT_NE(map.PLookup("one"), nullptr);
    EXPECT_STREQ(map.PLookup("one")->key, "one");
    map.RemoveAll();
    EXPECT_EQ(map.GetStartPosition(), nullptr);
    EXPECT_FALSE(map.Lookup("one", value));
}

TEST(CMap, TableSizeChangesOnlyWhileEmpty) {
    CMap<int, int, int, int> map;
    map[1] = 1;
    EXPECT_THROW(map.InitHashTable(5), CInvalidArgException *);
    map.RemoveAll();
    map.InitHashTable(5);
    EXPECT_EQ(map.GetHashTableSize(), 5u);
}

TEST(Collections, ReadyMadeOnesAreObjects) {
    CStringArray strings;
    strings.Add("a");
    strings.SetAtGrow(2, "c");
    EXPECT_STREQ(strings[2], "c");
    CUIntArray numbers;
    numbers.Add(7);
    CMapStringToString map;
    map["k"] = "v";
    CString value;
    EXPECT_TRUE(map.Lookup("k", value));
    EXPECT_STREQ(value, "v");
    CMapStringToPtr pointers;
    pointers.SetAt("p", &value);
    void *pointer = nullptr;
    EXPECT_TRUE(pointers.Lookup("p", pointer));
    EXPECT_EQ(pointer, &value);
    EXPECT_TRUE(strings.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_STREQ(strings.GetRuntimeClass()->m_lpszClassName, "CStringArray");
    CPtrList list;
    list.AddTail(&value);
    EXPECT_EQ(list.GetHead(), &value);
}
