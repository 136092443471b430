// The permissions that somebody gave to a table's file, its list of who may do what.
#include "DbfBytes.h"

#include <cstdio>
#include <fstream>

#include <windows.h>

#include <aclapi.h>
#include <sddl.h>

using namespace dbftest;

namespace {

constexpr SECURITY_INFORMATION kList = DACL_SECURITY_INFORMATION;

class FilePermission : public testing::Test {
protected:
    void SetUp() override { std::ofstream(path, std::ios::binary) << people(); }
    void TearDown() override { std::remove(path.c_str()); }

    static std::string user() {
        alignas(TOKEN_USER) char bytes[256];
        DWORD size = 0;
        HANDLE token = nullptr;
        char *text = nullptr;
        EXPECT_TRUE(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token));
        EXPECT_TRUE(GetTokenInformation(token, TokenUser, bytes, sizeof bytes, &size));
        CloseHandle(token);
        EXPECT_TRUE(ConvertSidToStringSidA(reinterpret_cast<TOKEN_USER *>(bytes)->User.Sid, &text));
        const std::string sid = text ? text : "";
        LocalFree(text);
        return sid;
    }
    void give(const char *permissions) const {
        PSECURITY_DESCRIPTOR descriptor = nullptr;
        ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorA(permissions, SDDL_REVISION_1,
                                                                         &descriptor, nullptr));
        EXPECT_TRUE(SetFileSecurityA(path.c_str(), kList, descriptor)) << GetLastError();
        LocalFree(descriptor);
    }
    static std::string permissionsOf(const std::string &file) {
        PSECURITY_DESCRIPTOR descriptor = nullptr;
        std::string name = file;
        EXPECT_EQ(GetNamedSecurityInfoA(name.data(), SE_FILE_OBJECT, kList, nullptr, nullptr, nullptr,
                                        nullptr, &descriptor),
                  0u);
        char *text = nullptr;
        EXPECT_TRUE(ConvertSecurityDescriptorToStringSecurityDescriptorA(descriptor, SDDL_REVISION_1, kList,
                                                                         &text, nullptr));
        const std::string permissions = text ? text : "";
        LocalFree(text);
        LocalFree(descriptor);
        return permissions;
    }

    const std::string path = testing::TempDir() + "file-permission.dbf";
};

} // namespace

TEST_F(FilePermission, ASaveKeepsThePermissions) {
    const std::string ordinary = permissionsOf(path);
    const std::string own = "D:P(A;;FA;;;" + user() + ")";
    for (const std::string &given : {own, own + "(A;;FA;;;WD)", own + "(A;;FR;;;WD)"}) {
        give(given.c_str());
        const std::string before = permissionsOf(path);
        std::unique_ptr<dbf::Table> table;
        ASSERT_TRUE(dbf::Table::open(path, {}, table)) << given;
        const dbf::Result set = table->setCellText(0, 0, std::to_string(given.size()));
        ASSERT_TRUE(set) << set.message << before;
        const dbf::Result saved = table->save();
        ASSERT_TRUE(saved) << saved.message;
        EXPECT_EQ(permissionsOf(path), before) << given << ", a new file has " << ordinary;
    }
}
