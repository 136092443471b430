// CTableEditor: the library's editor with what a host adds to it: context menus of the cells and headings, and the
// commands that several operations of the library make up.
#pragma once

#include "dataeditor/OrvaneEditor.h"

class CTableEditor : public COrvaneEditor {
public:
    // The whole table, or the text of the open edit box. The current cell stays where it is.
    void SelectAll();
    // The commands on cells work on the selection, and some of them and the edit box leave none: then it is the
    // current cell's again.
    void SelectCurrentIfNothing();
    // The selected columns after what they hold.
    void BestFitCols();
    // Every field, in the file's order.
    void ShowFieldsOfFile();
    bool ShowsFieldsOfFile();
    // What the user took in the dialog of shown fields: one flag for each field in position order.
    void ShowChosenFields(const CArray<bool, bool> &shown);
    // "2 columns", "5 records" or "3 x 12 cells"; empty for the current cell alone.
    CString DescribeSelection();

    // Compiles the table, codes and descriptions in pairs of fields, to a lookup table beside it, and says how that went;
    // the cell that is wrong becomes the current one.
    void CompileLookupTable();

    // Repeats the last search; one in the selected cells goes on in the block that was selected then.
    void FindAgain();

    int OnCanMove(int oldCol, long oldRow, int newCol, long newRow) override;
    void OnRClicked(int col, long row, int updn, RECT *rect, POINT *point, int processed) override;
    void OnTH_RClicked(int col, int updn) override;
    void OnSH_RClicked(long row, int updn) override;
    void OnCB_RClicked(int updn) override;
    void OnKeyDown(UINT *key, int processed) override;
    void OnKeyUp(UINT *key, int processed) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnContextMenu(CWnd *window, CPoint point);
    afx_msg LRESULT OnFindNext(WPARAM data, LPARAM);

private:
    enum class Menu { Cells, Columns, Records }; // in the order of the resource's popups

    // The cells of a search in the selection, which uses the selection up.
    struct SearchedBlock {
        int left = 0, right = -1;
        long top = 0, bottom = -1;
        bool fromStart = true; // the next search begins at its first cell
    };

    bool SearchesBlock(const CFindReplaceData &data);
    bool NextInBlock(int *col, long *row) const;
    void GoOnInBlock();
    bool FindInBlock(const CFindReplaceData &data, bool *stopped);

    SearchedBlock m_block;

    void ShowMenuByKey();
    void ShowMenu(Menu menu, CPoint screen);
};
