// CUGCtrl: the grid control. A window that owns the state block, the table of data sources, the default cells,
// the cell types and the child windows that show them, and that reports everything through virtual
// notifications whose base implementations do nothing.
//
// The order of the virtual operations is part of the interface. Columns are `int` and rows `long`, counted from
// 0; row -1 is the top heading, column -1 the side heading, both -1 the corner. Sizes are pixels. Operations
// return GRID_ codes unless stated. Everything runs on the one user-interface thread.
#pragma once

#include <afxole.h>
#include <afxwin.h>

#include "grid/UGCellType.h"
#include "grid/UGCheckBoxType.h"
#include "grid/UGCnrBtn.h"
#include "grid/UGDefine.h"
#include "grid/UGDrawRules.h"
#include "grid/UGDropListType.h"
#include "grid/UGDropTarget.h"
#include "grid/UGEdit.h"
#include "grid/UGGrid.h"
#include "grid/UGGridInfo.h"
#include "grid/UGHint.h"
#include "grid/UGMem.h"
#include "grid/UGScroll.h"
#include "grid/UGShownTypes.h"
#include "grid/UGSideHdg.h"
#include "grid/UGSpinButtonType.h"
#include "grid/UGTab.h"
#include "grid/UGTopHdg.h"

#include <memory>
#include <vector>

// Ids of the child windows.
constexpr UINT kGridChildId = 1;
constexpr UINT kTopHeadingChildId = 2;
constexpr UINT kSideHeadingChildId = 3;
constexpr UINT kCornerChildId = 4;
constexpr UINT kVScrollChildId = 5;
constexpr UINT kHScrollChildId = 6;
constexpr UINT kHintChildId = 7;
constexpr UINT kTabChildId = 8;
constexpr UINT kEditChildId = 237;

class ORVANE_API CUGCtrl : public CWnd {
    DECLARE_DYNAMIC(CUGCtrl)

public:
    CUGCtrl();
    ~CUGCtrl() override;

    // Creates the control as a child window; OnSetup is called before it returns.
    BOOL CreateGrid(DWORD style, const RECT &rect, CWnd *parent, UINT id);

    // --- Notifications, in the order that hosts are built against.
    virtual void OnSetup();
    virtual int OnCanMove(int oldCol, long oldRow, int newCol, long newRow);
    virtual int OnCanViewMove(int oldCol, long oldRow, int newCol, long newRow);
    virtual void OnHitBottom(long numRows, long rowsPast, long rowsFound);
    virtual void OnHitTop(long numRows, long rowsPast);
    virtual int OnCanSizeCol(int col);
    virtual void OnColSizing(int col, int *width);
    virtual void OnColSized(int col, int *width);
    virtual int OnCanSizeRow(long row);
    virtual void OnRowSizing(long row, int *height);
    virtual void OnRowSized(long row, int *height);
    virtual int OnCanSizeTopHdg();
    virtual int OnCanSizeSideHdg();
    virtual int OnTopHdgSizing(int *size);
    virtual int OnSideHdgSizing(int *size);
    virtual void OnColChange(int oldCol, int newCol);
    virtual void OnRowChange(long oldRow, long newRow);
    virtual void OnCellChange(int oldCol, int newCol, long oldRow, long newRow);
    virtual void OnLeftColChange(int oldCol, int newCol);
    virtual void OnTopRowChange(long oldRow, long newRow);
    // `updn` is 1 for the button going down. `rect` and `point` are in grid coordinates; `processed` is what
    // the cell type answered.
    virtual void OnLClicked(int col, long row, int updn, RECT *rect, POINT *point, int processed);
    virtual void OnRClicked(int col, long row, int updn, RECT *rect, POINT *point, int processed);
    virtual void OnDClicked(int col, long row, RECT *rect, POINT *point, int processed);
    virtual void OnTH_LClicked(int col, int updn);
    virtual void OnTH_RClicked(int col, int updn);
    virtual void OnTH_DClicked(int col);
    virtual void OnSH_LClicked(long row, int updn);
    virtual void OnSH_RClicked(long row, int updn);
    virtual void OnSH_DClicked(long row);
    virtual void OnCB_LClicked(int updn);
    virtual void OnCB_RClicked(int updn);
    virtual void OnCB_DClicked();
    virtual void OnKeyDown(UINT *key, int processed);
    virtual void OnKeyUp(UINT *key, int processed);
    virtual void OnCharDown(UINT *key, int processed);
    virtual void OnGetCell(int col, long row, CUGCell *cell);
    virtual int OnSetCell(int col, long row, CUGCell *cell);
    virtual void OnDataSourceNotify(int id, long message, long param);
    virtual void OnCellTypeNotify(long id, int col, long row, long message, LPARAM param);
    virtual int OnEditStart(int col, long row, CEdit *edit);
    virtual int OnEditVerify(int col, long row, CEdit *edit, UINT *key);
    virtual int OnEditFinish(int col, long row, CEdit *edit);
    virtual int OnEditContinue(int oldCol, long oldRow, int *newCol, long *newRow);
    virtual void OnMenuCommand(int col, long row, int section, int item);
    virtual int OnMenuStart(int col, long row, int section);
    virtual int UnusedNotification(long, long, long);
    virtual int OnVScrollHint(long row, int percent, CUGHint *hint);
    virtual int OnHScrollHint(int col, int percent, CUGHint *hint);
    virtual DROPEFFECT OnDragEnter(COleDataObject *data);
    virtual DROPEFFECT OnDragOver(COleDataObject *data, int col, long row);
    virtual DROPEFFECT OnDragDrop(COleDataObject *data, int col, long row);
    virtual void OnDrawSetup(CDC *dc, int section);
    virtual int OnSortEvaluate(CUGCell *a, CUGCell *b);
    virtual int OnSetupEditWindow(int col, long row, RECT *rect, CUGCell *cell, DWORD *style, int flag);
    virtual bool RecPassesFilter(long row);
    virtual bool GetUseFilteredRecords();
    virtual void OnTabSelected(long id);

