#include "grid/UGSelectionList.h"

#include "grid/UGDefine.h"

#include <algorithm>
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
    m_blocks.push_back({col, col, row, row, col, col, row, row, true});
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

bool CUGSelectionList::AnySelected(int left, long top, int right, long bottom) const {
    for (long row = top; row <= bottom; ++row) {
        for (int col = left; col <= right; ++col) {
            if (IsSelected(col, row))
                return true;
        }
    }
    return false;
}

bool CUGSelectionList::GetBounds(int *left, long *top, int *right, long *bottom) const {
    Block box;
    if (m_mode == UG_SELECT_OFF || !BoxOfBlocks(&box))
        return false;
    if (m_mode == UG_SELECT_ROWS)
        box.left = box.right = 0;
    while (box.top <= box.bottom && !AnySelected(box.left, box.top, box.right, box.top))
        ++box.top;
    if (box.top > box.bottom)
        return false;
    while (!AnySelected(box.left, box.bottom, box.right, box.bottom))
        --box.bottom;
    while (!AnySelected(box.left, box.top, box.left, box.bottom))
        ++box.left;
    while (!AnySelected(box.right, box.top, box.right, box.bottom))
        --box.right;
    *left = box.left;
    *top = box.top;
    *right = box.right;
    *bottom = box.bottom;
    return true;
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
    return EnumFrom(m_enumCol + 1, m_enumRow, col, row);
}

int CUGSelectionList::EnumFrom(int col, long row, int *foundCol, long *foundRow) {
    for (; row <= m_enumBox.bottom; ++row, col = m_enumBox.left) {
        for (; col <= m_enumBox.right; ++col) {
            if (!IsSelected(col, row))
                continue;
            m_enumCol = *foundCol = col;
            m_enumRow = *foundRow = row;
            return GRID_SUCCESS;
        }
    }
    m_enumerating = false;
    return GRID_ERROR;
}
