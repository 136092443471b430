// CUGDataSource: the abstract table behind the grid. Every operation has a harmless default, so that a source
// implements only what it supports.
//
// The order of the virtual operations is part of the interface: hosts and the library are built apart.
//
// Rows and columns are counted from 0. Results are GRID_SUCCESS (0) or an error code unless stated; callers
// test for nonzero, so the default GRID_NOT_IMPLEMENTED is a failure to them.
#pragma once

#include "grid/UGCell.h"
#include "grid/UGDefine.h"

#include <afx.h>

class CUGCtrl;

// Selectors of CUGDataSource::SetOption.
constexpr int UGSRC_ATTACH_FILTER = 4;  // value1: the filter's number, 0 the default filter
constexpr int UGSRC_DETACH_FILTER = 5;
constexpr int UGSRC_ONLY_FILTERED = 6;  // value1: 1 to present only the filtered records, else 0
// Selectors of CUGDataSource::GetOption.
constexpr int UGSRC_PATH = 1;           // value1: CString **, the string receives it; value2: int *, 0
constexpr int UGSRC_PASSES_FILTER = 2;  // value1: long * record number from 1, value2: int *, 1 for a pass
constexpr int UGSRC_WRITABLE = 7;       // value1: int *, 0 when the table cannot be written; value2: int *

class ORVANE_API CUGDataSource {
public:
    virtual ~CUGDataSource() = default;

    // Opens the table `name`. `options` is what the editor composed: "-table " with the table's name, "-view "
    // for read only, " -filter %d".
    virtual int Open(const char *name, const char *options);
    virtual int UnusedOperationA(long, long);
    // 0 closes; anything else refuses and the editor stays open. The editor passes its own argument through.
    virtual int Close(bool force);
    virtual int Save();
    virtual int SaveAs(const char *name, const char *options);

    virtual long GetNumRows();
    virtual int GetNumCols();
    virtual int GetColName(int col, CString *name);
    // Types 2 to 5 count as numeric to the editor.
    virtual int GetColType(int col, int *type);

    virtual int AppendRow();
    virtual int InsertRow(long row); // before `row`
    virtual int AppendCol();
    virtual int InsertCol(int col);
    virtual int DeleteRow(long row);
    virtual int DeleteCol(int col);
    virtual int DeleteCell(int col, long row);
    virtual int Empty();

    // Merges the stored properties into `cell`.
    virtual int GetCell(int col, long row, CUGCell *cell);
    virtual int SetCell(int col, long row, CUGCell *cell);

    // First row, or next row behind the last one found, whose cell equals `text`.
    virtual int FindFirst(int col, const char *text, long *row);
    virtual int FindNext(int col, const char *text, long *row);
    virtual int SortBy(int *cols, int count);
    virtual int SortByCol(int col);

    virtual int SetOption(int option, long value1, long value2);
    virtual int GetOption(int option, void *value1, void *value2);

    // Asked when a move runs past the last row: may add rows, and tells in `found` how many.
    virtual int RequestMoreRows(long rowCount, long wanted, long *found);

    // Width of the field in characters; 0 means no usable field.
    virtual int GetFieldWidth(int col);
    virtual int GetFieldDecimals(int col);

    // `count` times InsertRow or DeleteRow at the same row, stopping with GRID_ERROR at the first failure. A
    // count below 1 succeeds.
    virtual int InsertRows(long row, long count);
    virtual int DeleteRows(long row, long count);

    // A group of changes that is undone as one. An empty pair closes the group that is open.
    virtual void StartTransaction();
    virtual void EndTransaction();
    virtual void Undo();
    virtual void Redo();
    virtual bool CanUndo();
    virtual bool CanRedo();

    // The control whose table the source stands in; null while it stands in none. Not owned.
    CUGCtrl *m_ctrl = nullptr;
};
