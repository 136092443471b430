// CLookupTableFileCompiler: makes a lookup table of a grid of text, and its file.
//
// Each level of codes is a pair of adjacent columns, code and description. With text in several pairs of the first row
// every pair is a level of its own, and all combinations are valid; otherwise the rows are an indented outline.
#pragma once

#include "lookup/LookupTableFile.h"

class CUGDataSource;

class ORVANE_API CLookupTableFileCompiler : public CLookupTableFile {
    DECLARE_DYNAMIC(CLookupTableFileCompiler)
public:
    // The host is borrowed, and asked for the properties, the wait cursor and whether to stop.
    explicit CLookupTableFileCompiler(CVAppInterface *pAppInterface);
    ~CLookupTableFileCompiler() override;

    // The source stays the caller's. It tells its path.
    void AttachDataSource(CUGDataSource *pDataSource);
    void DetachDataSource();
    // The first checks of Compile; false with a text.
    bool CheckDataSource(CString &errorText);
    // False with a text when the cell cannot be read.
    bool GetCellText(int col, long row, CString &text, CString &errorText);
    // Asks before it overwrites a table, then for the properties. False with a text, or without one when the user
    // said no or stopped it or has been told already. The cell to be shown is -1 where there is none. Running out of
    // memory is told to the user; from a table of independent levels the CMemoryException is then thrown on.
    bool Compile(int &errorCol, long &errorRow, CString &errorText);
    // The table's file without its folder. Without a folder in the path, `name` is left as it is.
    void GetLookupFileName(CString &name) const;

    // Reads a row of an outline. `column` comes in as that of the row before and goes out as the row's, -1 for a blank
    // one; false with a text, `column` then being the cell's.
    bool ParseRow(long row, int columns, CString &code, CString &description, int &column, CString &errorText);

protected:
    struct RowRules {
        bool allowBlankRows;
        bool allowMissingDescriptions;
    };
    static constexpr bool ms_bAllowBlankRows = true;
    static constexpr bool ms_bAllowMissingDescriptions = true;
    bool ParseRow(RowRules rules, long row, int columns, CString &code, CString &description, int &column,
                  CString &errorText);

    CUGDataSource *m_pDataSource = nullptr;
    bool m_bOwnsDataSource = false; // it goes with the compiler
    bool m_bAttached = false;
    CString m_sSourcePath;
    CVAppInterface *m_pAppInterface;

private:
    struct RowTexts {
        CString texts[2];
        int columns[3]; // where the first texts stand, as many as there are
        int count;      // up to 3, at which the scan stops
        int stopped;    // the column at which it did
    };
    CString GetTablePath() const;
    int CountLevelsOfFirstRow();
    bool AskUser(const CString &path);
    bool ScanRow(long row, int columns, RowTexts &found, int &column, CString &errorText);

    bool BuildOutline(int &errorCol, long &errorRow, CString &errorText);
    bool ReadOutline(int &errorCol, long &errorRow, CString &errorText);
    bool BuildLevels(int &errorCol, long &errorRow, CString &errorText);
    bool ReadLevels(int &errorCol, long &errorRow, CString &errorText);
    long ReadLevel(int col, CMenuList *list, CMenuList *below, int belowIndex, CString &errorText);
    long FindTextFrom(int col, long firstRow);

    bool BuildLookupTree();
    bool Finish(CString &errorText);
};
