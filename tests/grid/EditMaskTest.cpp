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
