// CEditorCore: an editor of one table in a grid window. It is bound to at most one open data source, which it
// owns from CVAppInterface::CreateDataSource on; settings and fonts are shared by all editors.
//
// Columns are grid columns unless a name says field, which counts the source's columns. Rows count from 0. An
// open empty table keeps one placeholder row in the grid while GetNumberRows answers 0. Operations report
// failures to the user where they happen; nothing leaves them by exception.
#pragma once

#include "editorcore/AppInterface.h"
#include "editorcore/ColumnCellTypeMap.h"
#include "editorcore/CommandList.h"
#include "editorcore/EditCommandGuard.h"
#include "editorcore/EditorLayout.h"
#include "editorcore/OrvaneCtrlInterfaceLayer.h"
#include "editorcore/ResourceScope.h"
#include "editorcore/ViewCommands.h"

#include <memory>

class COrvaneValidatingCellType;
class CTransactionScope;
class CView;
class CWaitCursorScope;

// Edit modes.
constexpr int kEditNormal = 0;
constexpr int kEditReadOnly = 1;
constexpr int kEditVerify = 2; // an edit that changes a cell's text asks first

// Messages posted to the editor's parent.
constexpr UINT kMsgTitleChanged = WM_USER + 25;   // wParam path, lParam table name or 0: valid only meanwhile
constexpr UINT kMsgCommandsChanged = WM_USER + 27; // the state of commands may have changed
constexpr WPARAM kHostCloseCommand = 57602;        // WM_COMMAND posted by Escape with nothing selected

class ORVANE_API CEditorCore : public CUGOrvaneCtrlInterfaceLayer, private CUGEditListener {
    DECLARE_DYNAMIC(CEditorCore)

public:
    CEditorCore();
    ~CEditorCore() override;

    // --- Shared by all editors
    // Called once by the host before the first editor is made. The host stays the caller's. One that gives no editor
    // options is refused with a message, and editors made without a host say so and refuse loads.
    static void Initialise(CVAppInterface *host);
    static CVAppInterface *GetAppInterface() { return ms_pAppInterface; }
    // All editors get the fonts or, with a message, none.
    static void SetFonts(const LOGFONTA &cell, const LOGFONTA &heading);
    static void GetCurrentCellFont(LOGFONTA *font) { *font = ms_lfCellFont; }
    static bool IsEnterKeyTab() { return ms_bEnterKeyIsTab; }
    static void SetEnterKey(bool isTab);
    static bool ToggleEnterKey(); // the new value
    // Changes the data file's path into its layout file's.
    static void GetLayoutFileName(CString &path);
    // The editor that has the file open, however its path is spelled; null for none.
    static CEditorCore *GetOpenFilesGrid(const char *path);
    static bool FileExists(const char *path);

    // --- Virtual operations behind those of the grid, in the order that hosts are built against
    bool RecPassesFilter(long record) override;
    virtual bool IsUsingFilteredRecords();
    virtual void ReservedEditorOperation1();
    virtual bool IsFilterAttached();
    virtual void ReservedEditorOperation2();
    // `table` may be null, `options` may not. False with nothing opened.
    virtual bool LoadData(const char *path, const char *table, int editMode, const char *options);
    virtual void SetCustomOptions();
    virtual void OnParentActivate(int activate, CView *activated, CView *deactivated);
    virtual void SetTextAlignment();

    // --- Open, close, save
    // False when the source refuses, or while it is at work, as in a close; everything is as it was then.
    bool CloseDataSource(bool argument);
    void OnSave(int unused);
    // `filtered` with a filter number of 0 or more saves the filtered records only.
    bool OnSaveAs(const CString &newPath, bool filtered, int filterNumber);
    bool IsDataSrcOpen() const { return m_bDataSrcOpen; }
    int GetEditMode() const { return m_nEditMode; }
    void SetEditMode(int mode); // finishes an edit in progress first, under the old mode
    bool IsGridReadOnly() const { return m_nEditMode == kEditReadOnly; }
    void SetIsUsingBackupFile(bool backup) { m_bUsingBackupFile = backup; }
    void AutoSaveLayoutInfo(bool save) { m_bAutoSaveLayout = save; }
    const CString &GetFilePath() const { return m_strFilePath; }
    const CString &GetTableName() const { return m_strTableName; }
    // Null for a path of less than 2 characters; else the text behind the last backslash.
    const char *GetFileName() const;
    bool IsFileModified();
    void UpdateTitle();

