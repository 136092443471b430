// A table file that this user may not write. The superuser may write everything, so the test lays that down.
#include "TempFiles.h"
#include "lookup/LookupTableFile.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace {

class OrdinaryUser {
public:
    OrdinaryUser() {
        if (m_before == 0)
            m_changed = ::seteuid(kNobody) == 0;
    }
    ~OrdinaryUser() {
        if (m_changed && ::seteuid(m_before) != 0)
            ADD_FAILURE() << "the user could not be changed back";
    }
    bool IsOne() const { return ::geteuid() != 0; }

private:
    static constexpr uid_t kNobody = 65534;
    uid_t m_before = ::geteuid();
    bool m_changed = false;
};

std::string Load(const std::string &path) {
    CLookupTableFile table;
    CString text;
    return table.SerializeFile(path.c_str(), text, false) ? "loaded" : std::string(text);
}

} // namespace

TEST(LookupTableFilePermissionTest, AFileWithoutWritePermissionCannotBeLoaded) {
    const TempFiles files("permission");
    const std::string path = files.Path("table.lbn");
    CString text;
    ASSERT_TRUE(CLookupTableFile().SerializeFile(path.c_str(), text, true)) << std::string(text);
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    {
        const OrdinaryUser user;
        ASSERT_TRUE(user.IsOne());
        EXPECT_EQ(Load(path), "Could not open file '" + path + "'!");
    }
    ASSERT_EQ(::chmod(path.c_str(), 0644), 0);
    EXPECT_EQ(Load(path), "loaded");
}