    // --- Rows, columns and their sizes
    int SetNumberRows(long rows, int redraw = 1);
    int SetNumberCols(int cols, int redraw = 1);
    long GetNumberRows() const { return m_GI.m_rows.m_count; }
    int GetNumberCols() const { return static_cast<int>(m_GI.m_cols.m_count); }
    int GetCurrentCol() const { return static_cast<int>(m_GI.m_cols.m_current); }
    long GetCurrentRow() const { return m_GI.m_rows.m_current; }
    int GetLeftCol() const { return static_cast<int>(m_GI.m_cols.m_leading); }
    long GetTopRow() const { return m_GI.m_rows.m_leading; }
    int GetColWidth(int col, int *width) const { return m_GI.GetColWidth(col, width); }
    int SetColWidth(int col, int width);
    int GetRowHeight(long row, int *height) const { return m_GI.GetRowHeight(row, height); }
    int SetRowHeight(long row, int height);
    int SetDefaultRowHeight(int height);
    int SetUniformRowHeight(int flag);
    // Pixels for a length that is `px` at 96 dots an inch.
    int ScaledPx(int px) const { return UGScaleToDpi(px, m_GI.m_dotsPerInch); }
    // The height for rows that are `px` high at 96 dots an inch: scaled, and no less than the default font needs.
    int ScaledRowHeight(int px) { return UGLineHeight(px, m_GI.m_dotsPerInch, TextHeight(m_GI.m_defaultFont)); }
    int SetTH_Height(int height);
    int SetSH_Width(int width);
    int GetTH_Height() const { return m_GI.m_topHeadingHeight; }
    int GetSH_Width() const { return m_GI.m_sideHeadingWidth; }
    int SetLockedColumns(int count);

    // --- Cells
    int SetColDefault(int col, CUGCell *cell);
    int GetColDefault(int col, CUGCell *cell);
    int SetGridDefault(CUGCell *cell);
    int GetGridDefault(CUGCell *cell);
    int SetHeadingDefault(CUGCell *cell);
    int GetHeadingDefault(CUGCell *cell);
    // The layered read: defaults, source, OnGetCell. GRID_ERROR outside the table, and the cell stays as it is.
    int GetCell(int col, long row, CUGCell *cell);
    // What the source itself holds, nothing of the layers.
    int GetCellRaw(int col, long row, CUGCell *cell);
    int SetCell(int col, long row, CUGCell *cell);
    int QuickSetText(int col, long row, const char *text);
    // The source column that a grid column shows; the column itself when it has no translation, -1 outside.
    int GetDataColNumber(int col);
    int SetColTranslation(int col, int dataCol);

