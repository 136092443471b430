// The bytes of a small dBASE table, for tests that need a source with an undo of its own.
#pragma once

#include <string>

// Fields F0, F1, ... of `width` bytes each. `types` has a letter for each, C where it has none: field c of record r
// holds "c.r", one of type N the number r + 1.
inline std::string DbfTableBytes(int fields, int records, int width = 5, const std::string &types = "") {
    const auto typeOf = [&](int field) { return field < static_cast<int>(types.size()) ? types[field] : 'C'; };
    const auto word = [](int value) { return std::string{char(value & 0xFF), char(value >> 8)}; };
    std::string bytes = "\x03" + std::string("\x7A\x01\x01") + word(records) + std::string(2, '\0') +
                        word(32 + 32 * fields + 1) + word(1 + width * fields) + std::string(20, '\0');
    for (int field = 0; field < fields; ++field) {
        std::string name = "F" + std::to_string(field);
        name.resize(11, '\0');
        bytes += name + typeOf(field) + std::string(4, '\0') + char(width) + std::string(15, '\0');
    }
    bytes += "\r";
    for (int row = 0; row < records; ++row) {
        bytes += " ";
        for (int field = 0; field < fields; ++field) {
            const bool number = typeOf(field) == 'N';
            const std::string text =
                number ? std::to_string(row + 1) : std::to_string(field) + "." + std::to_string(row);
            const std::string room(static_cast<size_t>(width) - text.size(), ' ');
            bytes += number ? room + text : text + room;
        }
    }
    return bytes + "\x1A";
}
