// Layout files cut and changed at random: read without harm, and without memory that their size does not justify.
#include "tests/fuzz/LayoutFuzz.h"

#include "AllocationMeter.h"
#include "MemoryFile.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace {

constexpr unsigned kSeed = 20;

// Two tables, the second of which the reader meets two bytes early; names, widths, colour sets.
std::string Example() {
    const std::string entry = Bytes("03 00  03 00 00 00 01 00 02 00  02 00 02 00 00 00  03 00 64 00 2c 01 50 00 "
                                    "12 00 14 00 32 00  02 00 04 4e 61 6d 65 05 00 06 00 01 41 01 00 02 00 "
                                    "02 00 00 00");
    return Bytes("04 00 00 00  03 73 65 74  02 00 00 00  00") + entry + Bytes("05 53 54 41 46 46") + entry;
}

void Exercise(const std::string &bytes) {
    ExerciseLayout(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
}

// Overwrites, inserts, removes and repeats bytes; sizes that lie are what it likes best.
std::string Mutate(std::string bytes, std::mt19937 &random) {
    const auto below = [&](size_t bound) { return bound == 0 ? 0 : random() % bound; };
    for (size_t changes = 1 + below(4); changes > 0; --changes) {
        const size_t at = below(bytes.size());
        switch (below(6)) {
        case 0: bytes[at] = static_cast<char>(random()); break;
        case 1: bytes[at] = below(2) ? '\xFF' : '\0'; break;
        case 2: bytes.replace(at, std::min<size_t>(4, bytes.size() - at), "\xFF\xFF\xFF\x7F", 4); break;
        case 3: bytes.insert(at, 1 + below(8), static_cast<char>(random())); break;
        case 4: bytes.erase(at, 1 + below(8)); break;
        default: bytes.insert(at, bytes.substr(below(bytes.size()), below(40))); break;
        }
        if (bytes.empty())
            bytes = "\x04";
    }
    return bytes;
}

TEST(LayoutDamageTest, AFileCutAtEveryLength) {
    const std::string whole = Example();
    for (size_t length = 0; length <= whole.size(); ++length)
        Exercise(whole.substr(0, length));
}

// ORVANE_MUTATIONS sets another number.
TEST(LayoutDamageTest, ManyMutatedFilesTakeNoMoreMemoryThanTheirSizeJustifies) {
    constexpr long kBesides = 32 << 10; // the archive's buffers, and the map of tables
    constexpr long kTimesSize = 64;     // a table of 16 bytes in the file is a record with its map in memory
    const char *wanted = std::getenv("ORVANE_MUTATIONS");
    const long count = wanted != nullptr ? std::atol(wanted) : 50000;
    std::mt19937 random(kSeed);
    const std::string whole = Example();
    for (long i = 0; i < count; ++i) {
        const std::string bytes = Mutate(whole, random);
        AllocationMeter meter;
        Exercise(bytes);
        ASSERT_LT(meter.Peak(), kBesides + kTimesSize * static_cast<long>(bytes.size()))
            << "seed " << kSeed << ", file " << i << ": " << Hex(bytes);
    }
}

} // namespace
