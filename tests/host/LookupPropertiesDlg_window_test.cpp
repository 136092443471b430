// The host's dialog of a lookup table's properties, which the library asks for while it compiles a table.
#include "TestRegistry.h"
#include "WindowTestApp.h"

#include "host/LookupPropertiesDlg.h"
#include "host/Resource.h"
#include "lookup/LookupRegKey.h"

#include <gtest/gtest.h>

namespace {

constexpr int kBoxes[] = {IDC_LOOKUP_CASE, IDC_LOOKUP_EMPTY, IDC_LOOKUP_ENABLE, IDC_LOOKUP_SORT};

class LookupPropertiesDlgTest : public testing::Test {
protected:
    LookupPropertiesDlgTest() { CLookupRegKey::SetRootRegKey(m_registry.Root(), m_registry.Path()); }
    ~LookupPropertiesDlgTest() override { CLookupRegKey::SetRootRegKey(nullptr, ""); }

    // Clicks the box with this id, none for 0, and then the button; "1010" are the boxes as they came up.
    bool Ask(int box, int button) {
        m_shown.clear();
        WithDialog act([&](HWND dialog) {
            for (int id : kBoxes)
                m_shown += ::IsDlgButtonChecked(dialog, id) ? "1" : "0";
            if (box != 0)
                ::SendMessageA(::GetDlgItem(dialog, box), BM_CLICK, 0, 0);
            ::SendMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
        });
        return CLookupPropertiesDlg::Ask(m_properties, &m_host);
    }
    std::string Properties() const {
        std::string all;
        for (bool on : {m_properties.m_caseSensitive, m_properties.m_acceptEmptyCells,
                        m_properties.m_enableValidation, m_properties.m_sortMenuItems})
            all += on ? "1" : "0";
        return all;
    }

    TestRegistry m_registry;
    HostWindow m_host;
    CLookupProperties m_properties{true, false, true, false};
    std::string m_shown;
};

} // namespace

TEST_F(LookupPropertiesDlgTest, TheFirstTimeTheCallersPropertiesAreProposed) {
    EXPECT_TRUE(Ask(0, IDOK));
    EXPECT_EQ("1010", m_shown);
    EXPECT_EQ("1010", Properties());
}

TEST_F(LookupPropertiesDlgTest, EachBoxIsAPropertyOfItsOwn) {
    const char *const wanted[] = {"0010", "1110", "1000", "1011"};
    for (size_t i = 0; i < std::size(kBoxes); ++i) {
        m_properties = {true, false, true, false};
        CLookupRegKey().SetLookupTableProperties(true, false, true, false);
        EXPECT_TRUE(Ask(kBoxes[i], IDOK));
        EXPECT_EQ(wanted[i], Properties());
    }
}

TEST_F(LookupPropertiesDlgTest, WhatWasChosenLastIsProposedForTheNextTable) {
    EXPECT_TRUE(Ask(IDC_LOOKUP_SORT, IDOK));
    m_properties = {true, true, true, true};
    EXPECT_TRUE(Ask(0, IDOK));
    EXPECT_EQ("1011", m_shown);
    EXPECT_EQ("1011", Properties());
}

TEST_F(LookupPropertiesDlgTest, CancellingChangesNeitherThePropertiesNorTheNextProposal) {
    EXPECT_FALSE(Ask(IDC_LOOKUP_CASE, IDCANCEL));
    EXPECT_EQ("1010", Properties());
    m_properties = {true, true, true, true};
    EXPECT_TRUE(Ask(0, IDOK));
    EXPECT_EQ("1111", m_shown) << "nothing was stored";
}

TEST_F(LookupPropertiesDlgTest, TheBoxesAreNamedAsTheProperties) {
    std::string names;
    WithDialog act([&](HWND dialog) {
        for (int id : kBoxes)
            names += WindowText(::GetDlgItem(dialog, id)) + "|";
        ::SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    CLookupPropertiesDlg::Ask(m_properties, &m_host);
    EXPECT_EQ("&Case sensitive?|&Accept empty cells?|&Enable validation?|&Sort lookup menu items?|", names);
}
