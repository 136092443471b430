// Tables of independent levels: each pair of columns is a list of its own.
#include "lookup/LookupTableFileCompiler.h"

#include "grid/UGDataSource.h"

#include <afxwin.h>

bool CLookupTableFileCompiler::BuildLevels(int &errorCol, long &errorRow, CString &errorText) {
    try {
        return ReadLevels(errorCol, errorRow, errorText) && Finish(errorText);
    } catch (CUserException *e) {
        e->Delete(); // the text of the failed read stands
        return false;
    } catch (CMemoryException *) {
        AfxMessageBox("Out of memory!", MB_ICONHAND, 0);
        throw;
    }
}

// From the last level up, so that each list is there when the nodes above it are made.
bool CLookupTableFileCompiler::ReadLevels(int &errorCol, long &errorRow, CString &errorText) {
    const int lastCol = m_pDataSource->GetNumCols() - 2;
    CMenuList *below = nullptr;
    int belowIndex = -1;
    m_MenuTree.m_bShared = true;
    for (int col = lastCol; col >= 0; col -= 2) {
        CMenuList *list = m_MenuTree.NewList();
        const long rows = ReadLevel(col, list, below, belowIndex, errorText);
        const long stray = FindTextFrom(col, rows);
        if (stray >= 0) {
            // Whichever level it stands in, the last one's column is told.
            errorCol = lastCol;
            errorRow = stray;
            errorText.Format("Unexpected text found at cell %d, %ld!", errorCol, errorRow);
            return false;
        }
        belowIndex = m_MenuTree.AddSharedList(list);
        below = list;
    }
    m_MenuTree.SetSharedChildren(below, belowIndex);
    return true;
}

// Reads the codes up to the first empty one, whose row is the result. Throws CUserException when a cell cannot be
// read.
long CLookupTableFileCompiler::ReadLevel(int col, CMenuList *list, CMenuList *below, int belowIndex,
                                         CString &errorText) {
    const long rows = m_pDataSource->GetNumRows();
    CString code, description;
    for (long row = 0; row < rows; ++row) {
        if (!GetCellText(col, row, code, errorText) || !GetCellText(col + 1, row, description, errorText))
            AfxThrowUserException();
        if (code.IsEmpty())
            return row;
        CMenuTree *node = m_MenuTree.NewNode(code, description, list->GetSize());
        node->m_bShared = true;
        if (below != nullptr)
            node->SetSharedChildren(below, belowIndex);
        m_MenuTree.AddToList(list, node, m_bCaseSensitive);
    }
    return rows;
}

// The first row from there on with text in the column, -1 for none. What cannot be read is passed over.
long CLookupTableFileCompiler::FindTextFrom(int col, long firstRow) {
    const long rows = m_pDataSource->GetNumRows();
    for (long row = firstRow; row < rows; ++row) {
        CString text, ignored;
        if (GetCellText(col, row, text, ignored) && !text.IsEmpty())
            return row;
    }
    return -1;
}