    // --- The table
    // The editor's own open source; null, with a message on demand, when there is none or a host took it out of the
    // grid's table of sources, which makes it the host's.
    CUGDataSource *GetCurrentDataSrc(bool complain);
    long GetNumberRows();
    int SetNumberRows(long rows, int redraw);
    bool IsOperationsValid();
    int GetTotalDataSrcFields();
    void SetEditorCoreOptions(int undoLevels, int maxDisplayColWidth, bool enterKeyIsTab);
    void SetCellType(const char *fieldName, int id) {
        if (m_pColCellTypes != nullptr)
            m_pColCellTypes->SetCellType(fieldName, id);
    }
    // In screen coordinates.
    void GetCurCellRect(CRect *rect);

    // --- The view of the columns. Three numberings meet: the grid column on screen, the field of the source, and
    // the position of a field in the full ordering, hidden fields included.
    int GetDataSrcField(int gridCol) const; // -1 at or past the end
    int GetGridField(int field) const;      // first grid column that shows the field; -1 when hidden
    bool GetDisplayCols(CUIntArray &fields);
    void GetVirtualColPostions(CUIntArray &positions);
    // Every field in position order: its name, and whether it is shown.
    void GetVirtualColInfo(CStringArray &names, CArray<bool, bool> &shown);
    void GetDisplayColNames(CStringArray &names);
    void GetColName(int gridCol, CString &name);
    // By name, ignoring case. A name that no field has counts as hidden; false with no source.
    bool IsFieldHidden(const char *name);
    bool CanHideCols();
    int GetColumnCellType(int gridCol);
    // These four rebuild the grid's columns. An edit in progress is finished first, and the selection, which names grid
    // columns, goes. When memory runs out they say so and the view stays as it was.
    void DisplayCols(const CUIntArray &fields);
    void ReOrderCols(const CUIntArray &fields); // the layout's order too; for the host's field dialog
    void HideCols(const CUIntArray &gridCols);
    void UnHideCols(const CUIntArray &gridCols, const CUIntArray &fields);
    void ResetFieldsOrder();
    void OnReorderCols();
    virtual void OnColReorder();

    // --- Cells and the edit in progress
    bool IsInEditMode() { return GetEditControl() != nullptr; }
    bool OnCellEdit(int col, long row, CEdit *edit, const char *oldText, const char *newText);
    bool AddEditCommand(int col, long row, CEdit *edit, const char *oldText, const char *newText);
    void SaveEditContents();
    // Leaves no edit in progress: what was typed is written into its cell as SaveEditContents does, an untouched box
    // goes unwritten. Called before columns, rows or records change under the box.
    void SettleEdit();
    void OnEditNotify();
    void StartTransaction();
    void EndTransaction();
    int QuickSetText(int col, long row, const char *text);
    int SetDataSrcCell(CUGDataSource *source, CUGCell *cell, int field, long row);
    bool GetCellText(int col, long row, CString *text);
    bool GetDataSrcCellText(int col, long row, CString *text);
    bool IsGridCellReadOnly(int, long) { return false; }
    void SetCellAsReadOnly(int field, long row); // -1 for a whole row or column
    bool IsDataSrcCellReadOnly(int field, long row);
    int GetNewCellTypeId(int kind); // kind 2 also notes the id as validating
    bool IsValidatingCell(int id);
    int RemoveCellType(long id);

    // --- Commands
    void OnHideCols();
    void OnUnHideCols();
    // `order` holds field names; null asks the host. A name that no field has shows field 0 in its place.
    void OnOrderCols(CStringArray *order);
    void OnAppendRow(int col);
    void OnInsertRows();
    void OnDeleteRows(bool toClipboard);
    void OnCut(bool toClipboard); // blanks the cells; whole rows are deleted
    void OnCopy();
    void OnPaste();
    bool CanCut();
    bool CanCopy();
    bool CanPaste();
    // Insert before `row`, or append when it is the source's row count. True when it was done.
    bool ExecInsertRows(long row, long count, bool waitCursor);
    bool ExecDeleteRows(long firstRow, long lastRow);
    void Undo();
    void Redo();
    bool CanUndo();
    bool CanRedo();
    void EmptyUndoList();
    // Asks how to go on before an operation that would store very much undo data: IDYES empties the history and
    // stores none, IDNO stores it, IDCANCEL stops. IDYES at once without undo depth.
    int DisplayNoUndoMessage();

