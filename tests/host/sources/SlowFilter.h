// A record and an expression over it that SQLite takes long for: many patterns, each tried at each place of a
// long memo.
#pragma once

#include "DbfBytes.h"

namespace dbftest {

// A table of one record, its fields NOTE, which holds 65,536 letters a, and N, an empty number.
inline std::string slowRecord(MemoryFiles &files) {
    files.files["t.dbt"] = std::string(512, '\0') + std::string(65'536, 'a') + "\x1A";
    return header(0x83, 1, 14, descriptor("NOTE", 'M', 10) + descriptor("N", 'N', 3)) + "          1   ";
}

inline std::string slowExpression() {
    std::string text = "NOTE = ''";
    for (int i = 0; i < 90; ++i) {
        text += " or NOTE like '%" + std::string(990, 'a') + static_cast<char>('b' + i % 20) + "'";
    }
    return text;
}

} // namespace dbftest
