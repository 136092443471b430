#include "grid/UGEditMask.h"

#include <gtest/gtest.h>

namespace {

std::string Accepted(const char *mask, const char *characters) {
    CUGEditMask editMask;
    editMask.Set(mask);
    std::string accepted;
    for (const char *c = characters; *c != '\0'; ++c) {
        if (editMask.Accepts(0, *c))
            accepted += *c;
    }
    return accepted;
}

TEST(EditMaskTest, NullAndEmptySwitchTheMaskOff) {
    CUGEditMask mask;
    mask.Set("99");
    EXPECT_TRUE(mask.IsOn());
    mask.Set(nullptr);
    EXPECT_FALSE(mask.IsOn());
    mask.Set("");
    EXPECT_FALSE(mask.IsOn());
}

TEST(EditMaskTest, EachMaskCharacterAcceptsItsOwn) {
    const char *const all = "7 kmzZ-_";
    EXPECT_EQ("7 km", Accepted("#", all));
    EXPECT_EQ("7", Accepted("0", all));
    EXPECT_EQ("7 ", Accepted("9", all));
    EXPECT_EQ(" kmzZ", Accepted("?", all));
    EXPECT_EQ("7kmzZ", Accepted("A", all));
    EXPECT_EQ("kmzZ", Accepted("L", all));
    EXPECT_EQ("7 kmzZ", Accepted("a", all));
    EXPECT_EQ(all, Accepted("&", all));
    EXPECT_EQ(all, Accepted("C", all));
}

TEST(EditMaskTest, ABackslashMakesALiteralAndHasNoPosition) {
    CUGEditMask mask;
    mask.Set("99\\-99");
    EXPECT_EQ(5, mask.Length());
    EXPECT_EQ('-', mask.LiteralAt(2));
    EXPECT_EQ(0, mask.LiteralAt(1));
    EXPECT_EQ("12-34", mask.Reformat("1234"));
    mask.Set("\\9");
    EXPECT_EQ('9', mask.LiteralAt(0));
}

// Types as the edit box does: literals that stand already are passed, missing ones put in, and the text is written
// into the mask anew. Gives the text with the caret in it.
std::string Typed(const char *maskText, const std::string &before, const char *keys) {
    CUGEditMask mask;
    mask.Set(maskText);
    std::string text = before;
    size_t caret = text.find('|');
    text.erase(caret, 1);
    for (const char *key = keys; *key != '\0'; ++key) {
        const CUGEditMask::Place place = mask.PlaceOf(text, static_cast<int>(caret));
        if (!mask.Accepts(place.position, *key) || static_cast<int>(text.size()) >= mask.Length())
            continue;
        caret += place.passed;
        text.insert(caret, place.missing + *key);
        caret += place.missing.size() + 1;
        EXPECT_EQ(place.position + 1, static_cast<int>(caret));
        text = mask.Reformat(text);
    }
    return text.insert(caret, "|");
}

TEST(EditMaskTest, OneCharacterPassesAWholeRunOfLiterals) {
    EXPECT_EQ("(123) 456-7890|", Typed("(000) 000-0000", "|", "1234567890"));
    EXPECT_EQ("(123) 4|", Typed("(000) 000-0000", "(123|", "4"));
    EXPECT_EQ("<<1>>2|", Typed("\\<\\<0>>0", "|", "12"));
}

TEST(EditMaskTest, ALiteralThatStandsAlreadyIsPassed) {
    EXPECT_EQ("(9|12) 3", Typed("(000) 000-0000", "|(123", "9"));
    EXPECT_EQ("(123) 9|45", Typed("(000) 000-0000", "(123|) 45", "9"));
    EXPECT_EQ("(123) 9|45", Typed("(000) 000-0000", "(123)| 45", "9"));
    EXPECT_EQ("(123) 9|", Typed("(000) 000-0000", "(123)|", "9"));
}

TEST(EditMaskTest, TheMaskIsTheLimitOfTheLength) {
    EXPECT_EQ("12/34|", Typed("00/00", "|", "123456"));
    EXPECT_EQ("1|2/34", Typed("00/00", "1|2/34", "9"));
    EXPECT_EQ("12|", Typed("00kg", "|", "123")); // nothing can be typed behind: its literals are not put in
}

TEST(EditMaskTest, ALiteralThatLooksLikeInputIsPassedOnce) {
    EXPECT_EQ("+1 12|", Typed("+1 00", "|", "12"));
    EXPECT_EQ("+1 12", [] {
        CUGEditMask mask;
        mask.Set("+1 00");
        return mask.Reformat("+1 12");
    }());
}

TEST(EditMaskTest, ReformattingDropsWhatDoesNotFit) {
    CUGEditMask mask;
    mask.Set("99\\-99");
    EXPECT_EQ("12-34", mask.Reformat("1x2y34"));
    EXPECT_EQ("12-34", mask.Reformat("12-34"));
    EXPECT_EQ("12", mask.Reformat("12"));
    EXPECT_EQ("", mask.Reformat("xx"));
    EXPECT_EQ("12-34", mask.Reformat("123456"));
}

} // namespace
