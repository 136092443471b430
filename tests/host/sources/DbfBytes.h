// Tables put together byte by byte, for tests.
#pragma once

#include "dbf/Table.h"
#include "MemoryFiles.h"

#include <gtest/gtest.h>

namespace dbftest {

inline std::string little(std::uint64_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(value >> (8 * i));
    }
    return text;
}

// A string literal with zero bytes in it.
template <std::size_t n> std::string raw(const char (&text)[n]) {
    return std::string(text, n - 1);
}

// One field descriptor of 32 bytes.
inline std::string descriptor(const std::string &name, char type, int width, int decimals = 0,
                              int flags = 0) {
    std::string text = name;
    text.resize(11, '\0');
    text += type;
    text += std::string(4, '\0');
    text += static_cast<char>(width);
    text += static_cast<char>(decimals);
    text += static_cast<char>(flags);
    text.resize(32, '\0');
    return text;
}

// The first 32 bytes of a header.
inline std::string fixedPart(int version, std::uint32_t records, int headerLength, int recordLength,
                             int driver = 0) {
    std::string text = std::string(1, static_cast<char>(version)) + raw("\x5F\x07\x04") + little(records, 4) +
                       little(static_cast<std::uint64_t>(headerLength), 2) +
                       little(static_cast<std::uint64_t>(recordLength), 2);
    text.resize(32, '\0');
    text[29] = static_cast<char>(driver);
    return text;
}

// A whole header for descriptors, without anything behind the end mark.
inline std::string header(int version, std::uint32_t records, int recordLength,
                          const std::string &descriptors, int driver = 0) {
    return fixedPart(version, records, static_cast<int>(33 + descriptors.size()), recordLength, driver) +
           descriptors + '\x0D';
}

// Three people: NAME C(8), PAY N(7,2), BORN D, ACTIVE L; the second one marked deleted.
inline std::string people() {
    return header(0x03, 3, 25,
                  descriptor("NAME", 'C', 8) + descriptor("PAY", 'N', 7, 2) + descriptor("BORN", 'D', 8) +
                      descriptor("ACTIVE", 'L', 1)) +
           " Anna    1200.5019720229T" + "*Bert     -99.9919991231F" + " Carla" + std::string(18, ' ') + "?" +
           '\x1A';
}

inline dbf::Date fixedToday() {
    return {2026, 11, 21};
}

inline dbf::OpenOptions options(MemoryFiles &files) {
    dbf::OpenOptions result;
    result.files = &files;
    result.displayCodePage = 1252;
    result.today = fixedToday;
    return result;
}

// Opens a table of these bytes, under the name t.dbf.
inline std::unique_ptr<dbf::Table> openBytes(MemoryFiles &files, const std::string &bytes) {
    files.files["t.dbf"] = bytes;
    std::unique_ptr<dbf::Table> table;
    const dbf::Result opened = dbf::Table::open("t.dbf", options(files), table);
    EXPECT_TRUE(opened) << opened.message;
    return table;
}

inline std::string refusal(const std::string &bytes) {
    MemoryFiles files;
    files.files["t.dbf"] = bytes;
    std::unique_ptr<dbf::Table> table;
    const dbf::Result opened = dbf::Table::open("t.dbf", options(files), table);
    EXPECT_EQ(opened.ok, table != nullptr);
    EXPECT_EQ(files.files["t.dbf"], bytes);
    return opened.message;
}

// All rows, cells separated by commas, rows ended by newlines, marked ones with a star in front.
inline std::string shown(const dbf::Table &table) {
    std::string text;
    for (dbf::Table::Row row = 0; row < table.rowCount(); ++row) {
        text += table.isMarkedDeleted(row) ? "*" : "";
        for (std::size_t column = 0; column < table.columnCount(); ++column) {
            text += (column ? "," : "") + table.cellText(row, column);
        }
        text += "\n";
    }
    return text;
}

inline std::string joined(const std::vector<std::string> &lines) {
    std::string text;
    for (const std::string &line : lines) {
        text += line + "\n";
    }
    return text;
}

} // namespace dbftest
