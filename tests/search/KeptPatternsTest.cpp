#include "search/KeptPatterns.h"

#include <gtest/gtest.h>

using namespace Search;

namespace {

TEST(KeptPatterns, TwoInTurnAreCompiledOnce) {
    KeptPatterns patterns;
    const CellPattern *first = &patterns.Get("a", true), *second = &patterns.Get("", true);
    EXPECT_TRUE(first->Matches("a"));
    EXPECT_TRUE(second->Matches(""));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(first, &patterns.Get("a", true));
        EXPECT_EQ(first, &patterns.Get("a", true));
        EXPECT_EQ(second, &patterns.Get("", true));
    }
}

TEST(KeptPatterns, CaseAndTextTellPatternsApart) {
    KeptPatterns patterns;
    EXPECT_FALSE(patterns.Get("a", true).Matches("A"));
    EXPECT_TRUE(patterns.Get("a", false).Matches("A"));
    EXPECT_TRUE(patterns.Get("b", true).Matches("b"));
    EXPECT_FALSE(patterns.Get("a", true).Matches("A"));
    EXPECT_TRUE(patterns.Get("b", true).Matches("b"));
}

} // namespace
