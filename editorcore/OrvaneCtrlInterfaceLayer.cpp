#include "editorcore/OrvaneCtrlInterfaceLayer.h"

IMPLEMENT_DYNAMIC(CUGOrvaneCtrlInterfaceLayer, CUGCtrl)

CEdit *CUGOrvaneCtrlInterfaceLayer::GetEditControl() {
    CEdit *edit = CUGCtrl::GetEditControl();
    if (edit == nullptr || !edit->IsKindOf(RUNTIME_CLASS(CEdit)) || !::IsWindow(edit->GetSafeHwnd()))
        return nullptr;
    return edit;
}

bool CUGOrvaneCtrlInterfaceLayer::IsInMultipleSelection() {
    return CUGCtrl::IsInMultipleSelection();
}

int CUGOrvaneCtrlInterfaceLayer::GetCurrentSelection(int *startCol, long *startRow, int *endCol, long *endRow) {
    return m_GI.m_selection.GetBounds(startCol, startRow, endCol, endRow) ? GRID_SUCCESS : GRID_ERROR;
}

int CUGOrvaneCtrlInterfaceLayer::GetDataColNumber(int gridCol) {
    return gridCol < 0 ? -1 : CUGCtrl::GetDataColNumber(gridCol);
}

int CUGOrvaneCtrlInterfaceLayer::SetColTranslation(int gridCol, int dataCol) {
    return CUGCtrl::SetColTranslation(gridCol, dataCol);
}

// As shown: the fields' fonts and types come from the layers.
int CUGOrvaneCtrlInterfaceLayer::BestFit(int firstCol, int lastCol, int rowsToScan) {
    return FitColumns(firstCol, lastCol, rowsToScan, &CUGCtrl::GetCell);
}

int CUGOrvaneCtrlInterfaceLayer::SetDefaultFont(CFont *font) {
    return CUGCtrl::SetDefaultFont(font);
}

CDC *CUGOrvaneCtrlInterfaceLayer::GetGridDC() {
    return CUGCtrl::GetGridDC();
}

int CUGOrvaneCtrlInterfaceLayer::ReleaseGridDC(CDC *dc) {
    return CUGCtrl::ReleaseGridDC(dc);
}

CDC *CUGOrvaneCtrlInterfaceLayer::GetTopHeadingDC() {
    return CUGCtrl::GetTopHeadingDC();
}

int CUGOrvaneCtrlInterfaceLayer::ReleaseTopHeadingDC(CDC *dc) {
    return CUGCtrl::ReleaseTopHeadingDC(dc);
}

void CUGOrvaneCtrlInterfaceLayer::BeginModalState() {
    EnableWindow(FALSE);
}

void CUGOrvaneCtrlInterfaceLayer::EndModalState() {
    EnableWindow(TRUE);
}
