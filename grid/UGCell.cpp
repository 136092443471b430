#include "grid/UGCell.h"

#include "grid/UGDefine.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

CUGCell::CUGCell() {
    ClearAll();
}

CUGCell::CUGCell(const CUGCell &source) : CUGCell() {
    CopyFrom(&source);
}

CUGCell &CUGCell::operator=(const CUGCell &source) {
    CopyFrom(&source);
    return *this;
}

CUGCell::~CUGCell() {
    FreeExtra();
}

int CUGCell::ClearAll() {
    FreeExtra();
    m_dataType = -1;
    m_text.Empty();
    m_mask.Empty();
    m_label.Empty();
    m_numberStyle = 0;
    m_decimals = 2;
    m_numberFlags = 0;
    m_limitKind = -1;
    m_limitFlags = -1;
    m_textColor = m_backColor = m_hTextColor = m_hBackColor = -1;
    m_alignment = -1;
    m_borderStyle = -1;
    m_borderPen = nullptr;
    m_font = nullptr;
    m_bitmap = nullptr;
    m_readOnly = -1;
    m_cellType = -1;
    m_cellTypeEx = -1;
    m_joined = 0;
    m_colTranslation = -1;
    m_dataSrcIndex = -1;
    return GRID_SUCCESS;
}

void CUGCell::FreeExtra() {
    delete[] m_extra;
    m_extra = nullptr;
    m_extraPresent = 0;
}

void CUGCell::CopyExtra(const CUGCell &source) {
    unsigned char *copy = nullptr;
    if (source.m_extraPresent) {
        copy = new unsigned char[source.m_extraLength];
        std::memcpy(copy, source.m_extra, source.m_extraLength);
    }
    FreeExtra();
    if (copy != nullptr) {
        m_extra = copy;
        m_extraLength = source.m_extraLength;
        m_extraPresent = 1;
    }
}

void CUGCell::CopyNumber(const CUGCell &source) {
    m_number = source.m_number;
    m_numberStyle = source.m_numberStyle;
    m_decimals = source.m_decimals;
    m_numberFlags = source.m_numberFlags;
}

int CUGCell::CopyFrom(const CUGCell *source) {
    if (source == this)
        return GRID_SUCCESS;
    m_text = source->m_text;
    m_mask = source->m_mask;
    m_label = source->m_label;
    m_dataType = source->m_dataType;
    if (source->m_dataType >= 0)
        CopyNumber(*source);
    m_limitFlags = source->m_limitFlags;
    m_limitKind = source->m_limitKind;
    m_limitLow = source->m_limitLow;
    m_limitHigh = source->m_limitHigh;
    m_textColor = source->m_textColor;
    m_backColor = source->m_backColor;
    m_hTextColor = source->m_hTextColor;
    m_hBackColor = source->m_hBackColor;
    m_alignment = source->m_alignment;
    m_borderStyle = source->m_borderStyle;
    m_borderPen = source->m_borderPen;
    m_font = source->m_font;
    m_bitmap = source->m_bitmap;
    m_readOnly = source->m_readOnly;
    m_cellType = source->m_cellType;
    m_cellTypeEx = source->m_cellTypeEx;
    m_joined = source->m_joined;
    if (source->m_joined) {
        m_joinOrigin = source->m_joinOrigin;
        m_joinCol = source->m_joinCol;
        m_joinRow = source->m_joinRow;
    }
    m_colTranslation = source->m_colTranslation;
    m_dataSrcIndex = source->m_dataSrcIndex;
    if (source->m_extraPresent || m_extraPresent)
        CopyExtra(*source);
    return GRID_SUCCESS;
}

namespace {

void TakeText(CString &destination, const CString &source) {
    if (!source.IsEmpty())
        destination = source;
}

template <class Value> void TakeSet(Value &destination, Value source) {
    if (source >= 0)
        destination = source;
}

template <class Handle> void TakeHandle(Handle &destination, Handle source) {
    if (source != nullptr)
        destination = source;
}

} // namespace

