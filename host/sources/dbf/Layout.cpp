#include "Layout.h"

#include "Endian.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <set>

namespace dbf {
namespace {

constexpr std::uint8_t kVersions[] = {0x03, 0x30, 0x31, 0x32, 0x43, 0x63, 0x83, 0x8B, 0xCB, 0xF5, 0xFB};
constexpr std::size_t kNameLength = 11;
constexpr std::size_t kTypeAt = 11;
constexpr std::size_t kWidthAt = 16;
constexpr std::size_t kDecimalsAt = 17;
constexpr std::size_t kFieldFlagsAt = 18;
constexpr std::uint8_t kNullableFlag = 0x02;
constexpr std::uint8_t kBinaryFlag = 0x04;

std::string hex(unsigned value) {
    char text[8];
    std::snprintf(text, sizeof text, "%02X", value);
    return text;
}

std::string nameOf(const std::uint8_t *descriptor) {
    std::string name;
    for (std::size_t i = 0; i < kNameLength && descriptor[i] != 0; ++i) {
        name += static_cast<char>(descriptor[i]);
    }
    name.erase(name.find_last_not_of(' ') + 1);
    return name;
}

FieldKind memoOr(FieldKind kind, std::size_t width) {
    return width == 10 || width == 4 ? kind : FieldKind::raw;
}

FieldKind kindOf(char type, std::size_t width, bool visualFoxPro) {
    const auto ofWidth = [&](std::size_t right, FieldKind kind) {
        return width == right ? kind : FieldKind::raw;
    };
    switch (type) {
    case 'C': return FieldKind::character;
    case 'N': return FieldKind::number;
    case 'F': return FieldKind::floating;
    case 'D': return ofWidth(8, FieldKind::date);
    case 'L': return ofWidth(1, FieldKind::logical);
    case 'M': return memoOr(FieldKind::memo, width);
    case 'G':
    case 'P':
    case 'W': return memoOr(FieldKind::blob, width);
    // One letter, two meanings: a binary number to Visual FoxPro, a block of the memo file to dBASE.
    case 'B': return visualFoxPro ? ofWidth(8, FieldKind::real) : memoOr(FieldKind::blob, width);
    case 'I':
    case '+': return ofWidth(4, FieldKind::integer);
    case 'O': return ofWidth(8, FieldKind::real);
    case 'Y': return ofWidth(8, FieldKind::currency);
    case 'T':
    case '@': return ofWidth(8, FieldKind::dateTime);
    case 'V': return FieldKind::varChar;
    case 'Q': return FieldKind::varBinary;
    default: return FieldKind::raw;
    }
}

bool isKnownType(char type) {
    static constexpr std::string_view known = "CNFDLMGPWBI+OYT@VQ0";
    return known.find(type) != std::string_view::npos;
}

// Reads the header's first 32 bytes.
Result parseFixedPart(Bytes file, Layout &layout) {
    if (file.size() < kFixedHeaderLength) {
        return Result::failure("the header is cut short (" + std::to_string(file.size()) + " bytes)");
    }
    layout.version = file[kVersionAt];
    if (std::find(std::begin(kVersions), std::end(kVersions), layout.version) == std::end(kVersions)) {
        return Result::failure("not a table of a known kind (version byte " + hex(layout.version) + ")");
    }
    if (file[kEncryptedAt] != 0) {
        return Result::failure("the table is encrypted");
    }
    layout.claimedRecords = littleU32(&file[kRecordCountAt]);
    layout.headerLength = littleU16(&file[kHeaderLengthAt]);
    layout.recordLength = littleU16(&file[kRecordLengthAt]);
    layout.hasIndex = (file[kTableFlagsAt] & kHasIndexFlag) != 0;
    layout.languageDriver = file[kLanguageDriverAt];
    if (layout.headerLength < kFixedHeaderLength + 1) {
        return Result::failure("the header length " + std::to_string(layout.headerLength) + " is too small");
    }
    if (layout.headerLength > file.size()) {
        return Result::failure("the header length " + std::to_string(layout.headerLength) +
                               " exceeds the file's " + std::to_string(file.size()) + " bytes");
    }
    return Result::success();
}

// Finds how many descriptors stand before the terminator.
Result countDescriptors(Bytes header, std::size_t &count) {
    std::size_t at = kFixedHeaderLength;
    while (at < header.size() && header[at] != kDescriptorsEnd) {
        at += kDescriptorLength;
    }
    if (at >= header.size()) {
        return Result::failure("the list of fields has no end mark");
    }
    count = (at - kFixedHeaderLength) / kDescriptorLength;
    if (count == 0) {
        return Result::failure("the table has no fields");
    }
    return Result::success();
}

// The length of a record if character fields use (or do not use) the byte of the decimals as the high byte
// of their width, as they do where more than 255 characters are possible.
std::size_t recordLengthOf(Bytes descriptors, bool longCharacters) {
    std::size_t length = 1;
    for (std::size_t at = 0; at < descriptors.size(); at += kDescriptorLength) {
        length += descriptors[at + kWidthAt];
        if (longCharacters && descriptors[at + kTypeAt] == 'C') {
            length += static_cast<std::size_t>(descriptors[at + kDecimalsAt]) << 8;
        }
    }
    return length;
}

Field parseField(const std::uint8_t *descriptor, bool longCharacters, bool visualFoxPro) {
    Field field;
    field.name = nameOf(descriptor);
    field.type = static_cast<char>(descriptor[kTypeAt]);
    field.width = descriptor[kWidthAt];
    field.decimals = descriptor[kDecimalsAt];
    if (field.type == 'C') {
        field.width += longCharacters ? static_cast<std::size_t>(field.decimals) << 8 : 0;
        field.decimals = 0;
    }
    field.kind = kindOf(field.type, field.width, visualFoxPro);
    field.untranslated = visualFoxPro && (descriptor[kFieldFlagsAt] & kBinaryFlag) != 0;
    return field;
}

// The hidden field of null flags holds one bit for each field of varying length and one for each field that
// may be null, in the order of the fields.
void assignRecordBits(Bytes descriptors, std::vector<Field> &fields) {
    const auto flags =
        std::find_if(fields.begin(), fields.end(), [](const Field &f) { return f.type == '0'; });
    if (flags == fields.end()) {
        return;
    }
    std::size_t next = 0;
    const auto take = [&](RecordBit &bit) {
        if (next / 8 < flags->width) {
            bit = {flags->offset + next / 8, static_cast<std::uint8_t>(1u << next % 8)};
        }
        ++next;
    };
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i].kind == FieldKind::varChar || fields[i].kind == FieldKind::varBinary) {
            take(fields[i].shorter);
        }
        if (descriptors[i * kDescriptorLength + kFieldFlagsAt] & kNullableFlag) {
            take(fields[i].null);
        }
    }
}