    // --- The clipboard: text, cells apart by TAB and rows by CR LF. Results are 0 for done and 1 for not.
    // The texts of the selected cells, row by row. False when memory or the user stopped it; the text is partial
    // then. The third argument is not read.
    bool CreateSelectedString(CString &out, int clearCells, bool unused);
    int CopySelected(int clearCells);
    int CopySelected() { return CopySelected(0); }
    int CutSelected() { return CopySelected(1); }
    int CopyToClipBoard(CString *text);
    int CopyFromClipBoard(CString *text);
    int Paste();
    int Paste(CString &text); // its top left corner lands on the current cell

    // --- Sizing. Called when the grid has already changed; pixels.
    void OnChangeColWidth(int col, int oldWidth, int newWidth);
    void OnChangeRowHeight(long row, int oldHeight, int newHeight);
    void OnResizeHeadings(int oldSide, int newSide, int oldTop, int newTop);
    void OnChangeMultColWidths(int startCol, int endCol, const CArray<int, int> &oldWidths,
                               const CArray<int, int> &newWidths);

    // --- What the commands of the history do; all answer true.
    using SizingCommand = CSizingCommand<CEditorCore>;
    using HeadingsCommand = CHeadingsSizingCommand<CEditorCore>;
    using MultiSizingCommand = CMultiSizingCommand<CEditorCore>;
    using ReorderCommand = CReorderColsCommand<CEditorCore>;
    bool ExecChangeColWidth(SizingCommand *command);
    bool UnExecChangeColWidth(SizingCommand *command);
    bool ExecChangeRowHeight(SizingCommand *command);
    bool UnExecChangeRowHeight(SizingCommand *command);
    bool ExecResizeHeadings(HeadingsCommand *command);
    bool UnExecResizeHeadings(HeadingsCommand *command);
    bool ExecChangeMultColWidths(MultiSizingCommand *command);
    bool UnExecChangeMultColWidths(MultiSizingCommand *command);
    bool ExecOrderCols(ReorderCommand *command);
    bool UnExecOrderCols(ReorderCommand *command);
    bool ExecHideCols(ReorderCommand *command);
    bool UnExecHideCols(ReorderCommand *command);
    bool ExecUnHideCols(ReorderCommand *command);
    bool UnExecUnHideCols(ReorderCommand *command);

    // --- Notifications of the grid
    void OnSetup() override;
    int OnEditStart(int col, long row, CEdit *edit) override;
    int OnEditVerify(int col, long row, CEdit *edit, UINT *key) override;
    int OnEditContinue(int oldCol, long oldRow, int *newCol, long *newRow) override;
    int OnEditFinish(int col, long row, CEdit *edit) override;
    int OnSetCell(int col, long row, CUGCell *cell) override;
    void OnCharDown(UINT *key, int processed) override;
    void OnKeyDown(UINT *key, int processed) override;
    void OnLClicked(int col, long row, int updn, RECT *rect, POINT *point, int processed) override;
    void OnDClicked(int col, long row, RECT *rect, POINT *point, int processed) override;
    void OnDataSourceNotify(int id, long what, long param) override;
    int OnCanSizeCol(int col) override;
    int OnCanSizeRow(long row) override;
    int OnCanSizeTopHdg() override;
    int OnCanSizeSideHdg() override;
    int OnTopHdgSizing(int *size) override;
    int OnSideHdgSizing(int *size) override;
    void OnColSized(int col, int *width) override;
    void OnRowSizing(long row, int *height) override;
    void OnRowSized(long row, int *height) override;
    virtual int OnTopHdgSized(int *height);
    void OnTH_LClicked(int col, int updn) override;
    void OnTH_DClicked(int col) override;
    void OnSH_LClicked(long row, int updn) override;
    void OnCB_LClicked(int updn) override;

protected:
    // How often the table went, columns came to show other fields, and records changed places. For CTableWatch.
    struct TableState {
        unsigned tables = 0, columns = 0, records = 0;
    };
    void NoteChange(unsigned TableState::*what) { ++(m_TableState.*what); }
    // The records have changed places: a box that is open is over another one.
    void LoseEdit();

