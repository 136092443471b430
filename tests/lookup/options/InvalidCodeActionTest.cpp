#include "lookup/InvalidCodeAction.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Actions(int (*map)(bool, int), bool validate) {
    std::string all;
    for (int index : {-1, 0, 1, 2, 3, 99})
        all += std::to_string(map(validate, index)) + " ";
    return all;
}

} // namespace

TEST(InvalidCodeActionTest, AtStartOneReplacesAndTwoPrepends) {
    EXPECT_EQ("0 0 2 3 0 0 ", Actions(InvalidCodeActionAtStart, true));
}

TEST(InvalidCodeActionTest, OfTheDialogOnePrependsAndTwoReplaces) {
    EXPECT_EQ("0 0 3 2 0 0 ", Actions(InvalidCodeActionOfDialog, true));
}

TEST(InvalidCodeActionTest, WithoutValidationThereIsNoAction) {
    EXPECT_EQ("1 1 1 1 1 1 ", Actions(InvalidCodeActionAtStart, false));
    EXPECT_EQ("1 1 1 1 1 1 ", Actions(InvalidCodeActionOfDialog, false));
}
