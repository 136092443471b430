#include "FieldText.h"

#include "DateText.h"
#include "DecimalText.h"
#include "Endian.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdio>

namespace dbf {
namespace {

constexpr std::string_view kPadding(" \0", 2); // some writers fill up with zero bytes

std::string_view trimmedRight(std::string_view text) {
    return text.substr(0, text.find_last_not_of(kPadding) + 1);
}

std::string_view trimmed(std::string_view text) {
    text = trimmedRight(text);
    return text.substr(std::min(text.find_first_not_of(kPadding), text.size()));
}

std::string dateShown(std::string_view stored) {
    Date date;
    stored = trimmed(stored);
    return stored.size() == 8 && parseDate(stored, date) ? shownDate(date) : std::string(stored);
}

std::string logicalShown(char stored) {
    switch (stored) {
    case 'T':
    case 't':
    case 'Y':
    case 'y': return "T";
    case 'F':
    case 'f':
    case 'N':
    case 'n': return "F";
    default: return {};
    }
}

std::string currencyShown(std::uint64_t stored) {
    const bool negative = static_cast<std::int64_t>(stored) < 0;
    const std::uint64_t size = negative ? 0 - stored : stored;
    std::string part = std::to_string(size % 10000);
    part.insert(0, 4 - part.size(), '0');
    return (negative ? "-" : "") + std::to_string(size / 10000) + "." + part;
}

std::string realShown(double value, int decimals) {
    char text[400];
    const auto end = decimals > 0 && decimals <= 18
                         ? std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals)
                         : std::to_chars(text, text + sizeof text, value);
    return end.ec == std::errc{} ? std::string(text, end.ptr) : std::string{};
}

std::string dateTimeShown(const std::uint8_t *stored) {
    Date date;
    if (!dateOfJulianDay(static_cast<std::int32_t>(littleU32(stored)), date)) {
        return {};
    }
    // Writers that reckon in fractions of a day leave a few thousandths too little.
    const std::uint32_t seconds = (littleU32(stored + 4) + 500) / 1000 % 86400;
    char time[16];
    std::snprintf(time, sizeof time, " %02u:%02u:%02u", seconds / 3600, seconds / 60 % 60, seconds % 60);
    return shownDate(date) + time;
}

std::string hexShown(std::string_view stored) {
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    for (const char c : stored) {
        const auto byte = static_cast<std::uint8_t>(c);
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

std::string rawShown(std::string_view stored) {
    std::string text(trimmedRight(stored));
    for (char &c : text) {
        if (static_cast<std::uint8_t>(c) < 0x20) {
            c = '.';
        }
    }
    return text;
}

// Four bytes, or ten digits in text; 0 for "no block".
std::uint32_t memoBlock(std::string_view stored) {
    if (stored.size() == 4) {
        return littleU32(reinterpret_cast<const std::uint8_t *>(stored.data()));
    }
    stored = trimmed(stored);
    std::uint32_t block = 0;
    const auto end = std::from_chars(stored.data(), stored.data() + stored.size(), block);
    return end.ec == std::errc{} && end.ptr == stored.data() + stored.size() ? block : 0;
}

std::string blobShown(char type) {
    switch (type) {
    case 'G': return "(object)";
    case 'P': return "(picture)";
    default: return "(binary)";
    }
}

Result refuse(const Field &field, std::string_view value, const std::string &why) {
    constexpr std::size_t kLongestQuote = 80;
    std::string quoted(value.substr(0, kLongestQuote));
    if (value.size() > kLongestQuote) {
        quoted += "...";
    }
    return Result::failure("Field " + field.name + ": \"" + quoted + "\" " + why);
}

Result encodeCharacters(const Field &field, std::string_view text, const TextTranslator &translator,
                        std::string &bytes) {
    std::string encoded(text.substr(0, text.find_last_not_of(' ') + 1));
    if (encoded.size() > field.width) {
        return refuse(field, text,
                      "has " + std::to_string(encoded.size()) + " characters, the field holds " +
                          std::to_string(field.width));
    }
    std::size_t position = 0;
    if (!field.untranslated && !translator.toFile(encoded, position)) {
        return refuse(field, text,
                      "has a character, number " + std::to_string(position + 1) +
                          ", that the file's code page lacks");
    }
    encoded.resize(field.width, ' ');
    bytes = std::move(encoded);
    return Result::success();
}

Result encodeNumber(const Field &field, std::string_view text, std::string &bytes) {
    const auto form = [&] {
        return std::to_string(field.width) + " characters" +
               (field.decimals ? ", " + std::to_string(field.decimals) + " of them decimals" : "");
    };
    switch (renderDecimal(text, field.width, field.decimals, bytes)) {
    case DecimalFault::none: return Result::success();
    case DecimalFault::notANumber: return refuse(field, text, "is not a number");
    case DecimalFault::tooManyDecimals:
        return refuse(field, text, "has too many decimals, the field has " + std::to_string(field.decimals));
    case DecimalFault::tooWide: break;
    }
    return refuse(field, text, "has too many digits, the field holds " + form());
}

Result encodeDate(const Field &field, std::string_view text, std::string &bytes) {
    Date date;
    if (!parseDate(text, date)) {
        return refuse(field, text, "is not a date (YYYY-MM-DD)");
    }
    bytes = compactDate(date);
    return Result::success();
}

Result encodeLogical(const Field &field, std::string_view text, std::string &bytes) {
    static constexpr std::string_view yes = "TtYy1";
    static constexpr std::string_view no = "FfNn0";
    if (text.size() == 1 && yes.find(text[0]) != std::string_view::npos) {
        bytes = "T";
    } else if (text.size() == 1 && no.find(text[0]) != std::string_view::npos) {
        bytes = "F";
    } else if (text == "?") {
        bytes = " ";
    } else {
        return refuse(field, text, "is not T or F");
    }
    return Result::success();
}

} // namespace

std::string fieldText(const Field &field, const std::uint8_t *record, const MemoFile *memo,
                      const TextTranslator &translator) {
    const std::uint8_t *start = record + field.offset;
    std::string_view stored(reinterpret_cast<const char *>(start), field.width);
    if (field.null.isSet(record)) {
        return {};
    }
    if (field.shorter.isSet(record)) {
        stored = stored.substr(0, std::min<std::size_t>(start[field.width - 1], field.width - 1));
    }
    const auto translated = [&](std::string text) {
        if (!field.untranslated) {
            translator.toDisplay(text);
        }
        return text;
    };
    switch (field.kind) {
    case FieldKind::character: return translated(std::string(trimmedRight(stored)));
    case FieldKind::varChar:
        return translated(std::string(field.shorter.isSet(record) ? stored : trimmedRight(stored)));
    case FieldKind::number:
    case FieldKind::floating: return std::string(trimmed(stored));
    case FieldKind::date: return dateShown(stored);
    case FieldKind::logical: return logicalShown(stored[0]);
    case FieldKind::memo: return memo ? translated(memo->text(memoBlock(stored))) : std::string{};
    case FieldKind::blob: return memoBlock(stored) ? blobShown(field.type) : std::string{};
    case FieldKind::integer: return std::to_string(static_cast<std::int32_t>(littleU32(start)));
    case FieldKind::real: return realShown(std::bit_cast<double>(littleU64(start)), field.decimals);
    case FieldKind::currency: return currencyShown(littleU64(start));
    case FieldKind::dateTime: return dateTimeShown(start);
    case FieldKind::varBinary: return hexShown(stored);
    case FieldKind::raw: break;
    }
    return field.type == '0' ? hexShown(stored) : rawShown(stored);
}

Result encodeField(const Field &field, std::string_view text, const TextTranslator &translator,
                   std::string &bytes) {
    if (!field.isEditable()) {
        return Result::failure("Field " + field.name + " cannot be changed here");
    }
    if (field.kind == FieldKind::character) {
        return encodeCharacters(field, text, translator, bytes);
    }
    text = trimmed(text);
    if (text.empty()) {
        bytes.assign(field.width, ' ');
        return Result::success();
    }
    switch (field.kind) {
    case FieldKind::date: return encodeDate(field, text, bytes);
    case FieldKind::logical: return encodeLogical(field, text, bytes);
    default: return encodeNumber(field, text, bytes);
    }
}

} // namespace dbf