    DECLARE_MESSAGE_MAP()
    afx_msg void OnDestroy();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);

    // Work of the source's that may ask or take long: what its questions and looks let through must not delete it.
    // Meanwhile the table is not closed, and whoever destroys the editor leaves the source to be deleted here.
    struct ORVANE_API SourceWork {
        SourceWork(CEditorCore *worked, CUGDataSource *atWork);
        ~SourceWork();
        SourceWork(const SourceWork &) = delete;
        SourceWork &operator=(const SourceWork &) = delete;

        CEditorCore *editor;
        CUGDataSource *source; // null while it is not at work
        bool outermost;
        bool editorGone = false;
    };

    static void ReportOutOfMemory();
    // True when a stored layout for the table is at hand. Reading makes the layout file where there is none.
    bool Serialize(bool store);
    void Serialize(CArchive &ar) override;
    void SetGridLayout();
    bool AbortOperation();
    // Whole columns or rows, and the mode that goes with them.
    void SelectColumns(int firstCol, int lastCol);
    void SelectRows(long firstRow, long lastRow);
    // Handles what waits for the cells, but for clicks of the left button: those are lost.
    void PumpDroppingClicks();
    // The first columns also stand in the side heading. As many as there are of `count`; the side heading's width is the
    // caller's.
    void LockColumns(int count);
    // Cells across the first line and rows of the text on the clipboard; a line break at the end counts a row.
    bool GetClipBoardDataInfo(int *cols, long *rows);

    static CVAppInterface *ms_pAppInterface;
    static bool ms_bInitCalled;
    static bool ms_bEnterKeyIsTab;
    static int ms_nMaxDisplayColWidth; // kept for the host
    static LOGFONTA ms_lfCellFont, ms_lfHeadingFont;
    static CFont *ms_pCellFont, *ms_pHeadingFont; // shared; the last editor frees them
    static CArray<CEditorCore *, CEditorCore *> m_InstanceList;

    int m_nEditMode = kEditNormal;
    bool m_bDataSrcOpen = false;
    bool m_bConstructFailed = false; // out of memory: loads are refused
    bool m_bAbortRequested = false;
    int m_nLastAutoScrollCol = -10, m_nLastAutoScrollRow = -10;
    CPen m_GridLinePen;
    bool m_bGridLinePenMade = false;
    int m_clrDefaultBack = 0, m_clrDefaultText = 0; // of the grid default cell before OnSetup changed it
    int m_nDefaultBorderStyle = 0;
    int m_nSelectAnchorCol = -1, m_nSelectAnchorRow = -1;
    int m_nHeadingSelectMode = 0; // 0 none, 1 whole columns, 2 whole rows
    CString m_strFilePath;
    CString m_strTableName;
    int m_nDataSrcIndex = -1;
    bool m_bInCommand = false;
    int m_nSizeBefore = 0, m_nHeadingHeightBefore = 0; // pixels, from the start of a drag to its end
    bool m_bAutoSaveLayout = true;
    bool m_bLayoutValid = false; // the layout in memory belongs to the open source
    bool m_bEditUndone = false;  // the edit box sits in its undone state
    CArray<int, int> m_ReadOnlyCols; // parallel lists of fields and rows; -1 is all
    CArray<long, long> m_ReadOnlyRows;
    CArray<long, long> m_ValidatingCellTypes;
    int m_nNextCellTypeId = 200;
    bool m_bUsingBackupFile = true;
    CCommandListMgr *m_pCommandList = nullptr; // these three owned, null where the constructor ran out of memory
    CEditorLayout *m_pLayout = nullptr;
    CColumnCellTypeMap *m_pColCellTypes = nullptr;


