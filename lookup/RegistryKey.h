// CRegistryKey: one key of the registry, opened, or made where it is not, with all access. Values are read
// with the type that they must have: one of another type counts as absent. The native build keeps its keys in
// memory.
#pragma once

#include <afx.h>

class ORVANE_API CRegistryKey {
public:
    // A null root opens nothing.
    CRegistryKey(HKEY root, const char *path);
    ~CRegistryKey();
    CRegistryKey(const CRegistryKey &) = delete;
    CRegistryKey &operator=(const CRegistryKey &) = delete;

    bool IsOpen() const { return m_hKey != nullptr; }

    // All false when the key is not open. A read that fails leaves its argument as it was.
    bool ReadNumber(const char *name, DWORD *value) const;
    bool WriteNumber(const char *name, DWORD value);
    // `capacity` is in bytes, the closing null included; a longer text is not read.
    bool ReadText(const char *name, CString &text, DWORD capacity) const;
    bool ReadText(const char *name, CString &text) const;
    bool WriteText(const char *name, const char *text);
    bool ReadByte(const char *name, BYTE *value) const;
    bool WriteByte(const char *name, BYTE value);
    bool Has(const char *name) const;
    bool Delete(const char *name);

private:
    enum class Type { Text, Bytes, Number };

    // The value's size in bytes.
    bool Size(const char *name, Type type, DWORD *size) const;
    // Exactly `size` bytes at most; `*size` becomes what was read.
    bool Read(const char *name, Type type, void *data, DWORD *size) const;
    bool Write(const char *name, Type type, const void *data, DWORD size);

    HKEY m_hKey = nullptr;
};
