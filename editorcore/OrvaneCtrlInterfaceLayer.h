// CUGOrvaneCtrlInterfaceLayer: between the grid and the editors; the operations that need the grid's insides.
#pragma once

#include "grid/UGCtrl.h"

class ORVANE_API CUGOrvaneCtrlInterfaceLayer : public CUGCtrl {
    DECLARE_DYNAMIC(CUGOrvaneCtrlInterfaceLayer)

public:
    // The edit in progress, or null. Every test for one in the system is this call.
    CEdit *GetEditControl();
    // More than one cell is selected.
    bool IsInMultipleSelection();
    // The bounding rectangle of what is selected; nonzero when there is nothing.
    int GetCurrentSelection(int *startCol, long *startRow, int *endCol, long *endRow);
    // -1 outside the columns; else the column default's translation, or `gridCol` when that is negative.
    int GetDataColNumber(int gridCol);
    int SetColTranslation(int gridCol, int dataCol);
    // Widths of the columns by what the cells from the top row on need, over `rowsToScan` rows.
    int BestFit(int firstCol, int lastCol, int rowsToScan);
    int SetDefaultFont(CFont *font);
    CDC *GetGridDC();
    int ReleaseGridDC(CDC *dc);
    CDC *GetTopHeadingDC();
    int ReleaseTopHeadingDC(CDC *dc);

    // While a modal dialog is up the grid takes no input.
    void BeginModalState() override;
    void EndModalState() override;
};
