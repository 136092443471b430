// CGalleryGrid: a grid over its own store with a sample of every cell type and of what a cell can look like.
// All of it can be tried: cells are edited, buttons pressed, text dropped.
#pragma once

#include "grid/UGCtrl.h"
#include "grid/UGEllipsisType.h"

class CGalleryGrid : public CUGCtrl {
    DECLARE_DYNAMIC(CGalleryGrid)

public:
    void OnSetup() override;
    void OnGetCell(int col, long row, CUGCell *cell) override; // names the rows
    void OnKeyDown(UINT *key, int processed) override;
    void OnCharDown(UINT *key, int processed) override;
    void OnDClicked(int col, long row, RECT *rect, POINT *point, int processed) override;
    void OnCellTypeNotify(long id, int col, long row, long message, LPARAM param) override;
    void OnTabSelected(long id) override;
    int OnSetCell(int col, long row, CUGCell *cell) override;
    void OnColSized(int col, int *width) override;
    void OnRowSized(long row, int *height) override;
    void OnTopRowChange(long oldRow, long newRow) override;
    int OnVScrollHint(long row, int percent, CUGHint *hint) override;
    int OnMenuStart(int col, long row, int section) override;
    void OnMenuCommand(int col, long row, int section, int item) override;
    DROPEFFECT OnDragEnter(COleDataObject *data) override;
    DROPEFFECT OnDragOver(COleDataObject *data, int col, long row) override;
    DROPEFFECT OnDragDrop(COleDataObject *data, int col, long row) override;

    // The current cell: the kind and number of the sample, and the text that it holds.
    CString DescribeCurrentCell() const;
    CString CurrentText();
    void CopyCurrentText();

private:
    CString Describe(int col, long row) const;
    // Shows in the status bar what the grid has just told the program.
    void Tell(const CString &event);
    void MakeDrawingObjects();
    void MakeColumns();
    void MakeRow(long row);
    void MakeBitmaps(long row);
    void MakeJoin(int col, long row, int cols, long rows);
    void ChangeValue(int col, long row, long value);

    CUGEllipsisType m_ellipsis;
    CFont m_font;
    CPen m_redPen;
    CBitmap m_disc;
    bool m_ready = false; // the samples stand; what is written from here on is the user's
};
