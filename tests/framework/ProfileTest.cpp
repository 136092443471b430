#include "support.h"

namespace {

class Profile : public testing::Test {
protected:
    void SetUp() override { app.SetRegistryKey("OrvaneFrameworkTest"); }
    void TearDown() override {
        ::RegDeleteTree(HKEY_CURRENT_USER, "Software\\OrvaneFrameworkTest");
    }
    TestApp &app = TestApp::Get();
};

} // namespace

TEST_F(Profile, NumbersTextsAndBytes) {
    EXPECT_EQ(app.GetProfileInt("S", "n", 7), 7u);
    EXPECT_TRUE(app.WriteProfileInt("S", "n", -3));
    EXPECT_EQ(static_cast<int>(app.GetProfileInt("S", "n", 7)), -3);
    EXPECT_STREQ(app.GetProfileString("S", "t", "none"), "none");
    EXPECT_TRUE(app.WriteProfileString("S", "t", "text"));
    EXPECT_STREQ(app.GetProfileString("S", "t", "none"), "text");
    EXPECT_EQ(app.GetProfileInt("S", "t", 5), 5u) << "of another type";
    BYTE bytes[] = {0, 255, 16};
    EXPECT_TRUE(app.WriteProfileBinary("S", "b", bytes, sizeof bytes));
    BYTE *read = nullptr;
    UINT count = 0;
    ASSERT_TRUE(app.GetProfileBinary("S", "b", &read, &count));
    EXPECT_EQ(std::vector<BYTE>(read, read + count), (std::vector<BYTE>{0, 255, 16}));
    delete[] read;
    EXPECT_FALSE(app.GetProfileBinary("S", "missing", &read, &count));
    EXPECT_TRUE(app.WriteProfileString("S", "t", nullptr));
    EXPECT_STREQ(app.GetProfileString("S", "t", "none"), "none");
    EXPECT_TRUE(app.WriteProfileString("S", nullptr, nullptr));
    EXPECT_EQ(app.GetProfileInt("S", "n", 7), 7u);
}

TEST_F(Profile, RecentFilesMoveToTheFront) {
    CRecentFileList list(0, "Recent", "File%d", 3);
    for (LPCTSTR name : {"C:\\a", "C:\\b", "C:\\A"})
        list.Add(name);
    EXPECT_STREQ(list[0], "C:\\A");
    EXPECT_STREQ(list[2], "") << "case does not make another file";
    for (LPCTSTR name : {"C:\\a", "C:\\b", "C:\\c", "C:\\A", "C:\\d"})
        list.Add(name);
    EXPECT_STREQ(list[0], "C:\\d");
    EXPECT_STREQ(list[1], "C:\\A");
    EXPECT_STREQ(list[2], "C:\\c");
    list.WriteList();
    CRecentFileList other(0, "Recent", "File%d", 3);
    other.ReadList();
    EXPECT_STREQ(other[1], "C:\\A");
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_FILE_MRU_FILE1, "Recent File");
    menu.AppendMenu(MF_STRING, ID_APP_EXIT, "E&xit");
    CCmdUI state;
    state.m_pMenu = &menu;
    state.m_nID = ID_FILE_MRU_FILE1;
    state.m_nIndexMax = 2;
    other.UpdateMenu(&state);
    CString text;
    menu.GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_STREQ(text, "&1 C:\\d");
    EXPECT_EQ(menu.GetMenuItemCount(), 4u);
    EXPECT_EQ(state.m_nIndex, 2u);
}
