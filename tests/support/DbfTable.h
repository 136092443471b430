// The bytes of a small dBASE table, for tests that need a source with an undo of its own.
#pragma once

#include <string>

// Character fields F0, F1, ... of `width` bytes each. Field c of record r holds "c.r".
inline std::string DbfTableBytes(int fields, int records, int width = 5) {
    const auto word = [](int value) { return std::string{char(value & 0xFF), char(value >> 8)}; };
    std::string bytes = "\x03" + std::string("\x7A\x01\x01") + word(records) + std::string(2, '\0') +
                        word(32 + 32 * fields + 1) + word(1 + width * fields) + std::string(20, '\0');
    for (int field = 0; field < fields; ++field) {
        std::string name = "F" + std::to_string(field);
        name.resize(11, '\0');
        bytes += name + "C" + std::string(4, '\0') + char(width) + std::string(15, '\0');
    }
    bytes += "\r";
    for (int row = 0; row < records; ++row) {
        bytes += " ";
        for (int field = 0; field < fields; ++field) {
            std::string text = std::to_string(field) + "." + std::to_string(row);
            text.resize(static_cast<size_t>(width), ' ');
            bytes += text;
        }
    }
    return bytes + "\x1A";
}
