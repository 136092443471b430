// What holds for the keys of both platforms: numbers, texts and single bytes.
#include "lookup/RegistryKey.h"

#include <cstring>
#include <vector>

bool CRegistryKey::ReadNumber(const char *name, DWORD *value) const {
    DWORD number = 0;
    DWORD size = sizeof number;
    if (!Read(name, Type::Number, &number, &size) || size != sizeof number)
        return false;
    *value = number;
    return true;
}

bool CRegistryKey::WriteNumber(const char *name, DWORD value) {
    return Write(name, Type::Number, &value, sizeof value);
}

// The closing null may be missing from what other programs wrote.
bool CRegistryKey::ReadText(const char *name, CString &text, DWORD capacity) const {
    std::vector<char> bytes(capacity + 1);
    DWORD size = capacity;
    if (!Read(name, Type::Text, bytes.data(), &size))
        return false;
    bytes[size] = '\0';
    text = bytes.data();
    return true;
}

bool CRegistryKey::ReadText(const char *name, CString &text) const {
    DWORD size = 0;
    return Size(name, Type::Text, &size) && ReadText(name, text, size);
}

bool CRegistryKey::WriteText(const char *name, const char *text) {
    return Write(name, Type::Text, text, static_cast<DWORD>(std::strlen(text) + 1));
}

bool CRegistryKey::ReadByte(const char *name, BYTE *value) const {
    BYTE byte = 0;
    DWORD size = sizeof byte;
    if (!Read(name, Type::Bytes, &byte, &size) || size != sizeof byte)
        return false;
    *value = byte;
    return true;
}

bool CRegistryKey::WriteByte(const char *name, BYTE value) {
    return Write(name, Type::Bytes, &value, sizeof value);
}
