// The native build's registry: in memory, for the length of the process. As in the system's, neither keys nor
// values know case.
#include "lookup/RegistryKey.h"

#include <cstring>
#include <map>
#include <string>
#include <utility>

namespace {

struct NoCase {
    bool operator()(const std::string &left, const std::string &right) const {
        return CString(left.c_str()).CompareNoCase(right.c_str()) < 0;
    }
};

struct Value {
    int type;
    std::string bytes;
};

using Values = std::map<std::string, Value, NoCase>;

std::map<HKEY, std::map<std::string, Values, NoCase>> g_roots;

const Value *FindValue(HKEY key, const char *name, int type) {
    if (key == nullptr)
        return nullptr;
    const auto &values = *reinterpret_cast<const Values *>(key);
    const auto found = values.find(name);
    return found != values.end() && found->second.type == type ? &found->second : nullptr;
}

} // namespace

CRegistryKey::CRegistryKey(HKEY root, const char *path) {
    if (root != nullptr)
        m_hKey = reinterpret_cast<HKEY>(&g_roots[root][path]);
}

CRegistryKey::~CRegistryKey() = default;

bool CRegistryKey::Has(const char *name) const {
    return IsOpen() && reinterpret_cast<const Values *>(m_hKey)->count(name) > 0;
}

bool CRegistryKey::Delete(const char *name) {
    return IsOpen() && reinterpret_cast<Values *>(m_hKey)->erase(name) > 0;
}

bool CRegistryKey::Size(const char *name, Type type, DWORD *size) const {
    const Value *value = FindValue(m_hKey, name, static_cast<int>(type));
    if (value == nullptr)
        return false;
    *size = static_cast<DWORD>(value->bytes.size());
    return true;
}

bool CRegistryKey::Read(const char *name, Type type, void *data, DWORD *size) const {
    const Value *value = FindValue(m_hKey, name, static_cast<int>(type));
    if (value == nullptr || value->bytes.size() > *size)
        return false;
    std::memcpy(data, value->bytes.data(), value->bytes.size());
    *size = static_cast<DWORD>(value->bytes.size());
    return true;
}

bool CRegistryKey::Write(const char *name, Type type, const void *data, DWORD size) {
    if (!IsOpen())
        return false;
    (*reinterpret_cast<Values *>(m_hKey))[name] = {static_cast<int>(type),
                                                   std::string(static_cast<const char *>(data), size)};
    return true;
}
