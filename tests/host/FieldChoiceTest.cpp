#include "host/FieldChoice.h"

#include <gtest/gtest.h>

#include <string>

namespace {

void AddFields(CUIntArray &fields, const std::string &digits) {
    for (char digit : digits)
        fields.Add(static_cast<UINT>(digit - '0'));
}

// Fields by their digits; `flags` marks the shown positions with x.
std::string Choose(const std::string &displayed, const std::string &positions, const std::string &flags) {
    CArray<bool, bool> shown;
    for (char flag : flags)
        shown.Add(flag == 'x');
    CUIntArray shownNow, ordering, result;
    AddFields(shownNow, displayed);
    AddFields(ordering, positions);
    ChooseFields(shownNow, ordering, shown, result);
    std::string digits;
    for (int i = 0; i < result.GetSize(); ++i)
        digits += static_cast<char>('0' + result.GetAt(i));
    return digits;
}

TEST(FieldChoice, FieldTakenAwayLeavesTheOthersInTheirOrder) {
    EXPECT_EQ("20", Choose("210", "210", "x-x"));
}

TEST(FieldChoice, FieldNewlyShownComesToItsPlaceInTheFullOrdering) {
    EXPECT_EQ("3120", Choose("320", "3120", "xxxx"));
}

TEST(FieldChoice, FieldBeforeAllOthersComesFirst) {
    EXPECT_EQ("012", Choose("2", "012", "xxx"));
}

// Displayed 2, 1, 0; in the full ordering 3 follows 2.
TEST(FieldChoice, ShownFieldsKeepAnOrderThatTheFullOrderingDoesNotHave) {
    EXPECT_EQ("2310", Choose("210", "0123", "xxxx"));
}

TEST(FieldChoice, NothingChosenShowsNothing) {
    EXPECT_EQ("", Choose("012", "012", "---"));
}

TEST(FieldChoice, AllIsShownWhereNothingWas) {
    EXPECT_EQ("201", Choose("", "201", "xxx"));
}

} // namespace
