// CUGCell: the properties of one cell, passed by value between the grid, its data sources and notifications.
//
// A property is "not set" while it holds its sentinel (-1, or null for handles); there is no mask beside it.
// A colour, alignment, border, read-only flag, cell type or style counts as set when it is non-negative as a
// signed number of its width, so a colour with the top bit set counts as not set. Cells stack in layers with
// MergeFrom, which takes over only what is set.
//
// A cell owns its three strings and its block of extra data. Pens, fonts and bitmaps are borrowed: the raw
// handle is kept, and whoever passed the object keeps it alive for as long as the cell is used.
#pragma once

#include <afx.h>

class CBitmap;
class CFont;
class CPen;

class ORVANE_API CUGCell {
public:
    CUGCell();
    CUGCell(const CUGCell &source);
    CUGCell &operator=(const CUGCell &source);
    ~CUGCell();

    // Every property to its sentinel; frees the extra data. Returns GRID_SUCCESS, as all setters do.
    int ClearAll();

    // Whole copy. The number fields follow only a set data type, the join origin only a joined cell.
    int CopyFrom(const CUGCell *source);
    int CopyTo(CUGCell *destination) const { return destination->CopyFrom(this); }

    // Takes over the properties that are set in `source`, the rule by which layers stack.
    int MergeFrom(const CUGCell *source);

    int SetDataType(short type);
    int GetDataType() const { return m_dataType; }

    int SetText(const char *text);
    int GetText(CString *text) const;
    const char *GetText() const { return m_text; }
    int GetTextLength() const { return m_text.GetLength(); }
    int SetMask(const char *mask);
    const char *GetMask() const { return m_mask; }
    int SetLabelText(const char *label);
    const char *GetLabelText() const { return m_label; }

    // Formats the value with the cell's decimals into the text; the data type becomes number.
    int SetNumber(double value);
    // The text as `atof` reads it: the text is the truth, the number field only goes with it.
    double GetNumber() const;
    int SetNumberDecimals(short decimals);
    short GetNumberDecimals() const { return m_decimals; }

    // Longest text in characters that the in-cell edit takes.
    int SetMaxLength(int characters);
    // The limit, or -1 when there is none.
    int GetMaxLength() const;

    int SetTextColor(COLORREF colour);
    int SetBackColor(COLORREF colour);
    int SetHTextColor(COLORREF colour);
    int SetHBackColor(COLORREF colour);
    COLORREF GetTextColor() const { return static_cast<COLORREF>(m_textColor); }
    COLORREF GetBackColor() const { return static_cast<COLORREF>(m_backColor); }
    COLORREF GetHTextColor() const { return static_cast<COLORREF>(m_hTextColor); }
    COLORREF GetHBackColor() const { return static_cast<COLORREF>(m_hBackColor); }

    int SetAlignment(short alignment); // UG_ALIGN_ bits
    short GetAlignment() const { return m_alignment; }
    int SetBorder(short style); // UG_BDR_ bits
    short GetBorder() const { return m_borderStyle; }
    int SetReadOnly(short readOnly); // 1 forbids starting an edit
    short GetReadOnly() const { return m_readOnly; }

    int SetCellType(int id);
    int GetCellType() const { return m_cellType; }
    int SetCellTypeEx(int style);
    int GetCellTypeEx() const { return m_cellTypeEx; }

    // The object's handle is kept, not the object. Null takes the property away.
    int SetBorderColor(CPen *pen);
    int SetFont(CFont *font);
    int SetBitmap(CBitmap *bitmap);
    HPEN GetBorderPen() const { return m_borderPen; }
    HFONT GetFontHandle() const { return m_font; }
    HBITMAP GetBitmapHandle() const { return m_bitmap; }

    // A block of bytes that travels with the cell; copied in. A length of 0 takes it away.
    int SetExtraMemory(const void *bytes, int length);
    const void *GetExtraMemory() const { return m_extraPresent ? m_extra : nullptr; }
    int GetExtraMemoryLength() const { return m_extraPresent ? m_extraLength : 0; }

    // Joined blocks: every cell of the block names the block's first cell, the origin.
    int SetJoin(bool isOrigin, int originCol, long originRow);
    int ClearJoin();
    bool IsJoined() const { return m_joined != 0; }
    bool IsJoinOrigin() const { return m_joined != 0 && m_joinOrigin != 0; }
    // Grid column and row of the block's first cell; meaningful on a joined cell only.
    int GetJoinOriginCol() const { return m_joinCol; }
    long GetJoinOriginRow() const { return m_joinRow; }

    // On a column's default cell only.
    int SetColTranslation(short dataCol); // data source column shown in this grid column
    short GetColTranslation() const { return m_colTranslation; }
    int SetDataSrcIndex(short index); // entry of the control's source table
    short GetDataSrcIndex() const { return m_dataSrcIndex; }

private:
    void FreeExtra();
    void CopyExtra(const CUGCell &source);
    void CopyNumber(const CUGCell &source);

    int m_dataType;
    CString m_text;
    CString m_mask;
    CString m_label;
    double m_number = 0;
    short m_numberStyle = 0;
    short m_decimals = 2;
    short m_numberFlags = 0;
    double m_limitLow = 0;
    double m_limitHigh = 0;
    short m_limitKind;
    short m_limitFlags;
    int m_textColor;
    int m_backColor;
    int m_hTextColor;
    int m_hBackColor;
    short m_alignment;
    short m_borderStyle;
    HPEN m_borderPen;
    HFONT m_font;
    HBITMAP m_bitmap;
    short m_readOnly;
    int m_cellType;
    int m_cellTypeEx;
    int m_extraPresent = 0;
    int m_extraLength = 0;
    unsigned char *m_extra = nullptr;
    int m_joined;
    int m_joinOrigin = 0;
    int m_joinCol = 0;
    long m_joinRow = 0;
    short m_colTranslation;
    short m_dataSrcIndex;
};
