// CUGMem: the sparse store that the control itself owns, entry 0 of its source table.
//
// A doubly linked list of row nodes, each with a doubly linked list of column nodes, each with a cell or none.
// Numbers are not stored in the nodes: they follow from the place relative to a movable cursor, a row node and
// a column node with their indexes. Lists grow one node at a time, at either end, so headings can live in rows
// and columns below 0. Successive accesses near each other are cheap, and a jump costs the distance.
#pragma once

#include "grid/UGDataSource.h"

class ORVANE_API CUGMem : public CUGDataSource {
public:
    CUGMem() = default;
    ~CUGMem() override;
    CUGMem(const CUGMem &) = delete;
    CUGMem &operator=(const CUGMem &) = delete;

    // Both succeed and do nothing: rows and columns come into being with the first SetCell.
    int AppendRow() override;
    int AppendCol() override;
    // A row or cell that was never written needs no room: inserting there succeeds and does nothing.
    int InsertRow(long row) override;
    int InsertCol(int col) override;
    int DeleteRow(long row) override;
    // Cells to the right move one column to the left: a removal, not a blanking.
    int DeleteCell(int col, long row) override;
    // Removes everything. The answer is GRID_NOT_IMPLEMENTED also on success; callers ignore it.
    int Empty() override;

    int GetCell(int col, long row, CUGCell *cell) override;
    int SetCell(int col, long row, CUGCell *cell) override;

    // `row` receives the distance from the first row node. The search goes forwards only.
    int FindFirst(int col, const char *text, long *row) override;
    int FindNext(int col, const char *text, long *row) override;
    // A stable insertion sort, quadratic in the rows.
    int SortBy(int *cols, int count) override;
    int SortByCol(int col) override;

    virtual int UnusedOperationB();
    // The working column delete: DeleteCol keeps the answer of the base class.
    virtual int DeleteColumnCells(int col);
    virtual int UnusedOperationC(long, long, long);

    // How two cells compare; negative when `a` comes first, either may be null. The control puts its sort
    // notification here; the default compares the texts.
    using Evaluator = int (*)(CUGCtrl *ctrl, CUGCell *a, CUGCell *b);
    void SetSortEvaluator(Evaluator evaluator) { m_evaluate = evaluator; }

    // Nodes that stand in memory, for whoever has to account for them.
    long CountRowNodes() const;
    long CountColNodes(long row);

private:
    struct ColNode {
        ColNode *next = nullptr;
        ColNode *prev = nullptr;
        CUGCell *cell = nullptr; // owned
    };
    struct RowNode {
        RowNode *next = nullptr;
        RowNode *prev = nullptr;
        ColNode *cols = nullptr; // head
    };

    bool SeekRow(long row);
    bool SeekCol(int col);
    void ReachRow(long row);
    void ReachCol(int col);
    void ColToHead();
    void RowToFirst();
    void UnlinkCol(ColNode *node);
    static void FreeCols(RowNode *row);
    static CUGCell *CellOf(const RowNode *row, int col);
    RowNode *FirstRow() const;
    RowNode *LinkSorted(RowNode *head, RowNode *row, const int *cols, int count);
    bool SortsBefore(const RowNode *a, const RowNode *b, const int *cols, int count) const;

    long m_rowIndex = 0;
    RowNode *m_row = nullptr;
    int m_colIndex = 0;
    ColNode *m_col = nullptr;
    long m_findRow = 0;
    Evaluator m_evaluate = nullptr;
};

// The comparison of two cells for sorting: a missing cell `a` sorts first, a missing `b` last, else the texts
// are compared with regard to case.
ORVANE_API int UGCompareCells(const CUGCell *a, const CUGCell *b);
