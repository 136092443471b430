// Tables whose rows are an indented outline.
#include "lookup/LookupTableFileCompiler.h"

#include "grid/UGDataSource.h"

#include <afxwin.h>

#include <vector>

// Looks for texts from the left. False when a cell cannot be read, `column` then being its column.
bool CLookupTableFileCompiler::ScanRow(long row, int columns, RowTexts &found, int &column, CString &errorText) {
    found.count = 0;
    for (found.stopped = 0; found.stopped < columns; ++found.stopped) {
        CString text;
        if (!GetCellText(found.stopped, row, text, errorText)) {
            column = found.stopped;
            return false;
        }
        if (text.IsEmpty())
            continue;
        found.columns[found.count] = found.stopped;
        if (found.count == 2) {
            found.count = 3;
            break;
        }
        found.texts[found.count++] = text;
    }
    return true;
}

bool CLookupTableFileCompiler::ParseRow(long row, int columns, CString &code, CString &description, int &column,
                                        CString &errorText) {
    return ParseRow({ms_bAllowBlankRows, ms_bAllowMissingDescriptions}, row, columns, code, description, column,
                    errorText);
}

bool CLookupTableFileCompiler::ParseRow(RowRules rules, long row, int columns, CString &code, CString &description,
                                        int &column, CString &errorText) {
    const int previous = column;
    code.Empty();
    description.Empty();
    errorText.Empty();
    if (columns % 2 != 0) {
        errorText = "File must have an even number of columns!";
        return false;
    }
    RowTexts found;
    if (!ScanRow(row, columns, found, column, errorText))
        return false;
    column = found.count > 0 ? found.columns[0] : -1;
    if (found.count == 0) {
        if (!rules.allowBlankRows)
            errorText.Format("Blank row (row %ld) found.", row);
        return rules.allowBlankRows;
    }
    code = found.texts[0];
    description = found.texts[1];
    if (column % 2 != 0) {
        errorText.Format("First text found (column %d, row %ld) must be in an even numbered field!\n(missing Code?)",
                         found.stopped, row);
        return false;
    }
    if (found.count == 3) {
        column = found.columns[2];
        errorText.Format("Third cell with text in it found (column %d)!\n\nCan only have text in two adjacent columns!",
                         column);
        return false;
    }
    if (found.count == 1) {
        if (rules.allowMissingDescriptions)
            return true;
        ++column;
        errorText.Format("Expected description at cell (%d, %ld).", -1, row);
        return false;
    }
    if (column > previous + 2) {
        column = previous + 2;
        errorText.Format("Gap at column %d detected.", column);
        return false;
    }
    return true;
}

bool CLookupTableFileCompiler::BuildOutline(int &errorCol, long &errorRow, CString &errorText) {
    try {
        return ReadOutline(errorCol, errorRow, errorText) && Finish(errorText);
    } catch (CMemoryException *e) {
        e->Delete();
        AfxMessageBox("Out of memory!", MB_ICONHAND, 0);
        return false;
    }
}

bool CLookupTableFileCompiler::ReadOutline(int &errorCol, long &errorRow, CString &errorText) {
    const int columns = m_pDataSource->GetNumCols();
    const long rows = m_pDataSource->GetNumRows();
    std::vector<int> orders(static_cast<size_t>(columns), 0); // of the next node, by column
    CMenuTree *parent = &m_MenuTree, *last = nullptr;
    int previous = 0;
    CString code, description;
    for (long row = 0; row < rows; ++row) {
        int column = previous;
        const bool parsed = ParseRow(row, columns, code, description, column, errorText);
        if (parsed && column < 0)
            continue;
        const bool hangs = parsed && column > previous && last == nullptr;
        if (hangs)
            errorText.Format("First code found (column %d, row %ld) must be in the first field!\n(missing parent?)",
                             column, row);
        if (!parsed || hangs) {
            errorCol = column;
            errorRow = row;
            return false;
        }
        // A deeper row is one level down, whatever the distance.
        if (column > previous)
            parent = last;
        for (int level = column + 2; level <= previous; ++level)
            orders[static_cast<size_t>(level)] = 0;
        for (int up = (previous - column) / 2; up > 0 && parent != nullptr; --up)
            parent = parent->GetParent();
        if (parent == nullptr)
            return false;
        last = parent->InsertChild(code, description, orders[static_cast<size_t>(column)]++, m_bCaseSensitive);
        if (last == nullptr)
            return false;
        previous = column;
    }
    return true;
}
