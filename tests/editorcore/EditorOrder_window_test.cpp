// The order of virtual operations that hosts are built against.
#include "VirtualOrder.h"

#include "editorcore/EditorCore.h"

#include <gtest/gtest.h>

namespace {

using A = CVAppInterface;
using O = CVEditorOptions;
using E = CEditorCore;

TEST(VirtualOrderTest, ServicesOfTheHost) {
    EXPECT_EQ("in order",
              OrderOf(&A::ReservedHostOperation1, &A::ReservedHostOperation2, &A::ReservedHostOperation3,
                      &A::ReservedHostOperation4, &A::ReservedHostOperation5, &A::SetEditorTitle,
                      &A::OnGridHotKey, &A::LoadXParmsSet, &A::GetAppTitle, &A::CheckAbort,
                      &A::CreateDataSource, &A::ShowFileInformation, &A::PromptSaveAs,
                      &A::ReservedHostOperation6, &A::PromptFieldOrder, &A::PromptFieldVisibility,
                      &A::PromptXParms, &A::ShowFindDialog, &A::ShowReplaceDialog, &A::GetEditorOptions,
                      &A::GetDefaultFieldWidths, &A::EditLookupTableProperties, &A::GetLookupOptions,
                      &A::EditLookupUserOptions, &A::EditLookupAdminOptions, &A::SetDefaultFieldWidths,
                      &A::EditFilter, &A::SelectFilter, &A::DoWaitCursor, &A::ShowMessage));
    EXPECT_EQ(0, VtableOffset(&A::ReservedHostOperation1));
}

TEST(VirtualOrderTest, OptionsOfTheHost) {
    EXPECT_EQ("in order",
              OrderOf(&O::GetCellFont, &O::GetHeadingFont, &O::SetCellFont, &O::SetHeadingFont,
                      &O::GetCellTextColour, &O::GetCellHighlightColour, &O::ReservedOption1,
                      &O::ReservedOption2, &O::GetUndoLevels, &O::ReservedOption3, &O::ReservedOption4,
                      &O::ReservedOption5, &O::ReservedOption6, &O::ReservedOption7,
                      &O::GetMaxDisplayColWidth, &O::ReservedOption8, &O::IsEnterKeyTab, &O::SetEnterKeyTab,
                      &O::ReservedOption9, &O::ReservedOption10, &O::ReservedOption11,
                      &O::IsRightJustifyingNumbers, &O::IsRightJustifyingText, &O::ReservedOption12,
                      &O::SetGridLines, &O::GetGridLines));
    EXPECT_EQ(0, VtableOffset(&O::GetCellFont));
}

TEST(VirtualOrderTest, OperationsThatTheEditorAddsToTheGrid) {
    EXPECT_EQ("in order",
              OrderOf(&CUGCtrl::OnTabSelected, &E::IsUsingFilteredRecords, &E::ReservedEditorOperation1,
                      &E::IsFilterAttached, &E::ReservedEditorOperation2, &E::LoadData, &E::SetCustomOptions,
                      &E::OnParentActivate, &E::SetTextAlignment));
}

} // namespace
