// CColumnCellTypeMap: which cell type the columns of one editor have, by field name, so that the type follows
// the field when columns are reordered.
#pragma once

#include <afx.h>
#include <afxtempl.h>

class CEditorCore;

class ORVANE_API CColumnCellTypeMap {
public:
    explicit CColumnCellTypeMap(CEditorCore *editor);

    // The id stored for the name in lower case; otherwise the cell type of the grid default cell.
    int GetCellType(const char *name);
    // Stores the id and gives it to the column whose heading is the name, ignoring case.
    void SetCellType(const char *name, int id);
    // Gives every grid column the type of its heading's field.
    void Apply();

private:
    int DefaultType();
    void GiveToColumn(int col, int id);

    CEditorCore *m_pEditor; // borrowed
    CMap<CString, const char *, int, int> m_Types;
};
