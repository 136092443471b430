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
    DROPEFFECT OnDragEnter(COleDataObject *data) override;
    DROPEFFECT OnDragOver(COleDataObject *data, int col, long row) override;
    DROPEFFECT OnDragDrop(COleDataObject *data, int col, long row) override;

private:
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
};
