// What the header of a table says: the shape of its records and where each field stands in them.
#pragma once

#include "FileStore.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dbf {

enum class FieldKind {
    character,
    number,   // N: decimal text
    floating, // F: decimal text
    date,     // D: YYYYMMDD
    logical,
    memo,     // text in the memo file
    blob,     // something else in the memo file
    integer,  // four bytes
    real,     // eight bytes, binary floating point
    currency, // eight bytes, ten-thousandths
    dateTime, // eight bytes, Julian day and milliseconds
    varChar,
    varBinary,
    raw, // anything else, shown as it is
};

// One bit of the record that tells something about a field. Byte 0 is the deleted flag, so 0 means "no bit".
struct RecordBit {
    std::size_t byte = 0;
    std::uint8_t mask = 0;

    bool isSet(const std::uint8_t *record) const { return byte != 0 && (record[byte] & mask) != 0; }
};

struct Field {
    std::string name; // never empty, no two alike
    char type = 'C';
    FieldKind kind = FieldKind::character;
    std::size_t offset = 0; // in the record, the deleted flag standing at 0
    std::size_t width = 0;  // in bytes
    int decimals = 0;
    bool untranslated = false; // the bytes are in no code page
    RecordBit null;            // set: the value is null
    RecordBit shorter;         // set: the last byte of the field is the length of what is used of it

    bool isEditable() const { return kind <= FieldKind::logical; }
};

struct Layout {
    std::uint8_t version = 0;
    std::uint8_t languageDriver = 0;
    bool hasIndex = false;            // an index file of the same name belongs to the table
    std::uint32_t claimedRecords = 0; // what the header says
    std::uint32_t records = 0;        // of these, what is whole in the file
    std::size_t headerLength = 0;
    std::size_t recordLength = 0;
    std::vector<Field> fields;

    bool hasMemo() const;
    bool isVisualFoxPro() const { return version >= 0x30 && version <= 0x32; }
};

// Offsets into the header of a table.
inline constexpr std::size_t kVersionAt = 0;
inline constexpr std::size_t kUpdateDateAt = 1;
inline constexpr std::size_t kRecordCountAt = 4;
inline constexpr std::size_t kHeaderLengthAt = 8;
inline constexpr std::size_t kRecordLengthAt = 10;
inline constexpr std::size_t kEncryptedAt = 15;
inline constexpr std::size_t kTableFlagsAt = 28;
inline constexpr std::size_t kLanguageDriverAt = 29;
inline constexpr std::size_t kFixedHeaderLength = 32;
inline constexpr std::size_t kDescriptorLength = 32;
inline constexpr std::uint8_t kDescriptorsEnd = 0x0D;
inline constexpr std::uint8_t kFileEnd = 0x1A;
inline constexpr std::uint8_t kHasIndexFlag = 0x01;
inline constexpr std::uint8_t kDeletedMark = '*';
inline constexpr std::uint8_t kPresentMark = ' ';

// Reads the header at the front of `file`. A failure's message is the reason alone, without the file's name.
// What is odd but bearable is added to `warnings`.
Result parseLayout(Bytes file, Layout &layout, std::vector<std::string> &warnings);

} // namespace dbf
