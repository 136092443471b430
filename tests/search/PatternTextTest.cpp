// What the user typed, by match mode, as a search and as a replacement.
#include "search/CellPattern.h"
#include "search/PatternText.h"

#include <gtest/gtest.h>

using namespace Search;

namespace {

std::string FindPattern(const std::string &typed, int mode) {
    return RegexifyFindString(mode & kTypedRegex ? typed : ConvertWildcardsToRegex(typed), mode);
}

bool Finds(const std::string &typed, const std::string &text, int mode, bool matchCase = true) {
    return CellPattern(FindPattern(typed, mode), matchCase).Matches(text);
}

// The text after a replacement; "-" where it does not match.
std::string Replaced(const std::string &typed, const std::string &by, const std::string &text, int mode) {
    const CellPattern pattern(FindPattern(typed, mode), true);
    std::string result;
    if (!pattern.Matches(text) ||
        !pattern.ReplaceFirst(text, RegexifyReplaceString(by, typed, mode), &result))
        return "-";
    return result;
}

std::string ReplacedRegex(const std::string &typed, const std::string &by, const std::string &text, int mode = kAnywhere) {
    return Replaced(typed, by, text, mode | kTypedRegex);
}

TEST(PatternText, AStarIsAnyRunAQuestionMarkOneCharacterANumberSignOneDigit) {
    EXPECT_TRUE(Finds("a*c", "abbc", kWholeCell));
    EXPECT_TRUE(Finds("a*c", "ac", kWholeCell));
    EXPECT_TRUE(Finds("a?c", "abc", kWholeCell));
    EXPECT_FALSE(Finds("a?c", "ac", kWholeCell));
    EXPECT_TRUE(Finds("a#c", "a7c", kWholeCell));
    EXPECT_FALSE(Finds("a#c", "abc", kWholeCell));
}

TEST(PatternText, ABackslashTakesTheNextCharacterAsItIs) {
    EXPECT_TRUE(Finds("a\\*c", "a*c", kWholeCell));
    EXPECT_FALSE(Finds("a\\*c", "abc", kWholeCell));
    EXPECT_TRUE(Finds("\\?\\#\\\\", "?#\\", kWholeCell));
    EXPECT_TRUE(Finds("end\\", "end\\", kWholeCell)); // with nothing behind it, itself
}

TEST(PatternText, WhatMeansSomethingToExpressionsIsLiteralInWildcardText) {
    for (const char *text : {"a.c", "[x]", "{2}", "(x)", "a|b", "^a$", "a+", "/", "$&"}) {
        EXPECT_TRUE(Finds(text, text, kWholeCell)) << text;
        EXPECT_FALSE(Finds(text, "axc", kWholeCell)) << text;
    }
}

TEST(PatternText, MatchModes) {
    const auto modes = [](const char *typed, const char *text) {
        std::string found;
        for (int mode = kWholeCell; mode <= kWholeWords; ++mode)
            found += Finds(typed, text, mode) ? '1' : '0';
        return found;
    };
    EXPECT_EQ("11111", modes("cat", "cat"));
    EXPECT_EQ("01101", modes("cat", "cat sat"));
    EXPECT_EQ("01011", modes("cat", "a cat"));
    EXPECT_EQ("01000", modes("cat", "concatenate"));
    EXPECT_EQ("01100", modes("cat", "cats"));
    EXPECT_EQ("01001", modes("cat", "my cat sat"));
    EXPECT_EQ("00000", modes("cat", "dog"));
    EXPECT_EQ("01101", modes("(cat)", "(cat) "));
}

TEST(PatternText, AnUnknownMatchModeIsTheWholeCell) {
    EXPECT_FALSE(Finds("cat", "cats", 77));
    EXPECT_FALSE(Finds("cat", "cats", -1));
}

TEST(PatternText, LineBreaksAreCharactersLikeOthers) {
    EXPECT_TRUE(Finds("a*c", "a\r\nc", kWholeCell));
    EXPECT_FALSE(Finds("b", "a\nb", kAtStart));
    EXPECT_FALSE(Finds("a", "a\nb", kAtEnd));
}

TEST(PatternText, CaseCountsWhereAsked) {
    EXPECT_TRUE(Finds("CAT", "a cat", kAnywhere, false));
    EXPECT_FALSE(Finds("CAT", "a cat", kAnywhere, true));
}

TEST(PatternText, ALiteralReplacementKeepsTheTextAround) {
    EXPECT_EQ("a dog sat", Replaced("cat", "dog", "a cat sat", kAnywhere));
    EXPECT_EQ("a dog sat on a cat", Replaced("cat", "dog", "a cat sat on a cat", kAnywhere));
    EXPECT_EQ("dogs", Replaced("cat", "dog", "cats", kAtStart));
    EXPECT_EQ("a dog", Replaced("cat", "dog", "a cat", kAtEnd));
    EXPECT_EQ("concat dog", Replaced("cat", "dog", "concat cat", kWholeWords));
    EXPECT_EQ("dog", Replaced("c*t", "dog", "cat cot", kWholeCell));
    EXPECT_EQ("dog cot", Replaced("c*t", "dog", "cat cot", kAnywhere)); // the shortest run
}

TEST(PatternText, ALiteralReplacementMeansNothingElse) {
    EXPECT_EQ("x$1\\n$&(y)?z", Replaced("a", "$1\\n$&(y)?", "xaz", kAnywhere));
    EXPECT_EQ("xz", Replaced("a", "", "xaz", kAnywhere));
}

TEST(PatternText, AFormatOfATypedExpressionKnowsItsGroups) {
    EXPECT_EQ("x-b-a-z", ReplacedRegex("(a)(b)", "-$2-$1-", "xabz"));
    EXPECT_EQ("x[ab]z", ReplacedRegex("a(b)", "[$&]", "xabz"));
    EXPECT_EQ("x[ab]z", ReplacedRegex("a(b)", "[$0]", "xabz"));
    EXPECT_EQ("xb1z", ReplacedRegex("a(b)", "${1}1", "xabz"));
    EXPECT_EQ("xbz", ReplacedRegex("a(b)", "\\1", "xabz"));
    EXPECT_EQ("x(x|z)z", ReplacedRegex("ab", "($`|$')", "xabz"));
    EXPECT_EQ("xABz", ReplacedRegex("ab", "\\U$&", "xabz")); // the change of case ends with it
    EXPECT_EQ("x$z", ReplacedRegex("ab", "$$", "xabz"));
    EXPECT_EQ("x\tz", ReplacedRegex("ab", "\\t", "xabz"));
    EXPECT_EQ("xbz", ReplacedRegex("a(?<n>b)", "$+{n}", "xabz"));
}

TEST(PatternText, ReferencesInATypedExpressionAreToItsOwnGroups) {
    EXPECT_EQ("x-z", ReplacedRegex("(\\w)\\1", "-", "xaaz"));
    EXPECT_EQ("-", ReplacedRegex("(\\w)\\1", "-", "xabz"));
    EXPECT_EQ("x-z", ReplacedRegex("(\\w)\\g{1}", "-", "xaaz"));
    EXPECT_EQ("x-z", ReplacedRegex("(\\w)\\g1", "-", "xaaz"));
    EXPECT_EQ("x-z", ReplacedRegex("(\\w)\\g{-1}", "-", "xaaz"));
    EXPECT_EQ("x-z", ReplacedRegex("(a|b(?1)c)", "-", "xbbaccz"));
    EXPECT_EQ("x-z", ReplacedRegex("(\\()?a(?(1)\\)|!)", "-", "x(a)z"));
}

TEST(PatternText, AlternativesAreOfTheTypedExpressionAlone) {
    EXPECT_EQ("xdogz", ReplacedRegex("cat|cow", "dog", "xcowz"));
    EXPECT_TRUE(Finds("cat|cow", "cow", kWholeCell | kTypedRegex));
    EXPECT_FALSE(Finds("cat|cow", "cows", kWholeCell | kTypedRegex));
}

TEST(PatternText, ClassesQuotesAndCommentsAreLeftAlone) {
    EXPECT_EQ("x-z", ReplacedRegex("[()\\]1]+", "-", "x()]1z"));
    EXPECT_EQ("x-z", ReplacedRegex("[[:digit:]]+", "-", "x12z"));
    EXPECT_EQ("x-z", ReplacedRegex("\\Q(\\E", "-", "x(z"));
    EXPECT_EQ("x-z", ReplacedRegex("\\Q(", "-", "x(z"));
    EXPECT_EQ("x-z", ReplacedRegex("a(?#a comment (of mine)b", "-", "xabz"));
    EXPECT_EQ("-]z", ReplacedRegex("[^]()]", "-", "x]z"));
}

TEST(PatternText, WhatIsNoExpressionMatchesNothingInAnyMode) {
    for (const char *typed : {"a)(b", "(a", "a)", "[a", "a\\", "*", "(?<n"}) {
        for (int mode = kWholeCell; mode <= kWholeWords; ++mode) {
            for (const char *text : {"a", "ab", "a)(b", "(a", "*"})
                EXPECT_FALSE(Finds(typed, text, mode | kTypedRegex)) << typed << " in " << text;
        }
    }
}

} // namespace
