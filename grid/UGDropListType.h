// CUGDropListType: text with a button that opens a list of the label's lines.
#pragma once

#include "grid/UGButtonType.h"
#include "grid/UGLstBox.h"

constexpr int kDropListTypeId = 2;
constexpr long kListOpens = 100;  // messages of OnCellTypeNotify: a CStringList * that may be changed,
constexpr long kItemChosen = 101; // a const char *
constexpr int kHideButtonStyle = 16; // the button shows in the current cell only

class ORVANE_API CUGDropListType : public CUGButtonType {
public:
    CUGDropListType();

    int OnLClicked(int col, long row, int updn, RECT *rect, POINT *point) override;
    int OnDClicked(int col, long row, RECT *rect, POINT *point) override;
    int OnKeyDown(UINT *key) override;
    int OnKillFocus(int col, long row, CUGCell *cell) override; // closes the list too
    void OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) override;

    // Opens the list under the current cell; GRID_ERROR when one is open already.
    int OpenList();

private:
    static void SplitLabel(const char *label, CStringList *items);
    RECT ListRect(int col, long row, int itemHeight, int count) const;

    HFONT ListFont();

    CUGLstBox m_list;
    CFont m_ownFont; // made when neither the cell nor the grid has one
};
