// Lookup tables cut and changed at random: read without harm, and without memory that their size does not justify.
#include "tests/fuzz/LookupFuzz.h"

#include "AllocationMeter.h"
#include "MemoryFile.h"
#include "TempFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>

namespace {

constexpr unsigned kSeed = 31;

bool Exercise(const std::string &bytes) {
    return ExerciseLookup(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
}

// The fuzz target's seeds: tables of each form, one with lists upwards and downwards, one of the first menu version,
// one with a wide text.
std::vector<std::string> Seeds() {
    std::vector<std::string> paths, seeds;
    for (const auto &entry : std::filesystem::directory_iterator(ORVANE_SEEDS))
        paths.push_back(entry.path().string());
    std::sort(paths.begin(), paths.end());
    for (const std::string &path : paths)
        seeds.push_back(TempFiles::Read(path));
    return seeds;
}

// Overwrites, inserts, removes and repeats bytes; numbers that lie are what it likes best.
std::string Mutate(std::string bytes, std::mt19937 &random) {
    static const std::string numbers[] = {Bytes("FF FF FF 7F"), Bytes("FF FF FF FF"), Bytes("00 00 00 00"),
                                          Bytes("01 00 00 00"), Bytes("02 00 00 00"), Bytes("10 00 00 00"),
                                          Bytes("FF FE FF 04"), Bytes("00 00 00 80")};
    const auto below = [&](size_t bound) { return bound == 0 ? 0 : random() % bound; };
    for (size_t changes = 1 + below(4); changes > 0; --changes) {
        const size_t at = below(bytes.size());
        switch (below(7)) {
        case 0: bytes[at] = static_cast<char>(random()); break;
        case 1: bytes[at] = static_cast<char>(below(4)); break;
        case 2: bytes.replace(at, std::min<size_t>(4, bytes.size() - at), numbers[below(std::size(numbers))]); break;
        case 3: bytes.insert(at, 1 + below(8), static_cast<char>(random())); break;
        case 4: bytes.erase(at, 1 + below(8)); break;
        case 5: bytes.insert(at, numbers[below(std::size(numbers))]); break;
        default: bytes.insert(at, bytes.substr(below(bytes.size()), below(60))); break;
        }
        if (bytes.empty())
            bytes = "\x04";
    }
    return bytes;
}

TEST(LookupDamageTest, AFileCutAtEveryLengthIsRefused) {
    const std::vector<std::string> seeds = Seeds();
    EXPECT_EQ(seeds.size(), 5u);
    for (const std::string &whole : seeds) {
        EXPECT_TRUE(Exercise(whole));
        for (size_t length = 0; length < whole.size(); ++length)
            EXPECT_FALSE(Exercise(whole.substr(0, length))) << length;
    }
}

// Counts one in the other, each promising as much as the rest of the file could hold.
TEST(LookupDamageTest, NestedCountsTakeNoMoreMemoryThanOne) {
    constexpr int kDeep = 3000;
    const auto number = [](int value) { return std::string{char(value), char(value >> 8), char(value >> 16), 0}; };
    std::string menu, trie;
    for (int left = kDeep; left > 0; --left) {
        menu += std::string(18, '\0') + number(left - 1);
        trie += std::string(5, '\0') + number(left - 1);
    }
    const std::string front = Bytes("04 00 00 00 00 00 00 00 02 00 00 00 00 00 00 00");
    for (const std::string &bytes : {front + menu, front + std::string(22, '\0') + trie}) {
        AllocationMeter meter;
        EXPECT_FALSE(Exercise(bytes));
        EXPECT_LT(meter.Peak(), (64 << 10) + 20 * static_cast<long>(bytes.size()));
    }
}

// ORVANE_MUTATIONS sets another number.
TEST(LookupDamageTest, ManyMutatedFilesTakeNoMoreMemoryThanTheirSizeJustifies) {
    constexpr long kBesides = 32 << 10; // the archive's buffers, and the first blocks of the pools
    constexpr long kTimesSize = 64;     // 22 bytes in the file are a node of 80 with its lists, in two tables
    const char *wanted = std::getenv("ORVANE_MUTATIONS");
    const long count = wanted != nullptr ? std::atol(wanted) : 30000;
    std::mt19937 random(kSeed);
    const std::vector<std::string> seeds = Seeds();
    long tables = 0;
    for (long i = 0; i < count; ++i) {
        const std::string bytes = Mutate(seeds[static_cast<size_t>(i) % seeds.size()], random);
        AllocationMeter meter;
        tables += Exercise(bytes);
        ASSERT_LT(meter.Peak(), kBesides + kTimesSize * static_cast<long>(bytes.size()))
            << "seed " << kSeed << ", file " << i << ": " << Hex(bytes);
    }
    std::printf("%ld of %ld are tables\n", tables, count);
    EXPECT_GT(tables, count / 20); // else the mutations only try the first check
}

} // namespace