    // --- Moving. `how` is a UGMove.
    int GotoCell(int col, long row);
    int GotoRow(long row);
    int GotoCol(int col);
    int MoveCurrentRow(int how);
    int MoveCurrentCol(int how);
    int MoveTopRow(int how);
    int MoveLeftCol(int how);
    int SetTopRow(long row);
    int SetLeftCol(int col);
    // Brings the current cell into view without moving it.
    void BringCurrentIntoView();
    // Compares the present state with the one at the last call, tells what changed, and repaints.
    void UpdateState();

    // --- Geometry, in grid coordinates
    int GetCellRect(int col, long row, RECT *rect);
    int GetCellFromPoint(int x, int y, int *col, long *row, RECT *rect = nullptr);
    // The whole block of a joined cell, or the cell alone.
    void GetJoinRange(int col, long row, int *startCol, long *startRow, int *endCol, long *endRow);
    // Where the block of a joined cell begins, as the cell that was read at the place says. False for a cell
    // alone, and where the origin lies behind the cell or outside the table.
    bool GetJoinOrigin(const CUGCell &cell, int col, long row, int *originCol, long *originRow) const;

    // --- Conduct
    int EnableRowHighlight(int mode);
    int SetCurrentCellStyle(int style);
    int SetVScrollMode(int mode);
    int SetHScrollMode(int mode);
    int SetBallisticMode(int mode);
    int SetBallisticDelay(int milliseconds);
    int SetUserSizingMode(int mode);
    int EnableMultiSelect(int enable);
    int EnableColTranslation(int enable);
    int EnablePainting(int enable);
    int EnablePopupMenu(int enable);
    int EnableScrollHints(int vertical, int horizontal);
    int SetSuppressFinishOnFocusLoss(int suppress);
    int Set3DBorderWidth(int width);
    int SetDoubleBuffer(int enable);
    CMenu *GetPopupMenu() { return &m_popupMenu; }

    // --- Tabs, at the left of the horizontal bar. Ids are the host's; a click comes as OnTabSelected.
    int AddTab(const char *text, long id) { return m_tab.AddTab(text, id); }
    int DeleteTab(long id) { return m_tab.DeleteTab(id); }
    int SelectTab(long id) { return m_tab.SelectTab(id); }
    long GetSelectedTab() const { return m_tab.GetSelectedTab(); } // -1 while there are none
    // Pixels; 0 hides the tab bar. A negative width is taken as 0.
    int SetTabWidth(int width);

    // --- Drawing
    void RedrawAll();
    void RedrawCell(int col, long row);
    void RedrawRow(long row);
    void RedrawCol(int col);
    void Update();
    int SetDefaultFont(CFont *font);
    CDC *GetGridDC();
    int ReleaseGridDC(CDC *dc);
    CDC *GetTopHeadingDC();
    int ReleaseTopHeadingDC(CDC *dc);

    // --- Data sources. The table's entries 1 to 4 are borrowed from whoever added them.
    int AddDataSource(CUGDataSource *source);
    CUGDataSource *GetDataSource(int index);
    int SetDefaultDataSource(int index);
    int RemoveDataSource(int index);
    int SetGridUsingDataSource(int index);
    int GetDefaultDataSource() const { return m_GI.m_currentSource; }

    // --- Selection
    void ClearSelections();
    int SelectRange(int col1, long row1, int col2, long row2);
    int EnumFirstSelected(int *col, long *row);
    int EnumNextSelected(int *col, long *row);
    // The last block. GRID_ERROR when none is open; GRID_SUCCESS without writing while selection is off.
    int GetCurrentSelection(int *left, long *top, int *right, long *bottom);
    bool IsInMultipleSelection();
    bool IsSelected(int col, long row) const { return m_GI.m_selection.IsSelected(col, row); }

    // --- In-cell edit
    int StartEdit();
    int StartEdit(int key);
    int EditContinue(int dx, int dy);
    // Ends the edit in progress with nothing written; the cells get the focus that the edit box had. The open list of a
    // cell closes too, with nothing chosen.
    void CancelEdit();
    CEdit *GetEditControl();
    // What SetCell answered when the text of the last edit was written: where it failed the source has its own text
    // still, which the cell shows. OnEditContinue may ask, and keep the edit where it is.
    int GetEditResult() const { return m_grid.m_edit.m_result; }

