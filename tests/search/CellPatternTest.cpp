#include "search/CellPattern.h"
#include "search/PatternText.h"

#include <gtest/gtest.h>

#include <boost/regex.hpp>

using namespace Search;

namespace {

TEST(CellPattern, ThePatternFitsTheWholeText) {
    const CellPattern pattern("a.c", true);
    EXPECT_TRUE(pattern.Matches("abc"));
    EXPECT_FALSE(pattern.Matches("abcd"));
    EXPECT_FALSE(pattern.Matches(""));
}

TEST(CellPattern, OneThatDoesNotCompileMatchesNothing) {
    const CellPattern pattern("a(", true);
    EXPECT_FALSE(pattern.Matches("a("));
    std::string replaced = "kept";
    EXPECT_FALSE(pattern.ReplaceFirst("a(", "x", &replaced));
}

// The look ahead keeps the text from being told apart beforehand, so that the library really tries it.
TEST(CellPattern, BacktrackingWithoutEndIsGivenUpAndNoMatch) {
    const std::string endless = "(a|aa)*(a|aa)*(a|aa)*(a|aa)*(a|aa)*(?=b)b?";
    const std::string text(4000, 'a');
    EXPECT_THROW(boost::regex_match(text, boost::regex(endless)), std::runtime_error);
    for (const std::string &pattern : {endless, RegexifyFindString(endless, kAnywhere | kTypedRegex)}) {
        const CellPattern tried(pattern, true);
        EXPECT_FALSE(tried.Matches(text)) << pattern;
        EXPECT_TRUE(tried.Matches("aab")) << pattern; // and the next text is tried as ever
        std::string replaced = "kept";
        EXPECT_FALSE(tried.ReplaceFirst(text, "x", &replaced)) << pattern;
        EXPECT_EQ("", replaced);
    }
}

TEST(CellPattern, BackReferencesAreTriedInTextsOfBoundedLength) {
    const Search::CellPattern twice("(a+)\\1b", true);
    EXPECT_TRUE(twice.Matches(std::string(4094, 'a') + "b"));
    EXPECT_FALSE(twice.Matches(std::string(4096, 'a') + "b"));
    std::string replaced;
    EXPECT_FALSE(twice.ReplaceFirst(std::string(4096, 'a') + "b", "x", &replaced));
    EXPECT_TRUE(Search::CellPattern("(a+)\\\\?b", true).Matches(std::string(5000, 'a') + "b"));
}

TEST(CellPattern, EndlessPatternsWithoutAnEndInTheTextAreToldBeforehand) {
    const CellPattern pattern("(a|aa)*(a|aa)*(a|aa)*(a|aa)*(a|aa)*b", true);
    EXPECT_FALSE(pattern.Matches(std::string(4000, 'a') + "c"));
    EXPECT_TRUE(pattern.Matches("aab"));
}

TEST(CellPattern, AGroupThatRepeatsNeedNotStandBeforeWhatFollowsOnce) {
    EXPECT_TRUE(CellPattern("x(ab)+c", true).Matches("xababc"));
    EXPECT_TRUE(CellPattern("x(a(b)+)+c", true).Matches("xabbabc"));
    EXPECT_TRUE(CellPattern("x(?<_before>.*?)(ab)+?c", true).Matches("xababc"));
}

TEST(CellPattern, OnlyTheFirstMatchIsReplaced) {
    std::string replaced;
    EXPECT_TRUE(CellPattern("b", true).ReplaceFirst("abab", "x", &replaced));
    EXPECT_EQ("axab", replaced);
}

// What is told without the expression is what the expression says.
TEST(CellPattern, TheAnswerIsTheExpressions) {
    const char *const typed[] = {"a", "ab", "a*b", "?", "#", "a#", "b?a", "\\*", "A", "ab*", "*b", "a.b"};
    const char *const texts[] = {"", "a", "ab", "aab", "b a", "A", "AB", "*", "1", "a1", "bxa", "a.b", "axb", "b"};
    for (const char *find : typed) {
        for (int mode = kWholeCell; mode <= kWholeWords; ++mode) {
            const std::string pattern = RegexifyFindString(ConvertWildcardsToRegex(find), mode);
            for (const bool matchCase : {true, false}) {
                const CellPattern tried(pattern, matchCase);
                const boost::regex plain(pattern, matchCase ? boost::regex::perl : boost::regex::perl | boost::regex::icase);
                for (const char *text : texts)
                    EXPECT_EQ(boost::regex_match(text, plain), tried.Matches(text)) << pattern << " on " << text;
            }
        }
    }
}

} // namespace
