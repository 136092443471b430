// CUGSelectionList: what is selected, as a list of blocks of which later ones win.
//
// A block carries a flag, so that a later block can take cells out of an earlier one. The list knows no window.
#pragma once

#include <vector>

enum UGSelectMode {
    UG_SELECT_OFF = 0,
    UG_SELECT_CELLS = 1,
    UG_SELECT_ROWS = 2, // whole rows; the columns of a block play no part
};

class ORVANE_API CUGSelectionList {
public:
    struct ORVANE_API Block {
        int startCol, endCol; // as given: where the block began and where it was last extended to
        long startRow, endRow;
        int left, right; // the same, normalised
        long top, bottom;
        bool selected;

        bool Contains(int col, long row, UGSelectMode mode) const;
        bool operator==(const Block &other) const = default;
    };

    void SetMode(UGSelectMode mode) { m_mode = mode; }
    UGSelectMode GetMode() const { return m_mode; }

    // Removes all blocks; the mode stays.
    void ClearAll();
    bool IsEmpty() const { return m_blocks.empty(); }
    const std::vector<Block> &GetBlocks() const { return m_blocks; }

    // A one-cell block becomes the open one, which it stays where it is that already. Nothing while the mode is off.
    void StartBlock(int col, long row);
    // Moves the end of the open block. GRID_ERROR with none open.
    int ExtendBlock(int col, long row);
    // Turns one cell over. A block added here is open and last.
    void ToggleCell(int col, long row);

    bool IsSelected(int col, long row) const;

    // The last block, normalised. GRID_ERROR when none is open; GRID_SUCCESS without writing while off.
    int GetCurrentBlock(int *left, long *top, int *right, long *bottom) const;
    // The smallest rectangle around all selected cells. False when nothing is selected.
    bool GetBounds(int *left, long *top, int *right, long *bottom) const;

    // Enumerates row by row. With no blocks the first answer is the current cell that is passed in. In row mode
    // one cell a row, in column 0.
    int EnumFirst(int currentCol, long currentRow, int *col, long *row);
    int EnumNext(int *col, long *row);

private:
    bool BoxOfBlocks(Block *box) const;
    bool FindInRow(long row, int from, int to, int *found) const;
    long LastLike(long row) const;
    int EnumFrom(long long col, long row, int *foundCol, long *foundRow);

    std::vector<Block> m_blocks;
    UGSelectMode m_mode = UG_SELECT_OFF;
    bool m_open = false;
    bool m_enumerating = false;
    Block m_enumBox{};
    int m_enumCol = 0;
    long m_enumRow = 0;
};
