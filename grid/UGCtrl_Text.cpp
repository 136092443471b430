// Text that comes in as a whole: finding and replacing in the current column, pasting into the cells.
#include "grid/UGCtrl.h"

#include <algorithm>
#include <cstring>

int CUGCtrl::FindDialogText(const char *text, const char *replacement, bool replaceAll, bool closing) {
    if (closing) {
        m_newSearch = true;
        return GRID_ERROR;
    }
    CUGDataSource *source = m_GI.CurrentSource();
    const int col = GetCurrentCol();
    const int dataCol = TranslatedColumn(col);
    long row = 0;
    const int found = m_newSearch ? source->FindFirst(dataCol, text, &row) : source->FindNext(dataCol, text, &row);
    if (found != GRID_SUCCESS) {
        MessageBox("Item not found", "Not Found", MB_OK);
        return GRID_ERROR;
    }
    m_newSearch = false;
    GotoRow(row);
    if (replacement != nullptr) {
        QuickSetText(col, row, replacement);
        while (replaceAll && source->FindNext(dataCol, text, &row) == GRID_SUCCESS)
            QuickSetText(col, row, replacement);
        GotoCell(col, row);
    }
    RedrawAll();
    return GRID_SUCCESS;
}

int CUGCtrl::PasteText(const char *text) {
    const int startCol = GetCurrentCol();
    const long startRow = GetCurrentRow();
    int col = startCol, maxCol = startCol;
    long row = startRow, maxRow = startRow;
    CUGCell cell;
    // A tab that ends the text has an empty field after it; a line end has no further line.
    for (bool more = *text != '\0'; more;) {
        const char *end = text;
        while (*end != '\0' && *end != '\t' && *end != '\r' && *end != '\n')
            ++end;
        GetCellRaw(col, row, &cell);
        if (end == text)
            cell.ClearAll();
        else
            cell.SetText(CString(text, static_cast<int>(end - text)));
        if (SetCell(col, row, &cell) == GRID_SUCCESS) {
            maxCol = std::max(maxCol, col);
            maxRow = std::max(maxRow, row);
        }
        more = *end == '\t';
        if (more) {
            ++col;
        } else {
            col = startCol;
            ++row;
        }
        if (*end == '\r' && end[1] == '\n')
            ++end;
        text = *end == '\0' ? end : end + 1;
        more = more || *text != '\0';
    }
    ClearSelections();
    SelectRange(startCol, startRow, maxCol, maxRow);
    RedrawAll();
    return GRID_SUCCESS;
}

DROPEFFECT CUGCtrl::StartDrag(const char *text, COleDropSource *source, DWORD effects) {
    const size_t bytes = std::strlen(text) + 1;
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
    void *block = memory != nullptr ? ::GlobalLock(memory) : nullptr;
    if (block == nullptr)
        return DROPEFFECT_NONE;
    std::memcpy(block, text, bytes);
    ::GlobalUnlock(memory);
    m_dragSource.Empty();
    m_dragSource.CacheGlobalData(CF_TEXT, memory);
    const CRect atOnce(0, 0, 0, 0);
    m_grid.m_dragStarted = true;
    return m_dragSource.DoDragDrop(effects, source != nullptr ? &atOnce : nullptr, source);
}
