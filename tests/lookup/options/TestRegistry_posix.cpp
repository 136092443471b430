#include "TestRegistry.h"

// The registry in memory has no end before the process has: every test gets another path.
TestRegistry::TestRegistry() : m_root(reinterpret_cast<HKEY>(1)) {
    static int count = 0;
    m_path = "Software\\OrvaneLookupTest" + std::to_string(++count);
}

TestRegistry::~TestRegistry() = default;
