// COrvaneEditor: the editor of a data file of fields and records. To the core it adds filters, greyed records and
// navigation over them, find and replace, grid lines, justification, frozen columns, and the texts that a pick list
// enters.
//
// A filter is the data source's: the editor attaches one by number and asks record by record. Records in the
// interface of filters count from 1, rows from 0.
#pragma once

#include "dataeditor/FindReplaceData.h"
#include "editorcore/EditorCore.h"
#include "editorcore/MemoryGuard.h"
#include "search/KeptPatterns.h"

#include <memory>

// Messages to the editor.
constexpr UINT kMsgRejectLookupCode = 1034;
constexpr UINT kMsgPostRejectLookupCode = 1035;
constexpr UINT kMsgSetGridFocus = 1052;
constexpr UINT kMsgFindNext = 1055;    // wParam CFindReplaceData *, from the host's find dialog
constexpr UINT kMsgReplaceNext = 1056; // the same, from its replace dialog
constexpr UINT kMsgRefreshRow = 1057;  // lParam the row

// Filter numbers.
constexpr int kNoFilter = -1;
constexpr int kDefaultFilter = 0;

class ORVANE_API COrvaneEditor : public CEditorCore {
    DECLARE_DYNAMIC(COrvaneEditor)

public:
    COrvaneEditor();
    ~COrvaneEditor() override;

    // --- Frame
    using CEditorCore::LoadData;
    // The column and 1-based record to go to after the next load.
    void SetOpeningRecord(int col, long record);
    void OnSave() { CEditorCore::OnSave(m_nFilter); }
    void OnSaveAs();
    void OnFileInformation();
    void FlushAll();
    // Brings the columns in line with a source whose fields have changed; `full` throws the layout away.
    void ResetFileView(bool full);
    void RefreshRow(long row);
    // Puts text into a cell from outside the editing flow; `quick` goes the editor's own way of changing.
    void EnterEditText(const char *text, int col, long row, bool quick);
    // The choice of a pick list, into the current cell. The click that closed the list must not reach the grid, so
    // the grid stands still for a moment.
    void EnterPickListText(const char *text);
    // The fields' names in lower case; false with no source.
    bool GetDataSrcFieldNames(CStringArray &names);
    bool IsDataSrcFldTypeNumeric(int field);

    // --- Filters
    bool IsFilterAttached() override { return m_nFilter > kNoFilter; }
    bool IsUsingFilteredRecords() override { return m_bUseFilteredRecords; }
    bool GetUseFilteredRecords() override { return m_bUseFilteredRecords; }
    void SetUseFilteredRecords(bool use);
    bool RecPassesFilter(long record) override;
    void OnAttachFilter(int number);
    void OnAttachDefaultFilter() { OnAttachFilter(kDefaultFilter); }
    void OnSelectAttachFilter();
    void OnEditFilter(); // always ends on the default filter
    void OnDetachFilter();
    int GetFilter() const { return m_nFilter; }
    void OnGotoRecord();
    void OnDeleteRows();

    // --- Find and replace
    void OnFind();
    void OnFindReplace();
    void OnFindAgain();
    bool CanFindAgain() const { return m_bCanFindAgain; }
    // Column -1 is all fields. Patterns are in the Perl syntax of Boost.Regex and fit whole texts.
    void DoColumnSearch(int col, const char *find, const char *originalFind, int direction, bool matchCase);
    void DoSelectedCellsSearch(const char *find, const char *originalFind, bool matchCase);
    void DoReplace(int col, const char *find, const char *replace, const char *originalFind, int direction,
                   bool matchCase);
    // Both are false after an error that was told.
    bool IsMatchWithCellText(int col, long row, const char *find, bool matchCase, bool *match);
    bool ReplaceCellStringIfMatch(int col, long row, const char *find, const char *replace, bool matchCase, bool repeat,
                                  bool all, int *answer, bool *matched, bool *replaced, int *count);

    // --- Appearance
    bool IsShowingHorizLines() const { return m_bShowHorizLines; }
    bool IsShowingVerticleLines() const { return m_bShowVertLines; }
    void SetIsShowingHorizLines(bool show);
    void SetIsShowingVerticleLines(bool show);
    void UpdateBorders();
    // `which`: 'a' all fields, 'c' those that are not numeric, 'n' the numeric; `side`: 'r' right, else left. The caller
    // repaints.
    void JustifyFields(char which, char side);
    void VerticallyAlignGridField(char where); // 'b' bottom, 'm' middle, else top
    void OnLockColumns();
    void AttachColourSet(CString field, CPoint set);
    void DetachColourSet(CString field);
    CPoint GetColourSet(CString field);
    // By field number; (-1, -1) where there is none. Untouched with no source.
    void GetColourSets(CArray<CPoint, CPoint> *sets);