// `number` is what the user calls the field: its place, counted from 1, and its name.
Result checkField(const Field &field, const std::string &number, std::vector<std::string> &warnings) {
    if (field.width == 0) {
        return Result::failure("field " + number + " has no width");
    }
    const auto letter = static_cast<std::uint8_t>(field.type);
    if (letter < 0x21 || letter > 0x7E) {
        return Result::failure("field " + number + " has the impossible type byte " + hex(letter));
    }
    if (!isKnownType(field.type)) {
        warnings.push_back("Field " + number + " is of the unknown type " + field.type +
                           " and cannot be changed");
    }
    return Result::success();
}

Result parseFields(Bytes descriptors, Layout &layout, std::vector<std::string> &warnings) {
    const bool longCharacters = recordLengthOf(descriptors, true) == layout.recordLength;
    const std::size_t length = recordLengthOf(descriptors, longCharacters);
    if (length != layout.recordLength) {
        return Result::failure("the record length " + std::to_string(layout.recordLength) +
                               " does not fit the fields, which take " + std::to_string(length) + " bytes");
    }
    std::size_t offset = 1;
    for (std::size_t at = 0; at < descriptors.size(); at += kDescriptorLength) {
        Field field = parseField(&descriptors[at], longCharacters, layout.isVisualFoxPro());
        const std::string number = std::to_string(layout.fields.size() + 1) + " (" + field.name + ")";
        if (Result checked = checkField(field, number, warnings); !checked) {
            return checked;
        }
        field.offset = offset;
        offset += field.width;
        layout.fields.push_back(std::move(field));
    }
    if (layout.isVisualFoxPro()) {
        assignRecordBits(descriptors, layout.fields);
    }
    return Result::success();
}

// Fields are looked up by name, so none may be nameless or share one. The file's own names are left alone.
void makeNamesUnique(std::vector<Field> &fields, std::vector<std::string> &warnings) {
    std::set<std::string> used;
    for (const Field &field : fields) {
        used.insert(field.name);
    }
    std::set<std::string> seen;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        std::string &name = fields[i].name;
        if (!name.empty() && seen.insert(name).second) {
            continue;
        }
        const std::string stem = name.empty() ? "FIELD" : name;
        std::size_t suffix = i + 1;
        while (!used.insert(stem + "_" + std::to_string(suffix)).second) {
            ++suffix;
        }
        const std::string shown = stem + "_" + std::to_string(suffix);
        warnings.push_back("Field " + std::to_string(i + 1) +
                           (name.empty() ? " has no name" : " has the name of another, " + name) +
                           "; it is shown as " + shown);
        name = shown;
        seen.insert(shown);
    }
}

void countRecords(Bytes file, Layout &layout, std::vector<std::string> &warnings) {
    const std::size_t present = (file.size() - layout.headerLength) / layout.recordLength;
    layout.records = static_cast<std::uint32_t>(std::min<std::size_t>(present, layout.claimedRecords));
    if (layout.records < layout.claimedRecords) {
        warnings.push_back("The header speaks of " + std::to_string(layout.claimedRecords) +
                           " records, but only " + std::to_string(layout.records) + " are whole in the file");
    } else if (present > layout.claimedRecords) {
        warnings.push_back(
            "Behind the last of " + std::to_string(layout.claimedRecords) +
            " records the file goes on; what stands there is not shown and not kept on saving");
    }
}

} // namespace

bool Layout::hasMemo() const {
    return std::any_of(fields.begin(), fields.end(), [](const Field &field) {
        return field.kind == FieldKind::memo || field.kind == FieldKind::blob;
    });
}

Result parseLayout(Bytes file, Layout &layout, std::vector<std::string> &warnings) {
    if (Result fixed = parseFixedPart(file, layout); !fixed) {
        return fixed;
    }
    const Bytes header = file.first(layout.headerLength);
    std::size_t count = 0;
    if (Result counted = countDescriptors(header, count); !counted) {
        return counted;
    }
    const Bytes descriptors = header.subspan(kFixedHeaderLength, count * kDescriptorLength);
    if (Result fields = parseFields(descriptors, layout, warnings); !fields) {
        return fields;
    }
    makeNamesUnique(layout.fields, warnings);
    countRecords(file, layout, warnings);
    return Result::success();
}

} // namespace dbf
