#include "lookup/ScramblePassword.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Scrambled(const char *text) {
    CString password(text);
    EXPECT_TRUE(ScramblePassword(password));
    std::string hex;
    for (int i = 0; i < password.GetLength(); ++i) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned char>(password[i]));
        hex += (i > 0 ? " " : "") + std::string(digits);
    }
    return hex;
}

} // namespace

TEST(ScramblePasswordTest, AnEmptyTextIsRefused) {
    CString empty;
    EXPECT_FALSE(ScramblePassword(empty));
    EXPECT_STREQ("", empty);
}

// Padding adds i modulo 3 to the character before:
//   i     0   1     2     3     4     5     6     7
//   s     97  97+1  98+2  100+0 100+1 101+2 103+0 103+1
//       = 97  98    100   100   101   103   103   104
// out[i] is twice s[7 - i], and one for every s[j], j from i to 6, that is like s[i + 1]:
//   i        0        1        2        3        4        5        6        7
//   2 s      208      206      206      202      200      200      196      194
//   like     98       100      100      101      103      103      104      -
//   at j     1        2,3      2,3      4        5,6      5,6      none
//   out      209      208      208      203      202      202      196      194
TEST(ScramblePasswordTest, OneCharacterIsPaddedToEightBytes) {
    EXPECT_EQ("D1 D0 D0 CB CA CA C4 C2", Scrambled("a"));
}

// s = 49 50 51 52 53 54 55 56: every s[i + 1] is found once, at j = i + 1, which for i = 6 lies beyond the
// last j.
//   2 s      112 110 108 106 104 102 100 98
//   out      113 111 109 107 105 103 100 98
TEST(ScramblePasswordTest, EightDifferentCharacters) {
    EXPECT_EQ("71 6F 6D 6B 69 67 64 62", Scrambled("12345678"));
}

// s is 65 eight times: 7, 6, 5, 4, 3, 2 and 1 positions from i to 6 hold it, and none is counted for i = 7.
//   2 s = 130; out = 137 136 135 134 133 132 131 130
TEST(ScramblePasswordTest, RepeatedCharactersAreCounted) {
    EXPECT_EQ("89 88 87 86 85 84 83 82", Scrambled("AAAAAAAA"));
}

// s = 97 98 99 99+0 99+1 100+2 102+0 102+1, i from 3 on being padded:
//     97 98 99 99 100 102 102 103
//   2 s      206 204 204 200 198 198 196 194
//   at j     1   2,3 2,3 4   5,6 5,6 none
//   out      207 206 206 201 200 200 196 194
TEST(ScramblePasswordTest, PaddingGoesOnFromTheLastCharacter) {
    EXPECT_EQ("CF CE CE C9 C8 C8 C4 C2", Scrambled("abc"));
}

TEST(ScramblePasswordTest, WhatIsBeyondEightCharactersDoesNotCount) {
    EXPECT_EQ(Scrambled("12345678"), Scrambled("12345678910"));
}

TEST(ScramblePasswordTest, CaseCounts) {
    EXPECT_NE(Scrambled("secret"), Scrambled("Secret"));
}

// "a" is padded with "b" first. And characters 128 apart are alike when doubled.
TEST(ScramblePasswordTest, DifferentPasswordsMayScrambleAlike) {
    EXPECT_EQ(Scrambled("a"), Scrambled("ab"));
    EXPECT_EQ(Scrambled("12345678"), Scrambled("\xB1\xB2\xB3\xB4\xB5\xB6\xB7\xB8"));
}

// s[1] is 128, twice that is 0, and nothing is counted for i = 6: the text ends there.
TEST(ScramblePasswordTest, AZeroByteShortensTheResult) {
    EXPECT_EQ("71 6F 6D 6B 69 67", Scrambled("1\x80"
                                             "345678"));
}

// s = 255, then 255 + 1 = 0 in eight bits, then 2 2 3 5 5 6.
//   2 s      12 10 10 6 4 4 0 254
//   like     0  2  2  3 5 5 6
//   at j     1  2,3 2,3 4 5,6 5,6 none: out[6] is 0
//   out      13 12 12 7 6 6
TEST(ScramblePasswordTest, PaddingCountsInEightBits) {
    EXPECT_EQ("0D 0C 0C 07 06 06", Scrambled("\xFF"));
}
