// What the screen tells apart, what it leaves to the expression, and that it never tells otherwise than that.
#include "search/PatternScreen.h"
#include "search/CellPattern.h"
#include "search/PatternText.h"

#include "SeededRandom.h"

#include <gtest/gtest.h>

#include <boost/regex.hpp>

#include <cstdlib>

using namespace Search;

namespace {

bool MayMatch(const std::string &pattern, const std::string &text, bool matchCase = true) {
    return PatternScreen(pattern, matchCase).MayMatch(text.data(), text.size());
}

std::string Typed(const char *regex, int mode = kAnywhere) {
    return RegexifyFindString(regex, mode | kTypedRegex);
}

TEST(PatternScreen, ClassesAndCountsAreTold) {
    const std::string pattern = Typed("[0-9]{3}-[a-z]+");
    EXPECT_TRUE(MayMatch(pattern, "no 123-a"));
    EXPECT_FALSE(MayMatch(pattern, "no 12-a"));
    EXPECT_FALSE(MayMatch(pattern, "123-A"));
    EXPECT_TRUE(MayMatch(pattern, "123-A", false));
    EXPECT_FALSE(MayMatch(Typed("a{2,3}", kWholeCell), "a"));
    EXPECT_TRUE(MayMatch(Typed("a{2,3}", kWholeCell), "aaa"));
    EXPECT_FALSE(MayMatch(Typed("a{2,3}", kWholeCell), "aaaa"));
    EXPECT_TRUE(MayMatch(Typed("a{2,}", kWholeCell), "aaaaa"));
}

TEST(PatternScreen, WildcardsAloneAreTold) {
    EXPECT_FALSE(MayMatch(RegexifyFindString(ConvertWildcardsToRegex("*#?#"), kWholeCell), "a1b"));
    EXPECT_TRUE(MayMatch(RegexifyFindString(ConvertWildcardsToRegex("*#?#"), kWholeCell), "a1b2"));
    EXPECT_FALSE(MayMatch(RegexifyFindString(ConvertWildcardsToRegex("???"), kAnywhere), "ab"));
}

TEST(PatternScreen, PlacesBetweenCharactersAreTold) {
    EXPECT_FALSE(MayMatch(Typed("^\\s*$"), "x"));
    EXPECT_TRUE(MayMatch(Typed("^\\s*$"), "  "));
    EXPECT_TRUE(MayMatch(Typed("^b"), "a\nb"));
    EXPECT_TRUE(MayMatch(Typed("a$"), "a\r\nb"));
    EXPECT_FALSE(MayMatch(Typed("\\bcat\\b"), "cats"));
    EXPECT_FALSE(MayMatch(Typed("\\Bcat"), "a cat"));
    EXPECT_FALSE(MayMatch(Typed("b\\z"), "b\n"));
    EXPECT_TRUE(MayMatch(Typed("b\\Z"), "b\n"));
    EXPECT_FALSE(MayMatch(Typed("ca[tr]", kWholeWords), "carts"));
    EXPECT_TRUE(MayMatch(Typed("ca[tr]", kWholeWords), "a car"));
    EXPECT_FALSE(MayMatch(Typed("\\<cat"), "a concat"));
    EXPECT_TRUE(MayMatch(Typed("\\<cat"), "a cats"));
    EXPECT_FALSE(MayMatch(Typed("cat\\>"), "cats"));
    EXPECT_TRUE(MayMatch(Typed("cat\\>"), "concat on"));
    EXPECT_FALSE(MayMatch(Typed("\\< "), " a"));
    EXPECT_FALSE(MayMatch(Typed("\\`b"), "ab"));
    EXPECT_FALSE(MayMatch(Typed("a\\'"), "ab"));
    EXPECT_TRUE(MayMatch(Typed("\\`ab\\'"), "ab"));
}

TEST(PatternScreen, AlternativesAndGroupsAreTold) {
    EXPECT_FALSE(MayMatch(Typed("cat|(?:co)+w|", kWholeCell), "cow cow"));
    EXPECT_TRUE(MayMatch(Typed("cat|(?:co)+w", kWholeCell), "cocow"));
    EXPECT_TRUE(MayMatch(Typed("()*", kWholeCell), ""));
    EXPECT_FALSE(MayMatch(Typed("()*", kWholeCell), "a"));
}

TEST(PatternScreen, OptionsCodesAndQuotedTextAreTold) {
    EXPECT_TRUE(MayMatch(Typed("(?i)cat"), "a CAT"));
    EXPECT_FALSE(MayMatch(Typed("(?i)cat"), "a COW"));
    EXPECT_TRUE(MayMatch(Typed("a(?i:b)(?-s).", kWholeCell), "aBc"));
    EXPECT_FALSE(MayMatch(Typed("a(?i:b)", kWholeCell), "ac"));
    EXPECT_TRUE(MayMatch(Typed("\\x41\\x{42}"), "AB"));
    EXPECT_FALSE(MayMatch(Typed("\\x41\\x{42}"), "AC"));
    EXPECT_TRUE(MayMatch(Typed("\\Q(a+\\E"), "x(a+)"));
    EXPECT_FALSE(MayMatch(Typed("\\Q(a+\\E"), "aa"));
}

TEST(PatternScreen, WhatIsNotToldIsTakenWider) {
    EXPECT_TRUE(MayMatch(Typed("(a|b)\\1", kWholeCell), "ab")); // and the expression says no
    EXPECT_FALSE(MayMatch(Typed("(a|b)\\1", kWholeCell), "cc"));
    EXPECT_TRUE(MayMatch(Typed("(?=x)a", kWholeCell), "a"));
    EXPECT_FALSE(MayMatch(Typed("(?=x)a", kWholeCell), "b")); // what follows what is only looked at is told
    EXPECT_TRUE(MayMatch(Typed("[[.a.]b]", kWholeCell), "c"));
}

TEST(PatternScreen, WhereTheMeaningIsNotKnownEveryTextMayMatch) {
    for (const char *regex : {"(?x)a", "a(?#comment)b", "\\x4", "\\Qa\\E+", "(a)?(?(1)b|c)", "(a|b(?1)c)", "a*+*",
                              "(?:(?:a{100}){100}){100}"}) {
        const PatternScreen screen(Typed(regex), true);
        EXPECT_FALSE(screen.Knows()) << regex;
        EXPECT_TRUE(MayMatch(Typed(regex), "zzz")) << regex;
    }
    EXPECT_TRUE(PatternScreen(Typed("a"), true).Knows());
}

// Where the places of "a" so far make too many states, the expression decides.
// Each repetition of the outermost group would cost a day, if what is empty were repeated.
TEST(PatternScreen, RepeatedNothingIsNothing) {
    std::string nothing = "(?:)";
    for (int i = 0; i < 6; ++i)
        nothing = "(?:" + nothing + "{1000})";
    PatternScreen screen("a" + nothing + "b", true);
    EXPECT_TRUE(screen.Knows());
    EXPECT_TRUE(screen.MayMatch("ab", 2));
    EXPECT_FALSE(screen.MayMatch("b", 1));
}

TEST(PatternScreen, AFullTableLeavesTheAnswerToTheExpression) {
    const CellPattern pattern(Typed("a.{14}b"), true);
    SeededRandom random(1);
    int matches = 0;
    for (int i = 0; i < 3000; ++i) {
        std::string text;
        while (text.size() < 40)
            text += random.OneIn(2) ? 'a' : 'c';
        if (random.OneIn(2))
            text[random.Between(15, 39)] = 'b';
        bool expected = false;
        for (size_t at = 15; at < text.size(); ++at)
            expected = expected || (text[at] == 'b' && text[at - 15] == 'a');
        ASSERT_EQ(expected, pattern.Matches(text)) << text;
        matches += expected;
    }
    EXPECT_GT(matches, 500);
}

// Patterns at random, most of which compile.
class PatternMaker {
public:
    explicit PatternMaker(SeededRandom *random) : m_random(random) {}

