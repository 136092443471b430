// make_dbf OUT RECORDS FIELDS: writes a large table for measuring. Field i is a character, whole number,
// number with decimals or date field, in turn; record numbers and simple patterns fill them.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

struct Kind {
    char type;
    int width;
    int decimals;
};

constexpr Kind kKinds[] = {{'C', 12, 0}, {'N', 10, 0}, {'N', 9, 2}, {'D', 8, 0}};

const Kind &kindOf(int field) {
    return kKinds[field % 4];
}

void putLittle(std::string &text, std::size_t at, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        text[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> (8 * i));
    }
}

std::string headerOf(std::uint32_t records, int fields, std::uint32_t recordLength) {
    std::string header(32, '\0');
    header[0] = 0x03;
    header[1] = 126;
    header[2] = 1;
    header[3] = 1;
    putLittle(header, 4, records, 4);
    putLittle(header, 8, static_cast<std::uint32_t>(33 + 32 * fields), 2);
    putLittle(header, 10, recordLength, 2);
    header[29] = 0x03;
    for (int field = 0; field < fields; ++field) {
        std::string descriptor(32, '\0');
        std::snprintf(descriptor.data(), 11, "FIELD%d", field + 1);
        descriptor[11] = kindOf(field).type;
        descriptor[16] = static_cast<char>(kindOf(field).width);
        descriptor[17] = static_cast<char>(kindOf(field).decimals);
        header += descriptor;
    }
    return header + '\x0D';
}

void putField(char *place, const Kind &kind, std::uint32_t number) {
    char text[32];
    if (kind.type == 'C') {
        std::snprintf(text, sizeof text, "Item %-7u", number % 10'000'000);
    } else if (kind.type == 'D') {
        std::snprintf(text, sizeof text, "%04u%02u%02u", 1950 + number % 70, 1 + number % 12,
                      1 + number % 28);
    } else if (kind.decimals) {
        std::snprintf(text, sizeof text, "%6u.%02u", number % 100'000, number % 100);
    } else {
        std::snprintf(text, sizeof text, "%10u", number);
    }
    std::memcpy(place, text, static_cast<std::size_t>(kind.width));
}

bool writeTable(std::FILE *out, std::uint32_t records, int fields) {
    std::uint32_t recordLength = 1;
    for (int field = 0; field < fields; ++field) {
        recordLength += static_cast<std::uint32_t>(kindOf(field).width);
    }
    const std::string header = headerOf(records, fields, recordLength);
    bool ok = std::fwrite(header.data(), 1, header.size(), out) == header.size();
    std::vector<char> record(recordLength, ' ');
    for (std::uint32_t number = 0; number < records && ok; ++number) {
        // Only the first few fields change with each record, so that ten million of them are soon written.
        std::size_t at = 1;
        for (int field = 0; field < fields && (field < 4 || number % 64 == 0); ++field) {
            putField(&record[at], kindOf(field), number + static_cast<std::uint32_t>(field));
            at += static_cast<std::size_t>(kindOf(field).width);
        }
        ok = std::fwrite(record.data(), 1, record.size(), out) == record.size();
    }
    return ok && std::fputc(0x1A, out) != EOF;
}

} // namespace

int main(int argc, char **argv) {
    const unsigned long records = argc == 4 ? std::strtoul(argv[2], nullptr, 10) : 0;
    const int fields = argc == 4 ? std::atoi(argv[3]) : 0;
    if (argc != 4 || fields < 1 || fields > 2046 || records > 0xFFFFFFFFul) {
        std::fprintf(stderr, "usage: make_dbf OUT RECORDS FIELDS\n");
        return 2;
    }
    std::FILE *out = std::fopen(argv[1], "wb");
    if (!out) {
        std::perror(argv[1]);
        return 1;
    }
    const bool written = writeTable(out, static_cast<std::uint32_t>(records), fields);
    if (std::fclose(out) != 0 || !written) {
        std::perror(argv[1]);
        return 1;
    }
    return 0;
}
