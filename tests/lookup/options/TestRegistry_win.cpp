#include "TestRegistry.h"

#include <windows.h>

TestRegistry::TestRegistry()
    : m_root(HKEY_CURRENT_USER),
      m_path("Software\\OrvaneLookupTest" + std::to_string(::GetCurrentProcessId())) {
    ::RegDeleteTreeA(m_root, Path()); // of a run of the same number that was ended
}

TestRegistry::~TestRegistry() {
    ::RegDeleteTreeA(m_root, Path());
}
