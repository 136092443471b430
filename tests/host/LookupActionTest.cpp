#include "host/LookupAction.h"

#include "lookup/InvalidCodeAction.h"

#include <gtest/gtest.h>

TEST(LookupActionTest, WhatTheUserChoosesMeansTheSameNowAndAtTheNextStart) {
    for (int kept : {LookupAction::kReject, LookupAction::kReplace, LookupAction::kPrepend, -1, 3}) {
        EXPECT_EQ(InvalidCodeActionAtStart(true, kept),
                  InvalidCodeActionOfDialog(true, LookupAction::ForDialog(kept)))
            << kept;
        EXPECT_EQ(kInvalidCodeNone, InvalidCodeActionOfDialog(false, LookupAction::ForDialog(kept)));
    }
}

TEST(LookupActionTest, TheKeptIndexIsTheOneOfTheStart) {
    EXPECT_EQ(kInvalidCodeReject, InvalidCodeActionAtStart(true, LookupAction::kReject));
    EXPECT_EQ(kInvalidCodeReplace, InvalidCodeActionAtStart(true, LookupAction::kReplace));
    EXPECT_EQ(kInvalidCodePrepend, InvalidCodeActionAtStart(true, LookupAction::kPrepend));
}
