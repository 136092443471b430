// A root for the lookup options that belongs to one test: an empty key, which is gone with the object.
#pragma once

#include <afx.h>

#include <string>

class TestRegistry {
public:
    TestRegistry();
    ~TestRegistry();
    TestRegistry(const TestRegistry &) = delete;
    TestRegistry &operator=(const TestRegistry &) = delete;

    HKEY Root() const { return m_root; }
    const char *Path() const { return m_path.c_str(); }
    // The full path of a key below the root path, which begins with a backslash.
    CString Below(const char *key) const { return CString(Path()) + key; }

private:
    HKEY m_root;
    std::string m_path;
};
