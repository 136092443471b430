// The notifications as the base class answers them: nothing happens and everything is allowed.
#include "grid/UGCtrl.h"

void CUGCtrl::OnSetup() {}

int CUGCtrl::OnCanMove(int, long, int, long) {
    return 1;
}

int CUGCtrl::OnCanViewMove(int, long, int, long) {
    return 1;
}

void CUGCtrl::OnHitBottom(long, long, long) {}

void CUGCtrl::OnHitTop(long, long) {}

int CUGCtrl::OnCanSizeCol(int) {
    return 1;
}

void CUGCtrl::OnColSizing(int, int *) {}

void CUGCtrl::OnColSized(int, int *) {}

int CUGCtrl::OnCanSizeRow(long) {
    return 1;
}

void CUGCtrl::OnRowSizing(long, int *) {}

void CUGCtrl::OnRowSized(long, int *) {}

int CUGCtrl::OnCanSizeTopHdg() {
    return 1;
}

int CUGCtrl::OnCanSizeSideHdg() {
    return 1;
}

int CUGCtrl::OnTopHdgSizing(int *) {
    return 1;
}

int CUGCtrl::OnSideHdgSizing(int *) {
    return 1;
}

void CUGCtrl::OnColChange(int, int) {}

void CUGCtrl::OnRowChange(long, long) {}

void CUGCtrl::OnCellChange(int, int, long, long) {}

void CUGCtrl::OnLeftColChange(int, int) {}

void CUGCtrl::OnTopRowChange(long, long) {}

void CUGCtrl::OnLClicked(int, long, int, RECT *, POINT *, int) {}

void CUGCtrl::OnRClicked(int, long, int, RECT *, POINT *, int) {}

void CUGCtrl::OnDClicked(int, long, RECT *, POINT *, int) {}

void CUGCtrl::OnTH_LClicked(int, int) {}

void CUGCtrl::OnTH_RClicked(int, int) {}

void CUGCtrl::OnTH_DClicked(int) {}

void CUGCtrl::OnSH_LClicked(long, int) {}

void CUGCtrl::OnSH_RClicked(long, int) {}

void CUGCtrl::OnSH_DClicked(long) {}

void CUGCtrl::OnCB_LClicked(int) {}

void CUGCtrl::OnCB_RClicked(int) {}

void CUGCtrl::OnCB_DClicked() {}

void CUGCtrl::OnKeyDown(UINT *, int) {}

void CUGCtrl::OnKeyUp(UINT *, int) {}

void CUGCtrl::OnCharDown(UINT *, int) {}

void CUGCtrl::OnGetCell(int, long, CUGCell *) {}

int CUGCtrl::OnSetCell(int, long, CUGCell *) {
    return 1;
}

void CUGCtrl::OnDataSourceNotify(int, long, long) {}

void CUGCtrl::OnCellTypeNotify(long, int, long, long, LPARAM) {}

int CUGCtrl::OnEditStart(int, long, CEdit *) {
    return 1;
}

int CUGCtrl::OnEditVerify(int, long, CEdit *, UINT *) {
    return 1;
}

int CUGCtrl::OnEditFinish(int, long, CEdit *) {
    return 1;
}

int CUGCtrl::OnEditContinue(int, long, int *, long *) {
    return 1;
}

void CUGCtrl::OnMenuCommand(int, long, int, int) {}

int CUGCtrl::OnMenuStart(int, long, int) {
    return 1;
}

int CUGCtrl::UnusedNotification(long, long, long) {
    return 1;
}

int CUGCtrl::OnVScrollHint(long, int, CUGHint *) {
    return 1;
}

int CUGCtrl::OnHScrollHint(int, int, CUGHint *) {
    return 1;
}

DROPEFFECT CUGCtrl::OnDragEnter(COleDataObject *) {
    return DROPEFFECT_NONE;
}

DROPEFFECT CUGCtrl::OnDragOver(COleDataObject *, int, long) {
    return DROPEFFECT_NONE;
}

DROPEFFECT CUGCtrl::OnDragDrop(COleDataObject *, int, long) {
    return DROPEFFECT_NONE;
}

void CUGCtrl::OnDrawSetup(CDC *, int) {}

int CUGCtrl::OnSortEvaluate(CUGCell *a, CUGCell *b) {
    return UGCompareCells(a, b);
}

int CUGCtrl::OnSetupEditWindow(int, long, RECT *, CUGCell *, DWORD *, int) {
    return 0;
}

bool CUGCtrl::RecPassesFilter(long) {
    return true;
}

bool CUGCtrl::GetUseFilteredRecords() {
    return false;
}

void CUGCtrl::OnTabSelected(long) {}
