// CEditorLayout: how the tables of one data file were last looked at, and the working copy for the open one.
//
// The working copy follows every change of the view; the file is read at a load and written at a close.
// Three numberings meet here: the grid column on screen, the field of the source, and the position of a field
// in the full ordering, hidden fields included.
#pragma once

#include "editorcore/TableInfo.h"

class CEditorCore;
class CUGDataSource;

class ORVANE_API CEditorLayout : public CObject {
    DECLARE_DYNAMIC(CEditorLayout)

public:
    explicit CEditorLayout(CEditorCore *editor);

    void Serialize(CArchive &ar) override;

    // Shows the working copy in the grid; false when it does not fit the source.
    bool ApplyToGrid(CUGDataSource *source);
    // Takes sizes, and columns numbered from 0, over from the grid.
    void CaptureFromGrid();
    void Reset();
    // Everything of the file that was open: none of it goes into the next one's.
    void ForgetFile();
    const CTableInfo &GetWorkingCopy() const { return m_TableInfo; }
    void SetWorkingCopy(const CTableInfo &info) { m_TableInfo = info; }

    void SetTableName(const char *name) { m_strTableName = name; }
    bool IsTableFound() const { return m_bTableFound; }

    void SetRowHeight(int height) { m_TableInfo.m_nRowHeight = height; }
    void SetTopHeadingHeight(int height) { m_TableInfo.m_nTopHeadingHeight = height; }
    void SetSideHeadingWidth(int width) { m_TableInfo.m_nSideHeadingWidth = width; }
    // Returns the field, or `gridCol` when there is no place for the width.
    int SetColWidth(int gridCol, int width);

    void GetDisplayCols(CUIntArray &fields) const { fields.Copy(m_TableInfo.m_DisplayCols); }
    void GetColPositions(CUIntArray &positions) const { positions.Copy(m_TableInfo.m_ColPositions); }
    void GetColWidths(CUIntArray &widths) const { widths.Copy(m_TableInfo.m_ColWidths); }
    int GetDataSrcField(int gridCol) const; // -1 at or past the end
    int GetGridField(int field) const;      // -1 when hidden
    bool IsFieldHidden(int field) const { return GetGridField(field) < 0; }
    int CountDisplayCols() const { return static_cast<int>(m_TableInfo.m_DisplayCols.GetSize()); }
    // Puts both orders back as they were taken before a change that failed.
    void RestoreOrder(const CUIntArray &shown, const CUIntArray &positions);
    void RemoveDisplayCol(int gridCol);
    void InsertDisplayCol(int gridCol, int field);
    // Hidden fields keep their old positions while the shown ones move around them.
    void SetDisplayOrder(const CUIntArray &fields, int fieldCount);
    // Repairs the record against the source's number of fields.
    void SyncToFieldCount(int count);
    // Leaves each field its first position and gives the missing ones the last: a damaged file must not put a field
    // out of the user's reach.
    void CompletePositions(int count);

    int GetFrozenCols() const { return m_TableInfo.m_nFrozenCols; }
    void SetFrozenCols(int count) { m_TableInfo.m_nFrozenCols = count; }
    const CString &GetLastXParmsSet() const { return m_strLastXParmsSet; }
    void SetLastXParmsSet(const char *name) { m_strLastXParmsSet = name; }

    // Colour sets by field name; (-1, -1) for none.
    void AttachColourSet(const char *name, CPoint set);
    void DetachColourSet(const char *name);
    CPoint GetColourSet(const char *name) const;
    // The sets by field number of the source; names are compared ignoring case.
    void GetColourSetsByField(CUGDataSource *source, CArray<CPoint, CPoint &> &sets) const;

private:
    void Store(CArchive &ar);
    void Load(CArchive &ar);
    bool FitsSource(CUGDataSource *source);

    CMap<CString, const char *, CTableInfo, CTableInfo &> m_Tables;
    CString m_strTableName;
    CTableInfo m_TableInfo;
    CEditorCore *m_pEditor; // owner
    bool m_bTableFound = false;
    CString m_strLastXParmsSet;
};
