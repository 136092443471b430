#include "grid/UGSelectionList.h"

#include "grid/UGDefine.h"

#include <algorithm>
#include <limits>
#include <tuple>

bool CUGSelectionList::Block::Contains(int col, long row, UGSelectMode mode) const {
    return row >= top && row <= bottom && (mode == UG_SELECT_ROWS || (col >= left && col <= right));
}

void CUGSelectionList::ClearAll() {
    m_blocks.clear();
    m_open = false;
    m_enumerating = false;
}

void CUGSelectionList::StartBlock(int col, long row) {
    if (m_mode == UG_SELECT_OFF)
        return;
    if (m_mode == UG_SELECT_ROWS)
        col = 1;
    const Block block{col, col, row, row, col, col, row, row, true};
    if (m_open && m_blocks.back() == block)
        return; // again and again at the same cell it would pile up
    m_blocks.push_back(block);
    m_open = true;
}

int CUGSelectionList::ExtendBlock(int col, long row) {
    if (!m_open)
        return GRID_ERROR;
    Block &block = m_blocks.back();
    block.endCol = col;
    block.endRow = row;
    std::tie(block.left, block.right) = std::minmax(block.startCol, col);
    std::tie(block.top, block.bottom) = std::minmax(block.startRow, row);
    return GRID_SUCCESS;
}

void CUGSelectionList::ToggleCell(int col, long row) {
    if (m_mode == UG_SELECT_OFF)
        return;
    const bool rows = m_mode == UG_SELECT_ROWS;
    for (Block &block : m_blocks) {
        const bool sameCols = rows || (block.left == col && block.right == col);
        if (sameCols && block.top == row && block.bottom == row) {
            block.selected = !block.selected;
            return;
        }
    }
    const bool selected = IsSelected(col, row);
    StartBlock(col, row);
    m_blocks.back().selected = !selected;
}

bool CUGSelectionList::IsSelected(int col, long row) const {
    if (m_mode == UG_SELECT_OFF)
        return false;
    for (auto block = m_blocks.rbegin(); block != m_blocks.rend(); ++block) {
        if (block->Contains(col, row, m_mode))
            return block->selected;
    }
    return false;
}

int CUGSelectionList::GetCurrentBlock(int *left, long *top, int *right, long *bottom) const {
    if (m_mode == UG_SELECT_OFF)
        return GRID_SUCCESS;
    if (!m_open)
        return GRID_ERROR;
    const Block &block = m_blocks.back();
    *left = block.left;
    *top = block.top;
    *right = block.right;
    *bottom = block.bottom;
    return GRID_SUCCESS;
}

bool CUGSelectionList::BoxOfBlocks(Block *box) const {
    if (m_blocks.empty())
        return false;
    *box = m_blocks.front();
    for (const Block &block : m_blocks) {
        box->left = std::min(box->left, block.left);
        box->right = std::max(box->right, block.right);
        box->top = std::min(box->top, block.top);
        box->bottom = std::max(box->bottom, block.bottom);
    }
    return true;
}

// The first selected column of a row on the way from one column to another, to the right or to the left. From one
// column that decides the next one to look at is where a block begins or ends.
bool CUGSelectionList::FindInRow(long row, int from, int to, int *found) const {
    const int step = from <= to ? 1 : -1;
    const auto ahead = [step](long long one, long long other) { return (one - other) * step > 0; };
    for (long long col = from; !ahead(col, to);) {
        long long next = to + static_cast<long long>(step);
        const auto stopAt = [&](long long stop) { next = ahead(next, stop) ? stop : next; };
        bool selected = false;
        for (auto block = m_blocks.rbegin(); block != m_blocks.rend(); ++block) {
            if (row < block->top || row > block->bottom)
                continue;
            const int begin = step > 0 ? block->left : block->right;
            const int end = step > 0 ? block->right : block->left;
            if (block->Contains(static_cast<int>(col), row, m_mode)) {
                selected = block->selected;
                if (m_mode != UG_SELECT_ROWS)
                    stopAt(end + static_cast<long long>(step));
                break;
            }
            if (ahead(begin, col))
                stopAt(begin);
        }
        if (selected) {
            *found = static_cast<int>(col);
            return true;
        }
        col = next;
    }
    return false;
}

// The last row from this one on that the same blocks contain: all up to it are alike.
long CUGSelectionList::LastLike(long row) const {
    long last = std::numeric_limits<long>::max();
    for (const Block &block : m_blocks) {
        if (block.top > row)
            last = std::min(last, block.top - 1);
        else if (block.bottom >= row)
            last = std::min(last, block.bottom);
    }
    return last;
}

bool CUGSelectionList::GetBounds(int *left, long *top, int *right, long *bottom) const {
    Block box;
    if (m_mode == UG_SELECT_OFF || !BoxOfBlocks(&box))
        return false;
    if (m_mode == UG_SELECT_ROWS)
        box.left = box.right = 0;
    bool any = false;
    for (long row = box.top;; ++row) {
        const long last = std::min(LastLike(row), box.bottom);
        int first, end;
        if (FindInRow(row, box.left, box.right, &first) && FindInRow(row, box.right, box.left, &end)) {
            *left = any ? std::min(*left, first) : first;
            *right = any ? std::max(*right, end) : end;
            *top = any ? *top : row;
            *bottom = last;
            any = true;
        }
        if (last == box.bottom)
            return any;
        row = last;
    }
}

int CUGSelectionList::EnumFirst(int currentCol, long currentRow, int *col, long *row) {
    m_enumerating = false;
    if (m_blocks.empty()) {
        *col = currentCol;
        *row = currentRow;
        return GRID_SUCCESS;
    }
    BoxOfBlocks(&m_enumBox);
    if (m_mode == UG_SELECT_ROWS)
        m_enumBox.left = m_enumBox.right = 0;
    m_enumerating = true;
    return EnumFrom(m_enumBox.left, m_enumBox.top, col, row);
}

int CUGSelectionList::EnumNext(int *col, long *row) {
    if (m_mode == UG_SELECT_OFF || !m_enumerating)
        return GRID_ERROR;
    return EnumFrom(m_enumCol + 1LL, m_enumRow, col, row);
}

int CUGSelectionList::EnumFrom(long long col, long row, int *foundCol, long *foundRow) {
    while (m_mode != UG_SELECT_OFF) {
        if (col <= m_enumBox.right && FindInRow(row, static_cast<int>(col), m_enumBox.right, foundCol)) {
            m_enumCol = *foundCol;
            m_enumRow = *foundRow = row;
            return GRID_SUCCESS;
        }
        // A row without any speaks for all that are like it; one that was walked to its end does not.
        const long last = col == m_enumBox.left ? LastLike(row) : row;
        if (last >= m_enumBox.bottom)
            break;
        row = last + 1;
        col = m_enumBox.left;
    }
    m_enumerating = false;
    return GRID_ERROR;
}