    // --- Cell types. Added types are borrowed.
    CUGCellType *GetCellType(int id);
    long AddCellType(CUGCellType *type);
    int RemoveCellType(long id);
    int BestFit(int firstCol, int lastCol, int rows);

    // --- Text in and out
    // Serves a find dialog's message: finds `text` in the current column; with `replacement`, replaces it.
    int FindDialogText(const char *text, const char *replacement, bool replaceAll, bool closing);
    int PasteText(const char *text);
    // Offers the text to be dragged out of the control, and returns when the drag is over with what became of
    // it. OLE must be initialised. Without a source of its own the drag begins once the pointer has moved a
    // little and ends with the button's release.
    DROPEFFECT StartDrag(const char *text, COleDropSource *source = nullptr,
                         DWORD effects = DROPEFFECT_COPY | DROPEFFECT_MOVE);

    CUGGridInfo m_GI;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSetFocus(CWnd *old);
    afx_msg BOOL OnEraseBkgnd(CDC *dc);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar *bar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar *bar);
    afx_msg void OnSysColorChange();
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnDestroy();
    BOOL PreCreateWindow(CREATESTRUCT &create) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    // Gives the columns the widest width that their cells need from the top row over `rows` rows, as `read`
    // gives the cells. GRID_ERROR when the range is empty.
    using CellReader = int (CUGCtrl::*)(int col, long row, CUGCell *cell);
    int FitColumns(int firstCol, int lastCol, int rows, CellReader read);

    CUGGrid m_grid;
    CUGTopHdg m_topHdg;
    CUGSideHdg m_sideHdg;
    CUGCnrBtn m_cornerBtn;
    CUGVScroll m_vScroll;
    CUGHScroll m_hScroll;
    CUGHint m_hint;
    CUGTab m_tab;
    CUGDropTarget m_dropTarget; // of the cells, while OLE is initialised
    COleDataSource m_dragSource; // what is dragged out

private:
    friend class CUGGrid;
    friend class CUGHeading;
    friend class CUGTopHdg;
    friend class CUGSideHdg;
    friend class CUGCnrBtn;
    friend class CUGScroll;
    friend class CUGVScroll;
    friend class CUGHScroll;
    friend class CUGEdit;
    friend class CUGLstBox;

    void ReadSystemColours();
    int TextHeight(HFONT font); // of a line; null for the system's font
    bool CreateChildren();
    void AdjustComponents();
    void AdjustAxes();
    bool FitAxes(int width, int height);
    void HoldLeadingInRange();
    void PlaceChildren(int width, int height);
    int VerifyCurrentRow(long row);
    int VerifyTopRow(long row);
    int MoveTo(int col, long row);
    int MoveViewTo(int leftCol, long topRow);
    int StepTo(int col, long row);
    UGJoin JoinAt(const CUGCell &cell, int col, long row);
    RECT JoinRect(const UGJoin &join) const;
    void UpdateSelection(int lastCol, long lastRow);
    void UpdateFocusedType(int lastCol, long lastRow);
    CUGCellType *FocusedType();
    void LeaveLostCells();
    void PlaceEdit();
    void RepaintViews();
    CUGDataSource *SourceOfColumn(int col, int *dataCol);
    int TranslatedColumn(int col);
    int AskToSetCell(int col, long row, CUGCell *cell);
    int StoreCell(int col, long row, CUGCell *cell);
    static constexpr int kAnyColumn = -1;
    void LeaveEditedCell(int col);
    void CloseList();
    void ShowPopupMenu(int col, long row, int section, POINT screen);
    bool WrapEditCell(int *col, long *row);
    bool FindEditCell(int dx, int *col, long *row);
    void DestroyEdit();

    CUGMem m_mem;
    std::vector<CUGCellType *> m_cellTypes;          // borrowed, entries may be null
    std::vector<std::unique_ptr<CUGCellType>> m_builtInTypes;
    CUGCell m_scratch;
    bool m_scratchInUse = false;
    CUGLstBox *m_openList = nullptr; // of a drop list cell
    bool m_typeFocused = false; // the snapshot's type has been given the focus
    CMenu m_popupMenu;
    int m_menuCol = -1;
    long m_menuRow = -1;
    int m_menuSection = 0;
    bool m_newSearch = true;
};
