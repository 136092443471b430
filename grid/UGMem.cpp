#include "grid/UGMem.h"

CUGMem::~CUGMem() {
    CUGMem::Empty();
}

void CUGMem::ColToHead() {
    m_col = m_row->cols;
    m_colIndex = 0;
}

bool CUGMem::SeekRow(long row) {
    if (m_row == nullptr)
        return false;
    if (row == m_rowIndex)
        return true; // the column cursor stays: the next access is most often beside the last
    while (m_rowIndex < row && m_row->next != nullptr) {
        m_row = m_row->next;
        ++m_rowIndex;
    }
    while (m_rowIndex > row && m_row->prev != nullptr) {
        m_row = m_row->prev;
        --m_rowIndex;
    }
    ColToHead();
    return m_rowIndex == row;
}

bool CUGMem::SeekCol(int col) {
    if (m_col == nullptr)
        return false;
    while (m_colIndex < col && m_col->next != nullptr) {
        m_col = m_col->next;
        ++m_colIndex;
    }
    while (m_colIndex > col && m_col->prev != nullptr) {
        m_col = m_col->prev;
        --m_colIndex;
    }
    return m_colIndex == col;
}

int CUGMem::GetCell(int col, long row, CUGCell *cell) {
    if (!SeekRow(row) || !SeekCol(col) || m_col->cell == nullptr)
        return GRID_ERROR;
    return cell->MergeFrom(m_col->cell);
}

// Walks to the row, making the nodes that are missing at either end.
void CUGMem::ReachRow(long row) {
    if (m_row == nullptr) {
        m_row = new RowNode;
        m_rowIndex = 0;
        m_col = nullptr;
        m_colIndex = 0;
    }
    while (!SeekRow(row)) {
        auto *node = new RowNode;
        if (m_rowIndex < row) {
            node->prev = m_row;
            m_row->next = node;
            ++m_rowIndex;
        } else {
            node->next = m_row;
            m_row->prev = node;
            --m_rowIndex;
        }
        m_row = node;
        ColToHead();
    }
}

void CUGMem::ReachCol(int col) {
    if (m_row->cols == nullptr) {
        m_row->cols = new ColNode;
        ColToHead();
    }
    while (!SeekCol(col)) {
        auto *node = new ColNode;
        if (m_colIndex < col) {
            node->prev = m_col;
            m_col->next = node;
            ++m_colIndex;
        } else {
            node->next = m_col;
            m_col->prev = node;
            m_row->cols = node;
            --m_colIndex;
        }
        m_col = node;
    }
}

int CUGMem::SetCell(int col, long row, CUGCell *cell) {
    ReachRow(row);
    ReachCol(col);
    if (m_col->cell == nullptr)
        m_col->cell = new CUGCell;
    return m_col->cell->CopyFrom(cell);
}

int CUGMem::AppendRow() {
    return GRID_SUCCESS;
}

int CUGMem::AppendCol() {
    return GRID_SUCCESS;
}

int CUGMem::InsertRow(long row) {
    if (!SeekRow(row))
        return GRID_SUCCESS;
    auto *node = new RowNode;
    node->prev = m_row->prev;
    node->next = m_row;
    if (m_row->prev != nullptr)
        m_row->prev->next = node;
    m_row->prev = node;
    ++m_rowIndex; // the cursor stays on its node, which has moved down
    return GRID_SUCCESS;
}

int CUGMem::InsertCol(int col) {
    if (m_row == nullptr)
        return GRID_ERROR;
    for (RowToFirst();; m_row = m_row->next, ++m_rowIndex, ColToHead()) {
        if (SeekCol(col)) {
            auto *node = new ColNode;
            node->prev = m_col->prev;
            node->next = m_col;
            if (m_col->prev != nullptr)
                m_col->prev->next = node;
            else
                m_row->cols = node;
            m_col->prev = node;
            ++m_colIndex;
        }
        if (m_row->next == nullptr)
            return GRID_SUCCESS;
    }
}

void CUGMem::FreeCols(RowNode *row) {
    while (ColNode *node = row->cols) {
        row->cols = node->next;
        delete node->cell;
        delete node;
    }
}

int CUGMem::DeleteRow(long row) {
    if (!SeekRow(row))
        return GRID_SUCCESS;
    RowNode *gone = m_row;
    FreeCols(gone);
    if (gone->prev != nullptr)
        gone->prev->next = gone->next;
    if (gone->next != nullptr)
        gone->next->prev = gone->prev;
    if (gone->next != nullptr) {
        m_row = gone->next; // it takes the number of the row that went
    } else {
        m_row = gone->prev;
        m_rowIndex = m_row != nullptr ? m_rowIndex - 1 : 0;
    }
    delete gone;
    m_col = m_row != nullptr ? m_row->cols : nullptr;
    m_colIndex = 0;
    return GRID_SUCCESS;
}

// Takes the column node, which must be the cursor's, out of its row. The cursor goes to the row's head.
void CUGMem::UnlinkCol(ColNode *node) {
    if (node->prev != nullptr)
        node->prev->next = node->next;
    else
        m_row->cols = node->next;
    if (node->next != nullptr)
        node->next->prev = node->prev;
    delete node->cell;
    delete node;
    ColToHead();
}

int CUGMem::DeleteCell(int col, long row) {
    if (!SeekRow(row) || !SeekCol(col))
        return GRID_ERROR;
    UnlinkCol(m_col);
    return GRID_SUCCESS;
}

int CUGMem::DeleteColumnCells(int col) {
    if (m_row == nullptr)
        return GRID_ERROR;
    for (RowToFirst();; m_row = m_row->next, ++m_rowIndex, ColToHead()) {
        if (SeekCol(col)) {
            if (m_col->next != nullptr) {
                UnlinkCol(m_col);
            } else {
                // The last node of a row stays: it holds the row's place in the columns before it.
                delete m_col->cell;
                m_col->cell = nullptr;
            }
        }
        if (m_row->next == nullptr)
            break;
    }
    ColToHead();
    return GRID_SUCCESS;
}

CUGMem::RowNode *CUGMem::FirstRow() const {
    RowNode *row = m_row;
    while (row != nullptr && row->prev != nullptr)
        row = row->prev;
    return row;
}

// The cursor goes to the first node, keeping its number: rows below 0 stay below 0.
void CUGMem::RowToFirst() {
    while (m_row->prev != nullptr) {
        m_row = m_row->prev;
        --m_rowIndex;
    }
    ColToHead();
}

int CUGMem::Empty() {
    for (RowNode *row = FirstRow(); row != nullptr;) {
        RowNode *next = row->next;
        FreeCols(row);
        delete row;
        row = next;
    }
    m_row = nullptr;
    m_col = nullptr;
    m_rowIndex = 0;
    m_colIndex = 0;
    return GRID_NOT_IMPLEMENTED;
}

int CUGMem::UnusedOperationB() {
    return GRID_NOT_IMPLEMENTED;
}

int CUGMem::UnusedOperationC(long, long, long) {
    return GRID_NOT_IMPLEMENTED;
}

long CUGMem::CountRowNodes() const {
    long count = 0;
    for (const RowNode *row = FirstRow(); row != nullptr; row = row->next)
        ++count;
    return count;
}

long CUGMem::CountColNodes(long row) {
    long count = 0;
    if (SeekRow(row)) {
        for (const ColNode *col = m_row->cols; col != nullptr; col = col->next)
            ++count;
    }
    return count;
}