private:
    friend class CEditCommandGuard;
    friend class CEditorLayout;
    friend class CFrozenWidthScope;
    friend class CTableWatch;
    friend class CTransactionScope;

    void MakeParts();
    void DeleteParts();
    static void MakeSharedFont(CFont **font, const LOGFONTA &description);
    void ApplyFonts(CFont *cell, CFont *heading, int maxCharWidth, int headingHeight);
    std::unique_ptr<CUGDataSource> OpenSource(const char *path, const char *table, const char *options);
    bool OpenTable(const char *path, const char *table, const char *options);
    void ShowTable(const char *path, const char *table);
    void AbandonLoad();
    void DropSource();
    bool CloseSource(bool argument, SourceWork *closing);
    void LeaveTable();
    void GoToFirstCell();
    void ForgetHeadingSelection();
    void EditTextChanged() override;
    void EditWritten() override;
    void EditLosesCell() override;
    bool IsEditTyped();
    void SaveAsOwnStep();
    int FrozenSpan();
    void FitSideHeading(int ownWidth);
    long RowsOfSource(CUGDataSource *source) const;
    long LastRowIndex();
    bool MayWriteTo(const CString &path);
    bool SaveUnderNewPath(CUGDataSource *source, const CString &newPath, const CString &options);
    template <class Change> bool ChangeView(Change change);
    void ShowFields(const CUIntArray &fields);
    void ShowOrder(const CUIntArray &fields);
    void ShowWithout(const CUIntArray &gridCols);
    void ShowWith(const CUIntArray &gridCols, const CUIntArray &fields);
    bool SelectedBlock(int *left, long *top, int *right, long *bottom);
    bool CollectSelectedCols(CUIntArray &cols);
    void FieldsOfNames(const CStringArray &names, CUIntArray &fields);
    void KeepCommand(std::unique_ptr<CCommand> command);
    template <class Make> void RecordSizing(Make make);
    void SetColWidths(const MultiSizingCommand &command, const CArray<int, int> &widths);
    void SetHeadings(const HeadingsCommand &command, int sideWidth, int topHeight);
    void SizeColumn(int col, int width);
    int HeadingCharWidth();
    bool IsValidatingColumn(int col);
    int FittedWidth(int col);
    bool FitOneColumn(int col, int rows, int charWidth);
    bool FitColumnsOfSelection(int first, int last, int col, int rows, int charWidth);
    COrvaneValidatingCellType *ValidatingType(int id);
    template <class Work> bool ChangeRows(Work work);
    void AppendRecord(int col);
    bool AppendRows(CUGDataSource *source, long count);
    bool InsertRecords(CUGDataSource *source, long row, long count, bool waitCursor);
    bool DeleteRecords(CUGDataSource *source, long firstRow, long lastRow);
    void DeleteChosenRows(long firstRow, long count, bool toClipboard);
    // False when there is none, which was told.
    bool TakeClipboardText(CString *text);
    bool SaveRowsToClipboard(long firstRow, long lastRow, CWaitCursorScope *waiting);
    bool AskForRecords(const char *title, const char *prompt, long *count);
    void ShowRowsOfSource();
    long EstimateSelectedText();
    void AppendSelectedTexts(CString &out, bool clearCells, bool *stopped);
    void BlankCells(int left, long top, int right, long bottom);
    struct PasteBlock;
    bool PlacePaste(PasteBlock *block);
    bool MakeRoomForPaste(CUGDataSource *source, const PasteBlock &block);
    bool AddMissingRecords(CUGDataSource *source, const PasteBlock &block);
    void DragHeadingSelection();
    void HeadingSelectionKey(UINT *key, bool shift, bool control);
    void ExtendHeadingSelection(int step);
    void DoAutoScroll(POINT point);
    void AutoScrollRows(int y, int height);
    bool AutoScrollCols(int x, int width);
    void SelectToCurrent();
    void BuildDefaultLayout(bool setTranslations);
    void SetGridInitColWidths();
    int HeadingMinimumWidth(int col, int maxCharWidth);
    void VarifyEdit(CWnd *edit, int col, long row);
    void CancelSelectionMode(bool clear);
    void EnterKeyInGrid(UINT *key, bool *shift);
    void TabInGrid(bool shift);
    void NotifyEdited();
    void PostCommandsChanged();
    int ShownColumnFrom(int col, int step);

    CUGDataSource *m_pSource = nullptr; // owned while it is in the slot m_nDataSrcIndex of the grid's table
    SourceWork *m_pSourceWork = nullptr; // the outermost
    TableState m_TableState;
    CTransactionScope *m_pGroup = nullptr; // of the source's undo, while one is open
    int m_nColsToLock = 0;              // asked for; there may be fewer columns
    bool m_bSavingEdit = false;         // SaveEditContents tells the title itself
    bool m_bTitleAwaitsWrite = false;   // the edit being finished changes its cell
};
