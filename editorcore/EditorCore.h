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

class CView;

// Edit modes.
constexpr int kEditNormal = 0;
constexpr int kEditReadOnly = 1;
constexpr int kEditVerify = 2; // an edit that changes a cell's text asks first

// Messages posted to the editor's parent.
constexpr UINT kMsgTitleChanged = WM_USER + 25;   // wParam path, lParam table name or 0: valid only meanwhile
constexpr UINT kMsgCommandsChanged = WM_USER + 27; // the state of commands may have changed
constexpr WPARAM kHostCloseCommand = 57602;        // WM_COMMAND posted by Escape with nothing selected

class ORVANE_API CEditorCore : public CUGOrvaneCtrlInterfaceLayer {
    DECLARE_DYNAMIC(CEditorCore)

public:
    CEditorCore();
    ~CEditorCore() override;

    // --- Shared by all editors
    // Called once by the host before the first editor is made. The host stays the caller's.
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
    // False when the source refuses; everything is as it was then.
    bool CloseDataSource(bool argument);
    void OnSave(int unused);
    // `filtered` with a filter number of 0 or more saves the filtered records only.
    bool OnSaveAs(const CString &newPath, bool filtered, int filterNumber);
    bool IsDataSrcOpen() const { return m_bDataSrcOpen; }
    int GetEditMode() const { return m_nEditMode; }
    void SetEditMode(int mode) { m_nEditMode = mode; }
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
    CUGDataSource *GetCurrentDataSrc(bool complain);
    long GetNumberRows();
    int SetNumberRows(long rows, int redraw);
    bool IsOperationsValid();
    int GetTotalDataSrcFields();
    void SetEditorCoreOptions(int undoLevels, int maxDisplayColWidth, bool enterKeyIsTab);
    void GetColName(int gridCol, CString &name);
    int GetDataSrcField(int gridCol) const;
    int GetGridField(int field) const;
    void SetCellType(const char *fieldName, int id) {
        if (m_pColCellTypes != nullptr)
            m_pColCellTypes->SetCellType(fieldName, id);
    }
    // In screen coordinates.
    void GetCurCellRect(CRect *rect);

    // --- Cells and the edit in progress
    bool IsInEditMode() { return GetEditControl() != nullptr; }
    bool OnCellEdit(int col, long row, CEdit *edit, const char *oldText, const char *newText);
    bool AddEditCommand(int col, long row, CEdit *edit, const char *oldText, const char *newText);
    void SaveEditContents();
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
    void OnAppendRow(int col);
    void OnCut(bool toClipboard);
    void Undo();
    void Redo();
    bool CanUndo();
    bool CanRedo();
    void EmptyUndoList();

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
    void OnRowSized(long row, int *height) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnDestroy();

    // True when a stored layout for the table is at hand. Reading makes the layout file where there is none.
    bool Serialize(bool store);
    void Serialize(CArchive &ar) override;
    void SetGridLayout();
    bool AbortOperation();

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

    void MakeParts();
    void DeleteParts();
    static void MakeSharedFont(CFont **font, const LOGFONTA &description);
    void ApplyFonts(CFont *cell, CFont *heading, int maxCharWidth, int headingHeight);
    CUGDataSource *OpenSource(const char *path, const char *table, const char *options);
    void PumpDroppingClicks();
    void DropSource();
    long RowsOfSource(CUGDataSource *source) const;
    long LastRowIndex();
    bool SaveUnderNewPath(CUGDataSource *source, const CString &newPath, const CString &options);
    void BuildDefaultLayout(bool setTranslations);
    void SetGridInitColWidths();
    int HeadingMinimumWidth(int col, int maxCharWidth);
    void VarifyEdit(CWnd *edit, int col, long row);
    void CancelSelectionMode(bool clear);
    void EnterKeyInGrid(UINT *key, bool *shift);
    void TabInGrid(bool shift);
    void NotifyEdited();
    void PostCommandsChanged();
    static void ReportOutOfMemory();
};
