#include "GridInvariants.h"

#include <algorithm>
#include <vector>

int ProbedGrid::OnSetupEditWindow(int col, long row, RECT *rect, CUGCell *cell, DWORD *style, int flag) {
    m_editMayStand = true;
    return RecordingGrid::OnSetupEditWindow(col, row, rect, cell, style, flag);
}

void ProbedGrid::OnCellTypeNotify(long id, int col, long row, long message, LPARAM param) {
    m_listMayStand |= id == kDropListTypeId && message == kListOpens;
    RecordingGrid::OnCellTypeNotify(id, col, row, message, param);
}

HWND ProbedGrid::List() {
    constexpr int kListChildId = 238;
    const HWND list = m_listMayStand ? ::GetDlgItem(m_hWnd, kListChildId) : nullptr;
    m_listMayStand = list != nullptr;
    return list;
}

HWND ProbedGrid::LostEdit() {
    const HWND edit = m_editMayStand ? ::GetDlgItem(Cells(), kEditChildId) : nullptr;
    m_editMayStand = edit != nullptr;
    return edit;
}

namespace {

std::string Numbers(std::initializer_list<long> values) {
    std::string all;
    for (long value : values)
        all += " " + std::to_string(value);
    return all;
}

// Arrays must fit the count, or the next look at a size reads beyond them. Uniform axes keep none.
std::string SizesOf(const CUGAxis &axis, const char *name, unsigned turn) {
    const long held = static_cast<long>(axis.m_sizes.size());
    if (axis.m_count < 0 || held != (axis.m_uniform ? 0 : axis.m_count))
        return std::string(name) + ": sizes do not fit the count" + Numbers({axis.m_count, held});
    // Negative sizes would let the sums that place cells run backwards. All are looked at by and by.
    constexpr long kAtATime = 50;
    const long first = held > 0 ? static_cast<long>(turn % static_cast<unsigned>(held)) : 0;
    for (long i = first; i < std::min(first + kAtATime, held); ++i) {
        if (axis.m_sizes[i] < 0)
            return std::string(name) + ": negative size of" + Numbers({i, axis.m_sizes[i]});
    }
    return axis.m_defaultSize < 0 ? std::string(name) + ": negative default size" : "";
}

// The definition told in its own words, not the code's: from the end backwards, as many as fit.
long ExpectedMaxLeading(const CUGAxis &axis) {
    long long used = 0;
    for (long index = axis.m_count - 1; index >= 0; --index) {
        used += axis.SizeOf(index);
        if (used > axis.m_extent)
            return index == axis.m_count - 1 ? index : index + 1;
        if (axis.m_uniform && axis.m_defaultSize == 0)
            return 0;
    }
    return 0;
}

std::string CursorsOf(const CUGAxis &axis, const char *name) {
    const std::string who = std::string(name) + ": ";
    const long end = std::max(axis.m_count, 1L);
    // A cursor beyond the table would be read and written outside of it.
    if (axis.m_current < 0 || axis.m_current >= end)
        return who + "current out of range" + Numbers({axis.m_current, axis.m_count});
    // Every change of the current one has been told, or the next update tells a change that was none.
    if (axis.m_last != axis.m_current)
        return who + "last is not current" + Numbers({axis.m_last, axis.m_current});
    if (axis.m_maxLeading != ExpectedMaxLeading(axis))
        return who + "maximum leading" + Numbers({axis.m_maxLeading, ExpectedMaxLeading(axis)});
    // Beyond the maximum the view would show emptiness while there are cells that it could show.
    if (axis.m_leading < 0 || axis.m_leading > axis.m_maxLeading)
        return who + "leading out of range" + Numbers({axis.m_leading, axis.m_maxLeading});
    return "";
}

// Every column is drawn from its default and its heading: one missing is a crash at the next paint.
std::string ColumnCells(const CUGGridInfo &state) {
    const auto count = static_cast<size_t>(state.m_cols.m_count);
    if (state.m_colDefaults.size() != count || state.m_colHeadings.size() != count)
        return "columns without default or heading";
    for (size_t col = 0; col < count; ++col) {
        if (!state.m_colDefaults[col] || !state.m_colHeadings[col])
            return "column without default or heading" + Numbers({static_cast<long>(col)});
    }
    // The side heading draws the locked columns from the columns' sizes.
    if (state.m_lockedCols < 0 || state.m_lockedCols > state.m_cols.m_count)
        return "more locked columns than columns" + Numbers({state.m_lockedCols, state.m_cols.m_count});
    return "";
}

// What guards or colours one event must not reach into the next.
std::string Leftovers(const CUGGridInfo &state) {
    if (state.m_moveType != UG_MOVED_BY_PROGRAM)
        return "the move type of an event is left" + Numbers({state.m_moveType});
    if (state.m_scrollMargin != 1)
        return "the scroll margin of a click is left";
    if (state.m_adjusting != 0)
        return "the layout's guard is left";
    if (state.m_currentSource < 0 || state.m_currentSource >= kDataSourceSlots || !state.m_sources[0])
        return "no source to read from" + Numbers({state.m_currentSource});
    return "";
}

std::string Bar(HWND bar, bool shown, const UGScrollRange &range, int position) {
    // A bar shows exactly while there is something to scroll to.
    if (((::GetWindowLongA(bar, GWL_STYLE) & WS_VISIBLE) != 0) != shown)
        return "bar shown wrongly";
    if (!shown)
        return "";
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    ::GetScrollInfo(bar, SB_CTL, &info);
    // Else the thumb lies about where the view is, and dragging it goes elsewhere.
    if (info.nMin != 0 || info.nMax != range.m_max || static_cast<int>(info.nPage) != range.m_page ||
        info.nPos != position)
        return "bar shows" + Numbers({info.nMin, info.nMax, static_cast<long>(info.nPage), info.nPos}) +
               " for" + Numbers({range.m_max, range.m_page, position});
    return "";
}

std::string Bars(ProbedGrid &grid) {
    const CUGGridInfo &state = grid.m_GI;
    const CUGAxis &rows = state.m_rows, &cols = state.m_cols;
    const bool spring = state.m_vScrollMode == 2;
    const auto vertical = UGScrollRange::Vertical(rows.m_maxLeading, rows.m_extent, rows.m_defaultSize, spring);
    const auto horizontal = UGScrollRange::Horizontal(cols.m_maxLeading, cols.m_extent, cols.m_defaultSize);
    if (state.m_vScrollShown != (rows.m_maxLeading > 0) ||
        state.m_hScrollShown != (cols.m_maxLeading > 0 || state.m_tabWidth > 0))
        return "the state of the bars is not what the maximum says";
    if (!state.m_paintingEnabled)
        return ""; // the bars stand still as well and follow when painting is on again
    std::string broken = Bar(grid.VBar(), state.m_vScrollShown, vertical,
                             spring ? 1 : vertical.BarPosition(rows.m_leading));
    if (!broken.empty())
        return "vertical " + broken;
    broken = Bar(grid.HBar(), state.m_hScrollShown, horizontal, horizontal.BarPosition(cols.m_leading));
    return broken.empty() ? "" : "horizontal " + broken;
}

// The parts tile the client area: an overlap is a part painted over another, and what sticks out is never seen.
std::string Places(ProbedGrid &grid) {
    struct Part {
        const char *name;
        HWND window;
    };
    const Part parts[] = {{"cells", grid.Cells()},   {"top", grid.TopHeading()}, {"side", grid.SideHeading()},
                          {"corner", grid.Corner()}, {"vbar", grid.VBar()},      {"hbar", grid.HBar()},
                          {"tab", grid.Tab()}};
    CRect client;
    grid.GetClientRect(&client);
    CRect places[std::size(parts)];
    for (size_t i = 0; i < std::size(parts); ++i) {
        if (!(::GetWindowLongA(parts[i].window, GWL_STYLE) & WS_VISIBLE))
            continue;
        ::GetWindowRect(parts[i].window, &places[i]);
        grid.ScreenToClient(&places[i]);
        CRect common;
        if (!places[i].IsRectEmpty() && (!common.IntersectRect(places[i], client) || common != places[i]))
            return std::string(parts[i].name) + " outside the client" +
                   Numbers({places[i].left, places[i].top, places[i].right, places[i].bottom, client.right,
                            client.bottom});
        for (size_t k = 0; k < i; ++k) {
            if (common.IntersectRect(places[i], places[k]))
                return std::string(parts[i].name) + " over " + parts[k].name;
        }
    }
    // Hit tests and scroll distances are reckoned from the extents, the drawing from the window.
    const CUGGridInfo &state = grid.m_GI;
    if (places[0].Width() != state.m_cols.m_extent || places[0].Height() != state.m_rows.m_extent)
        return "cells of another size than the state says" +
               Numbers({places[0].Width(), places[0].Height(), state.m_cols.m_extent, state.m_rows.m_extent});
    return "";
}

// The rule told once more: the last block around the cell decides.
bool ExpectedSelected(const CUGSelectionList &list, int col, long row) {
    bool selected = false;
    for (const auto &block : list.GetBlocks()) {
        const bool inCols = list.GetMode() == UG_SELECT_ROWS || (col >= block.left && col <= block.right);
        if (inCols && row >= block.top && row <= block.bottom)
            selected = block.selected;
    }
    return selected && list.GetMode() != UG_SELECT_OFF;
}

std::string Blocks(ProbedGrid &grid, unsigned turn) {
    const CUGGridInfo &state = grid.m_GI;
    const CUGSelectionList &list = state.m_selection;
    const UGSelectMode mode = !state.m_multiSelect    ? UG_SELECT_OFF
                              : state.m_rowHighlight ? UG_SELECT_ROWS
                                                     : UG_SELECT_CELLS;
    if (list.GetMode() != mode)
        return "selection mode" + Numbers({list.GetMode(), mode});
    // Off selects nothing, also later when it is turned on again.
    if (mode == UG_SELECT_OFF && !list.IsEmpty())
        return "blocks while selection is off";
    for (const auto &block : list.GetBlocks()) {
        // Walks go from left and top; a block that stands wrong way round would never contain a cell. Blocks
        // may reach beyond a table that shrank: they are positions, and the table may grow again.
        if (block.left != std::min(block.startCol, block.endCol) ||
            block.right != std::max(block.startCol, block.endCol) ||
            block.top != std::min(block.startRow, block.endRow) ||
            block.bottom != std::max(block.startRow, block.endRow) || block.left < 0 || block.top < 0)
            return "block not normalised" + Numbers({block.left, block.top, block.right, block.bottom});
    }
    for (unsigned i = 0; i < 8; ++i) {
        const int col = static_cast<int>((turn + i * 3) % 14);
        const long row = static_cast<long>((turn / 14 + i * 7) % 120);
        if (grid.IsSelected(col, row) != ExpectedSelected(list, col, row))
            return "selected or not" + Numbers({col, row});
    }
    return "";
}

// What commands work on is what the user sees: the enumeration gives selected cells, in reading order, once.
std::string Enumeration(ProbedGrid &grid) {
    constexpr int kSample = 60;
    int col = -1, lastCol = -1;
    long row = -1, lastRow = -1;
    const CUGSelectionList &list = grid.m_GI.m_selection;
    int result = grid.EnumFirstSelected(&col, &row);
    if (list.IsEmpty() && (result != GRID_SUCCESS || col != grid.GetCurrentCol() || row != grid.GetCurrentRow()))
        return "without a block the enumeration does not give the current cell";
    for (int i = 0; i < kSample && result == GRID_SUCCESS && !list.IsEmpty(); ++i) {
        if (!grid.IsSelected(col, row))
            return "enumerated, but not selected" + Numbers({col, row});
        if (row < lastRow || (row == lastRow && col <= lastCol))
            return "enumerated out of order" + Numbers({lastCol, lastRow, col, row});
        if (list.GetMode() == UG_SELECT_ROWS && col != 0)
            return "rows are told by column 0" + Numbers({col, row});
        lastCol = col;
        lastRow = row;
        result = grid.EnumNextSelected(&col, &row);
    }
    return "";
}

// A box that stays behind holds text that belongs to no cell, and keys go into it.
std::string Edit(ProbedGrid &grid) {
    const HWND edit = grid.Edit();
    if (edit == nullptr)
        return grid.LostEdit() == nullptr ? "" : "an edit window that nobody knows";
    const int col = grid.m_GI.m_editCol;
    const long row = grid.m_GI.m_editRow;
    if (::GetParent(edit) != grid.Cells() || !(::GetWindowLongA(edit, GWL_STYLE) & WS_VISIBLE))
        return "an edit that does not stand over the cells";
    if (!grid.m_GI.m_cols.Contains(col) || !grid.m_GI.m_rows.Contains(row))
        return "an edit of a cell that is gone" + Numbers({col, row});
    // Without the suppress flag a box that lost the focus has finished and gone.
    if (!grid.EditPart().m_active)
        return "an edit that owes nothing is open";
    if (grid.m_readsFail)
        return "";
    CRect box, cell;
    ::GetWindowRect(edit, &box);
    ::MapWindowPoints(nullptr, grid.Cells(), reinterpret_cast<POINT *>(&box), 2);
    grid.GetCellRect(col, row, &cell);
    for (LONG *side : {&cell.left, &cell.top, &cell.right, &cell.bottom})
        *side = std::clamp<LONG>(*side, -10000, 10000); // as far as a window is put out of sight
    if (box.left < cell.left || box.top < cell.top || box.left > std::max(cell.right, cell.left) ||
        box.top > std::max(cell.bottom, cell.top))
        return "the edit stands elsewhere than its cell" +
               Numbers({box.left, box.top, cell.left, cell.top, cell.right, cell.bottom});
    return "";
}

// The list takes keys and clicks for one cell: without the focus it would stay open for ever.
std::string List(ProbedGrid &grid) {
    const HWND list = grid.List();
    return list != nullptr && ::GetFocus() != list ? "an open list without the focus" : "";
}

// A mouse that is held for nobody takes the next click away from whom it is meant for.
std::string Mouse(ProbedGrid &grid) {
    const HWND holder = ::GetCapture();
    if (grid.CellArea().HoldsMouse() != (holder == grid.Cells()))
        return "the cells and the system disagree on who holds the mouse";
    if (grid.CellArea().Tracker() != nullptr && !grid.CellArea().HoldsMouse())
        return "a type follows a mouse that nobody holds";
    if (grid.TopHeadingPart().IsResizing() && holder != grid.TopHeading())
        return "a column is being sized without the mouse";
    if (grid.SideHeadingPart().IsResizing() && holder != grid.SideHeading())
        return "a row is being sized without the mouse";
    if (grid.CornerPart().IsResizing() && holder != grid.Corner())
        return "the corner is being sized without the mouse";
    return "";
}

// Keys and buttons act on the focus cell of the current cell's type; another one would change another cell.
std::string FocusCell(ProbedGrid &grid) {
    CUGCellType *type = grid.GetCellType(grid.m_GI.m_currentCell.GetCellType());
    if (type->m_hasFocus && (type->m_focusCol != grid.GetCurrentCol() || type->m_focusRow != grid.GetCurrentRow()))
        return "the type's focus is on another cell" + Numbers({type->m_focusCol, type->m_focusRow});
    return "";
}

} // namespace

std::string BrokenInvariant(ProbedGrid &grid, unsigned turn) {
    const CUGGridInfo &state = grid.m_GI;
    std::string broken = SizesOf(state.m_cols, "columns", turn);
    const auto next = [&](auto check) {
        if (broken.empty())
            broken = check();
    };
    next([&] { return SizesOf(state.m_rows, "rows", turn); });
    next([&] { return CursorsOf(state.m_cols, "columns"); });
    next([&] { return CursorsOf(state.m_rows, "rows"); });
    next([&] { return ColumnCells(state); });
    next([&] { return Leftovers(state); });
    next([&] { return Bars(grid); });
    next([&] { return Places(grid); });
    next([&] { return Blocks(grid, turn); });
    next([&] { return Enumeration(grid); });
    next([&] { return Edit(grid); });
    next([&] { return List(grid); });
    next([&] { return Mouse(grid); });
    next([&] { return FocusCell(grid); });
    return broken;
}
