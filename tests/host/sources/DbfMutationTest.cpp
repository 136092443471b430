// Damaged tables, by the thousand: the short run of what the fuzz target does without end.
#include "../../fuzz/DbfFuzz.h"
#include "DbfBytes.h"

#include <random>

using namespace dbftest;

namespace {

// Table and memo file as exerciseTable takes them.
std::string seed(const std::string &memo, const std::string &table) {
    return little(memo.size(), 2) + memo + table;
}

std::vector<std::string> seeds() {
    const std::string dbase3 = std::string(512, '\0') + "text\x1A\x1A";
    const std::string foxpro =
        raw("\0\0\0\x08\0\0\0\x40") + std::string(56, '\0') + raw("\0\0\0\x01\0\0\0\x03") + "abc";
    const std::string dbase4 = std::string(20, '\0') + raw("\x40\0") + std::string(42, '\0') +
                               raw("\xFF\xFF\x08\0\x0B\0\0\0") + "abc";
    const std::string withMemo = descriptor("A", 'C', 3) + descriptor("M", 'M', 10);
    const std::string binary = descriptor("I", 'I', 4) + descriptor("B", 'B', 8, 2) +
                               descriptor("Y", 'Y', 8, 4) + descriptor("T", 'T', 8) +
                               descriptor("V", 'V', 4, 0, 2) + descriptor("Q", 'Q', 4) +
                               descriptor("M", 'M', 4) + descriptor("_NullFlags", '0', 1, 0, 5);
    return {
        seed("", people()),
        seed(dbase3, header(0x83, 2, 14, withMemo, 1) + " abc         1" + "*\x81  " + "         2" + '\x1A'),
        seed(dbase4, header(0x8B, 1, 14, withMemo, 0x64) + " abc         1" + '\x1A'),
        seed(foxpro, header(0xF5, 1, 14, withMemo, 0x65) + " abc         1" + '\x1A'),
        seed(foxpro, header(0x30, 1, 42, binary, 3) + " " + std::string(40, '\x01') + "\x03\x1A"),
    };
}

} // namespace

TEST(DbfMutation, DamagedTablesDoNoHarm) {
    const std::vector<std::string> originals = seeds();
    std::mt19937 random(20261121);
    const auto below = [&](std::size_t n) { return random() % n; };
    for (int run = 0; run < 20'000; ++run) {
        std::string bytes = originals[below(originals.size())];
        for (std::size_t i = 0, n = below(6); i < n; ++i) {
            // Mostly the header, where a byte means most.
            const std::size_t at = below(below(3) ? std::min<std::size_t>(bytes.size(), 300) : bytes.size());
            switch (below(5)) {
            case 0: bytes[at] = static_cast<char>(below(256)); break;
            case 1: bytes[at] = static_cast<char>(bytes[at] ^ 1 << below(8)); break;
            case 2: bytes.resize(at + 1); break;
            case 3: bytes.insert(at, below(40), static_cast<char>(below(256))); break;
            default: bytes.erase(at, below(40)); break;
            }
            if (bytes.empty()) {
                break;
            }
        }
        exerciseTable(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
    }
}

TEST(DbfMutation, WholeTablesPass) {
    for (const std::string &bytes : seeds()) {
        exerciseTable(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
    }
}
