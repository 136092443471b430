#include "lookup/PoolText.h"
#include "lookup/TreePool.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

namespace {

TEST(TreePoolTest, MemoryOfEverySizeIsAlignedAndItsOwn) {
    CTreePool pool;
    std::vector<std::pair<char *, size_t>> pieces;
    for (size_t bytes = 0; bytes < 1200; ++bytes) {
        char *piece = static_cast<char *>(pool.Allocate(bytes));
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(piece) % 8, 0u);
        std::memset(piece, static_cast<int>(bytes), bytes);
        pieces.emplace_back(piece, bytes);
        char *text = pool.AllocateText(bytes % 7);
        std::memset(text, 0x55, bytes % 7);
    }
    for (const auto &[piece, bytes] : pieces) {
        for (size_t i = 0; i < bytes; ++i)
            ASSERT_EQ(static_cast<unsigned char>(piece[i]), static_cast<unsigned char>(bytes)) << bytes;
    }
}

TEST(TreePoolTest, ReleasedMemoryIsGivenAgain) {
    CTreePool pool;
    for (size_t bytes : {1, 8, 1016, 1024}) {
        void *first = pool.Allocate(bytes);
        void *second = pool.Allocate(bytes);
        pool.Release(first, bytes);
        pool.Release(second, bytes);
        EXPECT_EQ(pool.Allocate(bytes), second);
        EXPECT_EQ(pool.Allocate(bytes), first);
    }
    pool.Release(nullptr, 100);
}

TEST(TreePoolTest, LargeMemoryGoesBackToTheSystem) {
    CTreePool pool;
    pool.Allocate(1);
    const size_t before = pool.GetHeldBytes();
    std::vector<void *> pieces;
    for (size_t bytes : {1025, 1032, 100000})
        pieces.push_back(pool.Allocate(bytes));
    EXPECT_GT(pool.GetHeldBytes(), before + 102000);
    pool.Release(pieces[1], 1032);
    pool.Release(pieces[2], 100000);
    pool.Release(pieces[0], 1025);
    EXPECT_EQ(pool.GetHeldBytes(), before);
}

TEST(TreePoolTest, AClearedPoolHoldsNothingAndCanBeUsedAgain) {
    CTreePool pool;
    for (int i = 0; i < 10000; ++i)
        pool.Release(pool.Allocate(24), 24);
    EXPECT_LT(pool.GetHeldBytes(), 2000u);
    pool.Allocate(5000);
    pool.AllocateText(5000);
    pool.Clear();
    EXPECT_EQ(pool.GetHeldBytes(), 0u);
    std::memset(pool.Allocate(24), 1, 24);
}

TEST(TreePoolTest, TextsOfEveryLengthAreKept) {
    CTreePool pool;
    for (unsigned length : {0u, 1u, 254u, 255u, 256u, 70000u}) {
        const std::string characters(length, 'x');
        const CPoolText text(pool, characters.data(), length);
        EXPECT_EQ(text.GetLength(), static_cast<int>(length));
        EXPECT_EQ(text.IsEmpty(), length == 0);
        EXPECT_EQ(std::string(text), characters);
    }
    EXPECT_STREQ(CPoolText(), "");
}

} // namespace