    // --- Notifications
    void OnSetup() override;
    void OnColSized(int col, int *width) override;
    void OnCellChange(int oldCol, int newCol, long oldRow, long newRow) override;
    int OnCanMove(int oldCol, long oldRow, int newCol, long newRow) override;
    void OnLClicked(int col, long row, int updn, RECT *rect, POINT *point, int processed) override;
    void OnRClicked(int col, long row, int updn, RECT *rect, POINT *point, int processed) override;
    void OnKeyDown(UINT *key, int processed) override;
    void OnCharDown(UINT *key, int processed) override;
    void OnGetCell(int col, long row, CUGCell *cell) override;
    int OnEditVerify(int col, long row, CEdit *edit, UINT *key) override;
    int OnEditContinue(int oldCol, long oldRow, int *newCol, long *newRow) override;
    void OnParentActivate(int activate, CView *activated, CView *deactivated) override;
    void SetTextAlignment() override;

    // --- New virtual operations
    virtual void OnFileModify();
    // A filter of 0 or more goes to the source with the options. `options` may be null.
    virtual bool LoadData(const char *path, const char *table, int filter, int editMode, const char *options);

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg LRESULT OnFindNext(WPARAM data, LPARAM);
    afx_msg LRESULT OnFindReplaceNext(WPARAM data, LPARAM);
    afx_msg LRESULT OnRejectLookupCode(WPARAM, LPARAM);
    afx_msg LRESULT PostRejectLookupCode(WPARAM, LPARAM);
    afx_msg LRESULT OnRefreshRow(WPARAM, LPARAM row);
    afx_msg LRESULT OnSetGridFocus(WPARAM, LPARAM);

    // True when it has dealt with the key. Outside an edit the row is left one short of the goal where the grid's own
    // step for the key follows.
    bool OnNavigateFilteredRecords(UINT key);

    int m_nOpeningCol = 0;
    long m_nOpeningRecord = 1;
    int m_nBorderStyle = 12; // of every data cell: 8 horizontal lines, 4 vertical lines
    bool m_bShowVertLines = true;
    bool m_bShowHorizLines = true;
    bool m_bCanFindAgain = false;
    int m_nFilter = kNoFilter;
    bool m_bOverwriteData = false;
    bool m_bUseFilteredRecords = false;
    int m_nSkipRecords = 0;
    double m_dIncrement = 1.0;
    UINT_PTR m_nPickListTimer = 0; // 0 while none runs
    int m_nPickListCol = -1;
    long m_nPickListRow = -1;
    int m_nLockedCols = 0;
    CFindReplaceData m_FindData; // of the last find

    static bool ms_bInFilterTest; // a question is with the source

private:
    struct ColumnSearch;
    struct ReplaceRun;

    // What fields attached to lookup tables and execute parameters do at these places.
    bool InitLookupFiles();
    void RefreshLookupLink();
    void LoadLastUsedXParmsSet();
    void CheckLookupFiles();

    // A command of the user's: running out of memory ends it with a message, and shows the table as the source has it.
    template <class Work> void RunCommand(Work work) {
        if (RunInMemory(work))
            return;
        ReportOutOfMemory();
        RunInMemory([this] { RedrawAll(); });
    }

    void LockLoadedColumns();
    bool AddedFieldShown();
    void SettleEditOver(int col, long row);
    void ReadCellText(int col, long row);
    void WriteCellText(int col, long row, const char *text);
    void FindNext(const CFindReplaceData &data);
    bool IsAfterLastRecord(UINT key, int step);
    bool SetSourceOption(int option, long value);
    void GotoRecord(long record);
    void DeleteFilteredRecords(CUGDataSource *source);
    void FreezeColumns(int wanted);
    long FindPassing(long row, int step);
    bool StepToRecord(UINT key, int step, int newCol);
    const char *CellText(int col, long row);
    bool WalkColumn(ColumnSearch *search);
    bool FindInSearchOrder(ColumnSearch *search);
    bool FindByWrapping(ColumnSearch *search);
    bool TestCell(ColumnSearch *search, int col, long row);
    void GoToFound(int col, long row);
    void SayNoMatch(const char *originalFind);
    bool AskToReplace(int col, long row, const std::string &text, const std::string &newText, int *answer,
                      bool *replaced, bool *all);
    bool StillHolds(int col, long row, const std::string &text, bool *holds);
    bool StoreReplacement(int col, long row, const std::string &newText, bool all);
    bool PrepareReplace(ReplaceRun *run, int col, int direction);
    bool ReplaceInColumn(ReplaceRun *run, int col);
    bool ReplaceInCell(ReplaceRun *run, int col, long row);
    void TellReplaced(const ReplaceRun &run, const char *originalFind);
    void TellStopped(const ReplaceRun &run);
    void StoreLines();
    int SpanOfColumns(int first, int last);

    bool m_bStay = false; // the key just handled moves nothing further
    Search::KeptPatterns m_patterns;
    CUGCell m_searchedCell; // one for all, a search makes none anew
    CString m_searchedText;
};
