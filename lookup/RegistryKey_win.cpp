#include "lookup/RegistryKey.h"

#include <windows.h>

namespace {

constexpr REGSAM kAllAccess = 0xF003F;
constexpr DWORD kTypes[] = {REG_SZ, REG_BINARY, REG_DWORD}; // in the order of CRegistryKey::Type

} // namespace

CRegistryKey::CRegistryKey(HKEY root, const char *path) {
    if (root == nullptr)
        return;
    HKEY key = nullptr;
    if (::RegCreateKeyExA(root, path, 0, nullptr, REG_OPTION_NON_VOLATILE, kAllAccess, nullptr, &key,
                          nullptr) == ERROR_SUCCESS)
        m_hKey = key;
}

CRegistryKey::~CRegistryKey() {
    if (IsOpen())
        ::RegCloseKey(m_hKey);
}

bool CRegistryKey::Has(const char *name) const {
    return IsOpen() && ::RegQueryValueExA(m_hKey, name, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

bool CRegistryKey::Delete(const char *name) {
    return IsOpen() && ::RegDeleteValueA(m_hKey, name) == ERROR_SUCCESS;
}

bool CRegistryKey::Size(const char *name, Type type, DWORD *size) const {
    DWORD found = REG_NONE;
    return IsOpen() && ::RegQueryValueExA(m_hKey, name, nullptr, &found, nullptr, size) == ERROR_SUCCESS &&
           found == kTypes[static_cast<int>(type)];
}

bool CRegistryKey::Read(const char *name, Type type, void *data, DWORD *size) const {
    DWORD found = REG_NONE;
    return IsOpen() &&
           ::RegQueryValueExA(m_hKey, name, nullptr, &found, static_cast<BYTE *>(data), size) ==
               ERROR_SUCCESS &&
           found == kTypes[static_cast<int>(type)];
}

bool CRegistryKey::Write(const char *name, Type type, const void *data, DWORD size) {
    return IsOpen() && ::RegSetValueExA(m_hKey, name, 0, kTypes[static_cast<int>(type)],
                                        static_cast<const BYTE *>(data), size) == ERROR_SUCCESS;
}
