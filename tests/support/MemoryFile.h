// MemoryFile: a file whose bytes the test holds.
#pragma once

#include <afx.h>

#include <algorithm>
#include <cstring>
#include <string>

class MemoryFile : public CFile {
public:
    MemoryFile() = default;
    explicit MemoryFile(std::string bytes) : m_bytes(std::move(bytes)) {}

    UINT Read(void *buffer, UINT count) override {
        const auto got = static_cast<UINT>(std::min<size_t>(count, m_bytes.size() - m_position));
        std::memcpy(buffer, m_bytes.data() + m_position, got);
        m_position += got;
        return got;
    }
    void Write(const void *buffer, UINT count) override {
        m_bytes.append(static_cast<const char *>(buffer), count);
        m_position = m_bytes.size();
    }
    ULONGLONG GetLength() const override { return m_bytes.size(); }
    ULONGLONG GetPosition() const override { return m_position; }
    CString GetFilePath() const override { return "memory"; }

    std::string m_bytes;
    size_t m_position = 0;
};

// Bytes written out by hand: pairs of hexadecimal digits, apart by blanks.
inline std::string Bytes(const char *hex) {
    std::string bytes;
    for (; *hex != '\0'; ++hex) {
        if (*hex == ' ')
            continue;
        bytes += static_cast<char>(std::stoi(std::string(hex, 2), nullptr, 16));
        ++hex;
    }
    return bytes;
}

inline std::string Hex(const std::string &bytes) {
    std::string hex;
    for (unsigned char byte : bytes) {
        char digits[4];
        std::snprintf(digits, sizeof digits, hex.empty() ? "%02x" : " %02x", byte);
        hex += digits;
    }
    return hex;
}
