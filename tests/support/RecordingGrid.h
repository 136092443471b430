// RecordingGrid: a grid control that notes every notification and can be told to veto.
#pragma once

#include "RecordingSource.h"

#include "grid/UGCtrl.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

class RecordingGrid : public CUGCtrl {
public:
    // Child windows, for sending input to them.
    HWND Cells() const { return m_grid.GetSafeHwnd(); }
    HWND TopHeading() const { return m_topHdg.GetSafeHwnd(); }
    HWND SideHeading() const { return m_sideHdg.GetSafeHwnd(); }
    HWND Corner() const { return m_cornerBtn.GetSafeHwnd(); }
    HWND VBar() const { return m_vScroll.GetSafeHwnd(); }
    HWND HBar() const { return m_hScroll.GetSafeHwnd(); }
    HWND Hint() const { return m_hint.GetSafeHwnd(); }
    HWND Tab() const { return m_tab.GetSafeHwnd(); }
    HWND Edit() const { return m_grid.m_edit.GetSafeHwnd(); }

    // The notifications since the last call, "Name(arguments)" each, without the "On", apart by blanks.
    std::string Take();
    // "cur=(1,2) view=(0,0) size=5x10", columns before rows.
    std::string State();
    // The selected cells, "1.2 1.3".
    std::string Selected();
    std::string Text(int col, long row);

    std::vector<std::string> m_events;
    CallLog *m_log = nullptr; // borrowed; gets the events as well, among the calls of others
    std::set<std::string> m_vetoes;  // names of notifications that answer 0
    bool m_notesGetCell = false;     // it comes with every paint
    bool m_notesViewChanges = false; // LeftColChange and TopRowChange
    bool m_notesDrawSetup = false;   // it comes with every paint too
    bool m_notesEditSetup = false;   // SetupEditWindow, before EditStart
    int m_dropAnswer = 0;            // of DragEnter, DragOver and DragDrop
    std::function<void(const std::string &)> m_onNote; // of every notification, by its name
    std::function<void(CUGCell *)> m_onGetCell;
    std::function<void(UINT *)> m_onKeyDown;
    std::function<void(UINT *)> m_onCharDown;
    std::function<void(int, long, UINT *)> m_onEditVerify;
    std::function<void()> m_onEditFinish;
    std::function<void(int *, long *)> m_onEditContinue;
    std::function<void(RECT *, DWORD *)> m_onSetupEditWindow;
    std::function<void(int *)> m_onSizing;
    std::function<void(int *)> m_onColSized;
    std::function<void()> m_onHitBottom;
    std::function<void()> m_onHitTop;
    std::function<void()> m_onLClicked;
    std::function<void()> m_onCanMove;
    std::function<void()> m_onCellChanged;
    std::function<void(CUGHint *)> m_onHint;

    void OnSetup() override { Note("Setup", {}); }
    int OnCanMove(int oldCol, long oldRow, int newCol, long newRow) override;
    int OnCanViewMove(int oldCol, long oldRow, int newCol, long newRow) override;
    void OnHitBottom(long numRows, long rowsPast, long rowsFound) override;
    void OnHitTop(long numRows, long rowsPast) override;
    int OnCanSizeCol(int col) override { return Note("CanSizeCol", {col}); }
    void OnColSizing(int col, int *width) override;
    void OnColSized(int col, int *width) override;
    int OnCanSizeRow(long row) override { return Note("CanSizeRow", {row}); }
    void OnRowSizing(long row, int *height) override { Note("RowSizing", {row, *height}); }
    void OnRowSized(long row, int *height) override { Note("RowSized", {row, *height}); }
    int OnCanSizeTopHdg() override { return Note("CanSizeTopHdg", {}); }
    int OnCanSizeSideHdg() override { return Note("CanSizeSideHdg", {}); }
    int OnTopHdgSizing(int *size) override { return Note("TopHdgSizing", {*size}); }
    int OnSideHdgSizing(int *size) override { return Note("SideHdgSizing", {*size}); }
    void OnColChange(int oldCol, int newCol) override { Note("ColChange", {oldCol, newCol}); }
    void OnRowChange(long oldRow, long newRow) override { Note("RowChange", {oldRow, newRow}); }
    void OnCellChange(int oldCol, int newCol, long oldRow, long newRow) override;
    void OnLeftColChange(int oldCol, int newCol) override;
    void OnTopRowChange(long oldRow, long newRow) override;
    void OnLClicked(int col, long row, int updn, RECT *rect, POINT *point, int processed) override;
    void OnRClicked(int col, long row, int updn, RECT *rect, POINT *point, int processed) override;
    void OnDClicked(int col, long row, RECT *rect, POINT *point, int processed) override;
    void OnTH_LClicked(int col, int updn) override { Note("TH_LClicked", {col, updn}); }
    void OnTH_RClicked(int col, int updn) override { Note("TH_RClicked", {col, updn}); }
    void OnTH_DClicked(int col) override { Note("TH_DClicked", {col}); }
    void OnSH_LClicked(long row, int updn) override { Note("SH_LClicked", {row, updn}); }
    void OnSH_RClicked(long row, int updn) override { Note("SH_RClicked", {row, updn}); }
    void OnSH_DClicked(long row) override { Note("SH_DClicked", {row}); }
    void OnCB_LClicked(int updn) override { Note("CB_LClicked", {updn}); }
    void OnCB_RClicked(int updn) override { Note("CB_RClicked", {updn}); }
    void OnCB_DClicked() override { Note("CB_DClicked", {}); }
    void OnKeyDown(UINT *key, int processed) override;
    void OnKeyUp(UINT *key, int processed) override { Note("KeyUp", {long(*key), processed}); }
    void OnCharDown(UINT *key, int processed) override;
    void OnGetCell(int col, long row, CUGCell *cell) override;
    int OnSetCell(int col, long row, CUGCell *cell) override;
    int OnEditStart(int col, long row, CEdit *edit) override;
    int OnEditVerify(int col, long row, CEdit *edit, UINT *key) override;
    int OnEditFinish(int col, long row, CEdit *edit) override;
    int OnEditContinue(int oldCol, long oldRow, int *newCol, long *newRow) override;
    int OnMenuStart(int col, long row, int section) override {
        return Note("MenuStart", {col, row, section});
    }
    void OnMenuCommand(int col, long row, int section, int item) override {
        Note("MenuCommand", {col, row, section, item});
    }
    void OnDataSourceNotify(int id, long message, long param) override {
        Note("DataSourceNotify", {id, message, param});
    }
    void OnCellTypeNotify(long id, int col, long row, long message, LPARAM param) override;
    int OnVScrollHint(long row, int percent, CUGHint *hint) override;
    int OnHScrollHint(int col, int percent, CUGHint *hint) override;
    DROPEFFECT OnDragEnter(COleDataObject *data) override;
    DROPEFFECT OnDragOver(COleDataObject *data, int col, long row) override;
    DROPEFFECT OnDragDrop(COleDataObject *data, int col, long row) override;
    void OnDrawSetup(CDC *dc, int section) override;
    void OnTabSelected(long id) override { Note("TabSelected", {id}); }
    int OnSetupEditWindow(int col, long row, RECT *rect, CUGCell *cell, DWORD *style, int flag) override;

protected:
    // Notes the event; what the notification answers, 0 to veto.
    virtual int Note(const char *name, std::initializer_list<long> arguments);
};