    std::string Make() {
        if (m_random->OneIn(10))
            return Soup();
        return Choice(3);
    }

private:
    std::string Choice(int depth) {
        std::string choice = Sequence(depth);
        while (m_random->OneIn(5))
            choice += "|" + Sequence(depth);
        return choice;
    }
    std::string Sequence(int depth) {
        std::string sequence;
        for (int i = m_random->Between(m_random->OneIn(8) ? 0 : 1, 4); i > 0; --i)
            sequence += m_random->OneIn(7) ? Place() : Atom(depth) + Quantifier();
        return sequence;
    }
    std::string Atom(int depth) {
        if (depth > 0 && m_random->OneIn(4)) {
            static const char *const openings[] = {"(",   "(",   "(",     "(?:",  "(?>",  "(?<n>",
                                                   "(?=", "(?!", "(?'m'", "(?i:", "(?-i:"};
            return m_random->Of(openings) + Choice(depth - 1) + ")";
        }
        static const char *const atoms[] = {
            "a",      "b",      "A",     "1",       "_",        " ",        "\n",           "\r",
            "\xe9",   ".",      ".",     "\\d",     "\\w",      "\\s",      "\\W",          "\\D",
            "\\S",    "\\n",    "\\.",   "\\l",     "\\u",      "\\h",      "\\v",          "[ab]",
            "[^a]",   "[a-c1]", "[]a]",  "[^]a]",   "[a\\]]",   "[\\w.]",   "[[:digit:]b]", "\\1",
            "\\g{1}", "\\R",    "\\x61", "\\Qb\\E", "[[.a.]1]", "[[=a=]1]", "\\-",          "]"};
        return m_random->Of(atoms);
    }
    std::string Quantifier() {
        static const char *const quantifiers[] = {"*",  "+",   "?",     "*?",     "+?",   "??", "*+",
                                                  "++", "{2}", "{1,2}", "{0,1}?", "{2,}", "{0}"};
        return m_random->OneIn(3) ? m_random->Of(quantifiers) : "";
    }
    std::string Place() {
        static const char *const places[] = {
            "^",       "$",        "\\A",    "\\z",    "\\Z",  "\\b",   "\\B",   "\\<", "\\>",   "\\`",
            "(?!\\w)", "(?<!\\w)", "(?<=a)", "(?<!b)", "(?i)", "(?-i)", "(?#x)", "\\K", "(?-s)", "(?m)"};
        return m_random->Of(places);
    }
    std::string Soup() {
        static const char *const pieces[] = {"a", "b", "(", ")", "[", "]", "{",  "}", "1", ",",
                                             "|", "*", "+", "?", "^", "$", "\\", ".", "-", ":"};
        std::string soup;
        for (int i = m_random->Between(0, 7); i > 0; --i)
            soup += m_random->Of(pieces);
        return soup;
    }

