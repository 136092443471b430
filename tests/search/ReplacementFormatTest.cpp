// What a typed expression and its format make of a cell is what the expression library makes of them.
#include "search/CellPattern.h"
#include "search/PatternText.h"

#include "SeededRandom.h"

#include <gtest/gtest.h>

#include <boost/regex.hpp>

using namespace Search;

namespace {

constexpr const char *kNoMatch = "(no match)";

std::string Ours(const std::string &typed, const std::string &format, const std::string &text) {
    const int mode = kAnywhere | kTypedRegex;
    const CellPattern pattern(RegexifyFindString(typed, mode), true);
    std::string replaced;
    if (!pattern.Matches(text))
        return kNoMatch;
    return pattern.ReplaceFirst(text, RegexifyReplaceString(format, typed, mode), &replaced)
               ? replaced
               : "(not replaced)";
}

std::string Librarys(const std::string &typed, const std::string &format, const std::string &text) {
    try {
        const boost::regex regex(typed);
        if (!boost::regex_search(text, regex))
            return kNoMatch;
        return boost::regex_replace(text, regex, format, boost::regex_constants::format_first_only);
    } catch (const std::runtime_error &) {
        return kNoMatch;
    }
}

#define EXPECT_AS_THE_LIBRARY(typed, format, text)                                                           \
    EXPECT_EQ(testing::PrintToString(Librarys(typed, format, text)),                                         \
              testing::PrintToString(Ours(typed, format, text)))                                             \
        << testing::PrintToString(std::string(typed)) << " by "                                              \
        << testing::PrintToString(std::string(format)) << " in "                                             \
        << testing::PrintToString(std::string(text))

TEST(ReplacementFormat, AGroupBeyondTheTypedOnesIsEmpty) {
    EXPECT_EQ("bob .com", Ours("(\\w+)@x", "$1 $2", "bob@x.com"));
    for (const char *format : {"[$2]", "[${2}]", "[\\2]", "[$9]", "[$12]", "[$99999999999]"})
        EXPECT_AS_THE_LIBRARY("(\\w+)@x", format, "bob@x.com");
    EXPECT_EQ("x[]z", Ours("ab", "[$1$2]", "xabz"));
}

TEST(ReplacementFormat, TheLastGroupIsTheLastTypedOne) {
    EXPECT_EQ("x[c]z", Ours("(a)b(c)", "[$+]", "xabcz"));
    EXPECT_EQ("x[]z", Ours("ab", "[$+]", "xabz"));
    EXPECT_EQ("x[c|c]z", Ours("(a)b(c)", "[$LAST_PAREN_MATCH|${LAST_PAREN_MATCH}]", "xabcz"));
    EXPECT_EQ("x[c{n]z", Ours("(a)b(c)", "[$+{n]", "xabcz"));
}

TEST(ReplacementFormat, TheGroupThatClosedLastIsATypedOne) {
    EXPECT_EQ("x[b]z", Ours("(b)", "[$^N]", "xbz"));
    EXPECT_EQ("x[ab]z", Ours("((a)b)", "[$^N]", "xabz"));
    EXPECT_EQ("x[b]z", Ours("(a)|(b)", "[$LAST_SUBMATCH_RESULT]", "xbz"));
    EXPECT_EQ("x[]z", Ours("ab", "[$^N${^^N}${LAST_SUBMATCH_RESULT}]", "xabz"));
    EXPECT_EQ("x\\u$1z", Ours("(a)(\\\\u\\$1)", "$^N", "xa\\u$1z")); // what it holds is no format
}

TEST(ReplacementFormat, TheMatchAndWhatStandsAroundItAreTheTypedExpressions) {
    for (const char *name : {"MATCH", "{MATCH}", "{^MATCH}", "&", "0", "{0}"})
        EXPECT_EQ("x[ab]yz", Ours("a(b)", std::string("[$") + name + "]", "xabyz")) << name;
    for (const char *name : {"PREMATCH", "{PREMATCH}", "{^PREMATCH}", "`"})
        EXPECT_EQ("x[x]yz", Ours("a(b)", std::string("[$") + name + "]", "xabyz")) << name;
    for (const char *name : {"POSTMATCH", "{POSTMATCH}", "{^POSTMATCH}", "'"})
        EXPECT_EQ("x[yz]yz", Ours("a(b)", std::string("[$") + name + "]", "xabyz")) << name;
}

TEST(ReplacementFormat, WhatIsNotFinishedAtItsEndStaysAsItWouldWithNothingBehindIt) {
    EXPECT_EQ("xq\\z", Ours("ab", "q\\", "xabz"));
    for (const char *format : {"$",     "${",    "${1",   "$+{", "$+{n", "\\",         "\\c",       "\\x",
                               "\\x{",  "\\x{4", "\\0",   "${^", "$^",   "${12MATCH}", "${12MATCH", "\\u",
                               "\\U$1", "\\c$1", "\\c\\", "$$1", "\\$1", "\\\\1"})
        EXPECT_AS_THE_LIBRARY("(a)(?<n>b)", format, "xabz");
}

// The names by which the pattern itself calls what stands around a match are none to the user.
TEST(ReplacementFormat, NamesThatWereNotTypedAreEmpty) {
    EXPECT_EQ("x[]z", Ours("ab", "[$+{_before}$+{_after}$+{n}]", "xabz"));
}

// No groups within looks ahead: the library leaves these set where it goes back past the look, which the
// pattern does more often than the typed expression alone.
std::string RandomExpression(SeededRandom *random, int depth) {
    static const char *const atoms[] = {"a",   "b",       "\\w",    ".",     "[ab]",  "1",   " ", "\\d",
                                        "\\1", "\\g{-1}", "\\k<n>", "(?=b)", "(?!a)", "\\b", "^", "$"};
    static const char *const openings[] = {"(", "(", "(", "(?<n>", "(?:", "(?|", "(?i:", "(?>"};
    static const char *const quantifiers[] = {"", "", "", "", "?", "*", "+", "+?", "??", "{2}"};
    std::string expression;
    for (int i = random->Between(1, 3); i > 0; --i) {
        if (depth > 0 && random->OneIn(2))
            expression += random->Of(openings) + RandomExpression(random, depth - 1) + ")";
        else
            expression += random->Of(atoms);
        expression += random->Of(quantifiers);
    }
    return random->OneIn(5) ? expression + "|" + RandomExpression(random, depth > 0 ? depth - 1 : 0)
                            : expression;
}

std::string RandomFormat(SeededRandom *random) {
    static const char *const pieces[] = {"a",
                                         "-",
                                         "1",
                                         "{",
                                         "}",
                                         "$",
                                         "$$",
                                         "$&",
                                         "$`",
                                         "$'",
                                         "$+",
                                         "$+{n}",
                                         "$+{m}",
                                         "$+{",
                                         "$^N",
                                         "${^N}",
                                         "${^^N}",
                                         "$0",
                                         "$1",
                                         "$2",
                                         "$3",
                                         "$4",
                                         "${1}",
                                         "${2}",
                                         "${5}",
                                         "${1",
                                         "$10",
                                         "$MATCH",
                                         "${MATCH}",
                                         "${^MATCH}",
                                         "$PREMATCH",
                                         "${^PREMATCH}",
                                         "$POSTMATCH",
                                         "${^POSTMATCH}",
                                         "$LAST_PAREN_MATCH",
                                         "${LAST_PAREN_MATCH}",
                                         "${^LAST_PAREN_MATCH}",
                                         "$LAST_SUBMATCH_RESULT",
                                         "${^LAST_SUBMATCH_RESULT}",
                                         "MATCH",
                                         "PREMATCH}",
                                         "\\1",
                                         "\\2",
                                         "\\3",
                                         "\\9",
                                         "\\0",
                                         "\\07",
                                         "\\n",
                                         "\\t",
                                         "\\x41",
                                         "\\x{41}",
                                         "\\x{",
                                         "\\x",
                                         "\\c",
                                         "\\cA",
                                         "\\e",
                                         "\\\\",
                                         "\\$",
                                         "\\l",
                                         "\\u",
                                         "\\L",
                                         "\\U",
                                         "\\E",
                                         "\\",
                                         "\\q",
                                         "&",
                                         "(?1x:y)",
                                         "^N"};
    std::string format;
    for (int i = random->Below(6); i > 0; --i)
        format += random->Of(pieces);
    return format;
}

TEST(ReplacementFormat, RandomExpressionsFormatsAndTextsComeOutAsTheLibraryMakesThem) {
    static const char characters[] = {'a', 'a', 'b', 'b', 'A', '1', ' ', '\\', '$', '\n'};
    SeededRandom random(7);
    int replaced = 0;
    for (int i = 0; i < 2000; ++i) {
        const std::string typed = RandomExpression(&random, 2);
        const std::string format = RandomFormat(&random);
        for (int each = 0; each < 4; ++each) {
            std::string text;
            for (int length = random.Below(8); length > 0; --length)
                text += random.Of(characters);
            const std::string expected = Librarys(typed, format, text);
            ASSERT_EQ(testing::PrintToString(expected), testing::PrintToString(Ours(typed, format, text)))
                << testing::PrintToString(typed) << " by " << testing::PrintToString(format) << " in "
                << testing::PrintToString(text);
            replaced += expected != kNoMatch;
        }
    }
    EXPECT_GT(replaced, 1000); // the code page decides what some letters are
}

// Finding and replacing agree on look aheads, which keep what they took.
TEST(ReplacementFormat, ALookAheadKeepsWhatItTook) {
    for (const char *text : {"12.", "1.", "x12.5", "1212."})
        EXPECT_AS_THE_LIBRARY("(?=(\\d+))\\1\\.", "[$1]", text);
}

TEST(ReplacementFormat, ConditionsAndCallsAreToTypedGroups) {
    for (const char *typed :
         {"(a)?(?(1)b|c)", "(a|b(?1)c)", "(a(?R)?b)", "(a(?0)?b)", "(?(R1)a|b)", "(a)(?(R1)x|b)",
          "(a)()()()()()()()()(b)\\g{10}", "(?(DEFINE)(?<n>b))a(?&n)", "(?<n>a)?(?(<n>)b|c)"}) {
        for (const char *text : {"ab", "c", "b", "xbaccz", "aabb", "abb"})
            EXPECT_AS_THE_LIBRARY(typed, "[$1]", text);
    }
}

// Within a larger pattern these would mean something else.
TEST(ReplacementFormat, WhatCannotBeMovedIsRefusedWithASentence) {
    for (const char *typed : {"x\\Ka", "a(*PRUNE)b", "a(*ACCEPT)"}) {
        EXPECT_EQ(".", WhyRefused(typed).substr(WhyRefused(typed).size() - 1)) << typed;
        EXPECT_EQ(kNoMatch, Ours(typed, "", "xab")) << typed;
    }
    for (const char *typed : {"a", "a(", "\\\\K", "[\\K]", "\\Q\\K\\E", "(?#\\K)a", "(?x)a#\\K", ""})
        EXPECT_EQ("", WhyRefused(typed)) << typed;
}

TEST(ReplacementFormat, CommentsAndQuotesEndWithTheTypedExpression) {
    for (const char *typed :
         {"(?x)a b # a comment", "(?x) a # (one\n b", "(?x)(a) # \\1 [ (\n\\1", "((?x)a # b)\n)b",
          "(?x:a # )\n)b #", "(?-x)a#", "(?x)a(?-x) #b", "(?x)[#]a", "(?x)\\#a", "(?x)a\\Q#b", "ab\\E",
          "a\\Eb", "\\Qab\\E\\E", "\\Qa\\", "\\Q", "(?x)( ?:a)b # c", "[[:digit:]#]"}) {
        for (const char *text : {"ab", "aa", "a#b", "a #b", "#a", "a#", "abE", "aEb", "a\\", "xab #"})
            EXPECT_AS_THE_LIBRARY(typed, "[$1]", text);
    }
}

} // namespace
