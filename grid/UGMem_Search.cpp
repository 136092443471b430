// Finding and sorting in the sparse store.
#include "grid/UGMem.h"

#include <cstring>

int UGCompareCells(const CUGCell *a, const CUGCell *b) {
    if (a == nullptr)
        return -1;
    if (b == nullptr)
        return 1;
    return std::strcmp(a->GetText(), b->GetText());
}

int CUGMem::FindFirst(int col, const char *text, long *row) {
    if (m_row == nullptr)
        return GRID_ERROR;
    RowToFirst();
    m_findRow = 0;
    for (;;) {
        if (SeekCol(col) && m_col->cell != nullptr && CString(m_col->cell->GetText()).CompareNoCase(text) == 0) {
            *row = m_findRow;
            return GRID_SUCCESS;
        }
        if (m_row->next == nullptr)
            return GRID_ERROR;
        m_row = m_row->next;
        ++m_rowIndex;
        ++m_findRow;
        ColToHead();
    }
}

int CUGMem::FindNext(int col, const char *text, long *row) {
    ++m_findRow;
    if (!SeekRow(m_findRow - 1))
        return GRID_ERROR;
    while (m_row->next != nullptr) {
        m_row = m_row->next;
        ++m_rowIndex;
        ColToHead();
        if (SeekCol(col) && m_col->cell != nullptr && CString(m_col->cell->GetText()).CompareNoCase(text) == 0) {
            *row = m_findRow;
            return GRID_SUCCESS;
        }
        ++m_findRow;
    }
    return GRID_ERROR;
}

// The cell in the row's column `col`, counted from the row's head as a fresh seek does; null when it has none.
CUGCell *CUGMem::CellOf(const RowNode *row, int col) {
    const ColNode *node = row->cols;
    for (int index = 0; node != nullptr && index < col; ++index)
        node = node->next;
    return node != nullptr && col >= 0 ? node->cell : nullptr;
}

bool CUGMem::SortsBefore(const RowNode *a, const RowNode *b, const int *cols, int count) const {
    for (int i = 0; i < count; ++i) {
        CUGCell *cellA = CellOf(a, cols[i]);
        CUGCell *cellB = CellOf(b, cols[i]);
        if (cellA == nullptr && cellB == nullptr)
            continue;
        if (cellA == nullptr || cellB == nullptr)
            return cellB == nullptr; // a row that lacks the cell is the greater one
        int order = m_evaluate != nullptr ? m_evaluate(m_ctrl, cellA, cellB) : UGCompareCells(cellA, cellB);
        if (order != 0)
            return order < 0;
    }
    return false;
}

// Links the row before the first one that it sorts before, or at the end. Returns the head of the list.
CUGMem::RowNode *CUGMem::LinkSorted(RowNode *head, RowNode *row, const int *cols, int count) {
    RowNode *before = head;
    RowNode *last = nullptr;
    while (before != nullptr && !SortsBefore(row, before, cols, count)) {
        last = before;
        before = before->next;
    }
    row->prev = last;
    row->next = before;
    if (before != nullptr)
        before->prev = row;
    if (last == nullptr)
        return row;
    last->next = row;
    return head;
}

int CUGMem::SortBy(int *cols, int count) {
    if (!SeekRow(0))
        return GRID_ERROR;
    RowNode *head = m_row; // headings in front of row 0 are no part of the order
    RowNode *headings = head->prev;
    RowNode *next = head->next;
    head->prev = nullptr;
    head->next = nullptr;
    while (next != nullptr) {
        RowNode *row = next;
        next = row->next;
        head = LinkSorted(head, row, cols, count);
    }
    head->prev = headings;
    if (headings != nullptr)
        headings->next = head;
    m_row = head;
    m_rowIndex = 0;
    ColToHead();
    return GRID_SUCCESS;
}

int CUGMem::SortByCol(int col) {
    return SortBy(&col, 1);
}