    SeededRandom *m_random;
};

std::string RandomText(SeededRandom *random) {
    static const char characters[] = {'a',  'a', 'b', 'b', 'A',    '1',    '_',  ' ',  '\n',
                                      '\r', '.', '-', ']', '\xe9', '\xc9', '\0', '\f', '\x85'};
    std::string text;
    for (int i = random->Below(8); i > 0; --i)
        text += random->Of(characters);
    return text;
}

uint32_t Setting(const char *name, uint32_t otherwise) {
    const char *value = std::getenv(name);
    return value != nullptr ? static_cast<uint32_t>(std::strtoul(value, nullptr, 10)) : otherwise;
}

// Every pattern as it is and in each match mode, with and without case, against the expression alone.
// ORVANE_PATTERNS_SEED and ORVANE_PATTERNS_COUNT choose another run.
TEST(PatternScreen, TheAnswerIsTheExpressionsForRandomPatternsAndTexts) {
    SeededRandom random(Setting("ORVANE_PATTERNS_SEED", 1));
    PatternMaker maker(&random);
    int known = 0, compiled = 0, matches = 0, screened = 0;
    for (uint32_t left = Setting("ORVANE_PATTERNS_COUNT", 1500); left > 0; --left) {
        const std::string typed = maker.Make();
        const int mode = random.Between(kWholeCell - 1, kWholeWords);
        const std::string pattern = mode < kWholeCell ? typed : RegexifyFindString(typed, mode | kTypedRegex);
        const bool matchCase = !random.OneIn(3);
        boost::regex plain;
        try {
            plain.assign(pattern, matchCase ? boost::regex::perl : boost::regex::perl | boost::regex::icase);
        } catch (const boost::regex_error &) {
            EXPECT_FALSE(CellPattern(pattern, matchCase).Matches("a"));
            continue;
        }
        const CellPattern tried(pattern, matchCase);
        PatternScreen screen(pattern, matchCase);
        ++compiled;
        known += screen.Knows();
        for (int i = 0; i < 30; ++i) {
            const std::string text = RandomText(&random);
            bool expected = false;
            try {
                expected = boost::regex_match(text, plain);
            } catch (const std::runtime_error &) {
            }
            ASSERT_EQ(expected, tried.Matches(text))
                << "pattern " << testing::PrintToString(pattern) << " case " << matchCase << " text "
                << testing::PrintToString(text);
            matches += expected;
            screened += !screen.MayMatch(text.data(), text.size());
        }
    }
    EXPECT_GT(known * 2, compiled);
    EXPECT_GT(matches, compiled);
    EXPECT_GT(screened, compiled);
}

} // namespace