int CUGCell::MergeFrom(const CUGCell *source) {
    if (source == this)
        return GRID_SUCCESS;
    TakeText(m_text, source->m_text);
    TakeText(m_mask, source->m_mask);
    TakeText(m_label, source->m_label);
    if (source->m_dataType >= 0) {
        m_dataType = source->m_dataType;
        CopyNumber(*source);
    }
    TakeSet(m_limitFlags, source->m_limitFlags);
    if (source->m_limitKind >= 0) {
        m_limitKind = source->m_limitKind;
        m_limitLow = source->m_limitLow;
        m_limitHigh = source->m_limitHigh;
    }
    TakeSet(m_textColor, source->m_textColor);
    TakeSet(m_backColor, source->m_backColor);
    TakeSet(m_hTextColor, source->m_hTextColor);
    TakeSet(m_hBackColor, source->m_hBackColor);
    TakeSet(m_alignment, source->m_alignment);
    TakeSet(m_borderStyle, source->m_borderStyle);
    TakeSet(m_readOnly, source->m_readOnly);
    TakeSet(m_cellType, source->m_cellType);
    TakeSet(m_cellTypeEx, source->m_cellTypeEx);
    TakeHandle(m_borderPen, source->m_borderPen);
    TakeHandle(m_font, source->m_font);
    TakeHandle(m_bitmap, source->m_bitmap);
    if (source->m_joined == 1) {
        m_joined = 1;
        m_joinOrigin = source->m_joinOrigin;
        m_joinCol = source->m_joinCol;
        m_joinRow = source->m_joinRow;
    }
    TakeSet(m_colTranslation, source->m_colTranslation);
    TakeSet(m_dataSrcIndex, source->m_dataSrcIndex);
    if (source->m_extraPresent)
        CopyExtra(*source);
    return GRID_SUCCESS;
}

int CUGCell::SetDataType(short type) {
    m_dataType = type;
    return GRID_SUCCESS;
}

int CUGCell::SetText(const char *text) {
    m_text = text;
    return GRID_SUCCESS;
}

int CUGCell::GetText(CString *text) const {
    *text = m_text;
    return GRID_SUCCESS;
}

int CUGCell::SetMask(const char *mask) {
    m_mask = mask;
    return GRID_SUCCESS;
}

int CUGCell::SetLabelText(const char *label) {
    m_label = label;
    return GRID_SUCCESS;
}

int CUGCell::SetNumber(double value) {
    constexpr int kBufferBytes = 100; // a longer rendering is cut there
    char text[kBufferBytes];
    std::snprintf(text, sizeof text, "%1.*f", static_cast<int>(m_decimals), value);
    m_text = text;
    m_number = value;
    m_dataType = UGCELL_DATA_NUMBER;
    return GRID_SUCCESS;
}

double CUGCell::GetNumber() const {
    return std::atof(m_text);
}

int CUGCell::SetNumberDecimals(short decimals) {
    m_decimals = decimals;
    return GRID_SUCCESS;
}

int CUGCell::SetMaxLength(int characters) {
    m_limitKind = 1;
    m_limitHigh = characters;
    return GRID_SUCCESS;
}

int CUGCell::GetMaxLength() const {
    return m_limitKind == 1 ? static_cast<int>(m_limitHigh) : -1;
}

int CUGCell::SetTextColor(COLORREF colour) {
    m_textColor = static_cast<int>(colour);
    return GRID_SUCCESS;
}

int CUGCell::SetBackColor(COLORREF colour) {
    m_backColor = static_cast<int>(colour);
    return GRID_SUCCESS;
}

int CUGCell::SetHTextColor(COLORREF colour) {
    m_hTextColor = static_cast<int>(colour);
    return GRID_SUCCESS;
}

int CUGCell::SetHBackColor(COLORREF colour) {
    m_hBackColor = static_cast<int>(colour);
    return GRID_SUCCESS;
}

int CUGCell::SetAlignment(short alignment) {
    m_alignment = alignment;
    return GRID_SUCCESS;
}

int CUGCell::SetBorder(short style) {
    m_borderStyle = style;
    return GRID_SUCCESS;
}

int CUGCell::SetReadOnly(short readOnly) {
    m_readOnly = readOnly;
    return GRID_SUCCESS;
}

int CUGCell::SetCellType(int id) {
    m_cellType = id;
    return GRID_SUCCESS;
}

int CUGCell::SetCellTypeEx(int style) {
    m_cellTypeEx = style;
    return GRID_SUCCESS;
}

int CUGCell::SetExtraMemory(const void *bytes, int length) {
    if (length < 0 || (length > 0 && bytes == nullptr))
        return GRID_ERROR;
    unsigned char *copy = nullptr;
    if (length > 0) {
        copy = new unsigned char[length];
        std::memcpy(copy, bytes, length);
    }
    FreeExtra();
    m_extra = copy;
    m_extraLength = length;
    m_extraPresent = length > 0 ? 1 : 0;
    return GRID_SUCCESS;
}

int CUGCell::SetJoin(bool isOrigin, int originCol, long originRow) {
    m_joined = 1;
    m_joinOrigin = isOrigin ? 1 : 0;
    m_joinCol = originCol;
    m_joinRow = originRow;
    return GRID_SUCCESS;
}

int CUGCell::ClearJoin() {
    m_joined = 0;
    return GRID_SUCCESS;
}

int CUGCell::SetColTranslation(short dataCol) {
    m_colTranslation = dataCol;
    return GRID_SUCCESS;
}

int CUGCell::SetDataSrcIndex(short index) {
    m_dataSrcIndex = index;
    return GRID_SUCCESS;
}
