// The order of virtual operations: hosts and the library are built apart.
#include "VirtualOrder.h"

#include "grid/UGCtrl.h"
#include "grid/UGDataSource.h"

#include <gtest/gtest.h>

namespace {

using C = CUGCtrl;
using S = CUGDataSource;
using T = CUGCellType;

TEST(VirtualOrderTest, NotificationsOfTheControl) {
    EXPECT_EQ(
        "in order",
        OrderOf(&C::OnSetup, &C::OnCanMove, &C::OnCanViewMove, &C::OnHitBottom, &C::OnHitTop,
                &C::OnCanSizeCol, &C::OnColSizing, &C::OnColSized, &C::OnCanSizeRow, &C::OnRowSizing,
                &C::OnRowSized, &C::OnCanSizeTopHdg, &C::OnCanSizeSideHdg, &C::OnTopHdgSizing,
                &C::OnSideHdgSizing, &C::OnColChange, &C::OnRowChange, &C::OnCellChange, &C::OnLeftColChange,
                &C::OnTopRowChange, &C::OnLClicked, &C::OnRClicked, &C::OnDClicked, &C::OnTH_LClicked,
                &C::OnTH_RClicked, &C::OnTH_DClicked, &C::OnSH_LClicked, &C::OnSH_RClicked, &C::OnSH_DClicked,
                &C::OnCB_LClicked, &C::OnCB_RClicked, &C::OnCB_DClicked, &C::OnKeyDown, &C::OnKeyUp,
                &C::OnCharDown, &C::OnGetCell, &C::OnSetCell, &C::OnDataSourceNotify, &C::OnCellTypeNotify,
                &C::OnEditStart, &C::OnEditVerify, &C::OnEditFinish, &C::OnEditContinue, &C::OnMenuCommand,
                &C::OnMenuStart, &C::UnusedNotification, &C::OnVScrollHint, &C::OnHScrollHint,
                &C::OnDragEnter, &C::OnDragOver, &C::OnDragDrop, &C::OnDrawSetup, &C::OnSortEvaluate,
                &C::OnSetupEditWindow, &C::RecPassesFilter, &C::GetUseFilteredRecords, &C::OnTabSelected));
}

TEST(VirtualOrderTest, OperationsOfADataSource) {
    EXPECT_EQ("in order",
              OrderOf(&S::Open, &S::UnusedOperationA, &S::Close, &S::Save, &S::SaveAs, &S::GetNumRows,
                      &S::GetNumCols, &S::GetColName, &S::GetColType, &S::AppendRow, &S::InsertRow,
                      &S::AppendCol, &S::InsertCol, &S::DeleteRow, &S::DeleteCol, &S::DeleteCell, &S::Empty,
                      &S::GetCell, &S::SetCell, &S::FindFirst, &S::FindNext, &S::SortBy, &S::SortByCol,
                      &S::SetOption, &S::GetOption, &S::RequestMoreRows, &S::GetFieldWidth,
                      &S::GetFieldDecimals, &S::InsertRows, &S::DeleteRows, &S::StartTransaction,
                      &S::EndTransaction, &S::Undo, &S::Redo, &S::CanUndo, &S::CanRedo));
    // Only the destructor, which takes two places, stands in front.
    EXPECT_EQ(static_cast<long>(2 * sizeof(void *)), VtableOffset(&S::Open));
}

TEST(VirtualOrderTest, TheOwnStoreAddsItsOperationsBehind) {
    EXPECT_EQ("in order", OrderOf(&S::CanRedo, &CUGMem::UnusedOperationB, &CUGMem::DeleteColumnCells,
                                  &CUGMem::UnusedOperationC));
}

TEST(VirtualOrderTest, AMemberThatIsOutOfOrderIsNamed) {
    EXPECT_EQ("member 1 stands at 16 behind 24", OrderOf(&S::UnusedOperationA, &S::Open));
}

} // namespace
