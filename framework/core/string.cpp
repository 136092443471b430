#include "afx.h"
#include "stringcase.h"

#include <climits>
#include <new>

namespace {

// The empty string that all empty CStrings share; never freed, so its count is of no interest.
struct EmptyString {
    CStringData data{-1, 0, 0};
    char text[sizeof(CStringData)] = "";
};

EmptyString g_empty;

char *EmptyText() {
    return g_empty.data.data();
}

int TextLength(LPCSTR text) {
    return text ? static_cast<int>(std::strlen(text)) : 0;
}

// A new block with room for the characters and the closing null. Small sizes are rounded up, so that texts
// that grow character by character are not moved each time.
char *Allocate(int length) {
    if (length < 0 || length > INT_MAX - 64 - static_cast<int>(sizeof(CStringData)))
        AfxThrowMemoryException();
    const int rounded = ((length + 1 + 15) & ~15) - 1;
    void *memory = ::operator new(sizeof(CStringData) + static_cast<size_t>(rounded) + 1);
    CStringData *data = new (memory) CStringData{1, length, rounded};
    data->data()[length] = '\0';
    return data->data();
}

} // namespace

CString::CString() : m_pchData(EmptyText()) {}

CString::CString(const CString &other) : m_pchData(other.m_pchData) {
    if (m_pchData != EmptyText())
        Data()->nRefs++;
}

CString::CString(CString &&other) noexcept : m_pchData(other.m_pchData) {
    other.m_pchData = EmptyText();
}

CString::CString(LPCSTR text) : m_pchData(EmptyText()) {
    if (StringIsResourceId(text))
        LoadString(static_cast<UINT>(reinterpret_cast<UINT_PTR>(text)));
    else
        Assign(text, TextLength(text));
}

CString::CString(const unsigned char *text) : CString(reinterpret_cast<LPCSTR>(text)) {}

CString::CString(char character, int repeat) : m_pchData(EmptyText()) {
    if (repeat <= 0)
        return;
    m_pchData = Allocate(repeat);
    std::memset(m_pchData, character, static_cast<size_t>(repeat));
}

CString::CString(LPCSTR text, int length) : m_pchData(EmptyText()) {
    Assign(text, length);
}

CString::~CString() {
    Release();
}

void CString::Release() {
    if (m_pchData == EmptyText())
        return;
    CStringData *data = Data();
    m_pchData = EmptyText();
    if (--data->nRefs == 0)
        ::operator delete(data);
}

void CString::Assign(LPCSTR text, int length) {
    if (length <= 0) {
        Release();
        return;
    }
    // An exclusive block that is large enough is written over; the text may lie inside it.
    if (m_pchData != EmptyText() && Data()->nRefs == 1 && Data()->nAllocLength >= length) {
        std::memmove(m_pchData, text, static_cast<size_t>(length));
    } else {
        char *fresh = Allocate(length);
        std::memcpy(fresh, text, static_cast<size_t>(length));
        Release();
        m_pchData = fresh;
    }
    Data()->nDataLength = length;
    m_pchData[length] = '\0';
}

void CString::Concat(LPCSTR text, int length) {
    if (length <= 0)
        return;
    const int old = GetLength();
    if (length > INT_MAX - old)
        AfxThrowMemoryException();
    if (m_pchData != EmptyText() && Data()->nRefs == 1 && Data()->nAllocLength >= old + length) {
        std::memmove(m_pchData + old, text, static_cast<size_t>(length));
    } else {
        // Half as much again keeps a long text built piece by piece from being copied for every piece.
        const int total = old + length;
        char *fresh = Allocate(total > INT_MAX / 2 || old == 0 ? total : total + total / 2);
        std::memcpy(fresh, m_pchData, static_cast<size_t>(old));
        std::memcpy(fresh + old, text, static_cast<size_t>(length));
        Release();
        m_pchData = fresh;
    }
    Data()->nDataLength = old + length;
    m_pchData[old + length] = '\0';
}

// Makes the text this string's own, with room for at least minLength characters.
void CString::Unshare(int minLength) {
    const bool own = m_pchData != EmptyText() && Data()->nRefs == 1;
    if (own && Data()->nAllocLength >= minLength)
        return;
    const int length = GetLength();
    char *fresh = Allocate(minLength < length ? length : minLength);
    std::memcpy(fresh, m_pchData, static_cast<size_t>(length) + 1);
    Release();
    m_pchData = fresh;
    Data()->nDataLength = length;
}

const CString &CString::operator=(const CString &other) {
    if (m_pchData != other.m_pchData) {
        Release();
        m_pchData = other.m_pchData;
        if (m_pchData != EmptyText())
            Data()->nRefs++;
    }
    return *this;
}

const CString &CString::operator=(CString &&other) noexcept {
    std::swap(m_pchData, other.m_pchData);
    return *this;
}

const CString &CString::operator=(LPCSTR text) {
    Assign(text, TextLength(text));
    return *this;
}

const CString &CString::operator=(const unsigned char *text) {
    return *this = reinterpret_cast<LPCSTR>(text);
}

const CString &CString::operator=(char character) {
    Assign(&character, 1);
    return *this;
}

void CString::Empty() {
    Release();
}

char CString::GetAt(int index) const {
    if (index < 0 || index > GetLength())
        AfxThrowInvalidArgException();
    return m_pchData[index];
}

void CString::SetAt(int index, char character) {
    if (index < 0 || index >= GetLength())
        AfxThrowInvalidArgException();
    Unshare(GetLength());
    m_pchData[index] = character;
}

const CString &CString::operator+=(const CString &other) {
    Concat(other.m_pchData, other.GetLength());
    return *this;
}

const CString &CString::operator+=(LPCSTR text) {
    Concat(text, TextLength(text));
    return *this;
}

const CString &CString::operator+=(char character) {
    Concat(&character, 1);
    return *this;
}

void CString::Append(LPCSTR text, int length) {
    Concat(text, length);
}

CString operator+(const CString &left, const CString &right) {
    CString result(left);
    return result += right, result;
}

CString operator+(const CString &left, LPCSTR right) {
    CString result(left);
    return result += right, result;
}

CString operator+(LPCSTR left, const CString &right) {
    CString result;
    result += left;
    return result += right, result;
}

CString operator+(const CString &left, char right) {
    CString result(left);
    return result += right, result;
}

CString operator+(char left, const CString &right) {
    CString result;
    result += left;
    return result += right, result;
}

int CString::Compare(LPCSTR text) const {
    return std::strcmp(m_pchData, text ? text : "");
}

int CString::CompareNoCase(LPCSTR text) const {
    return StringCompareNoCase(m_pchData, text ? text : "");
}

int CString::Collate(LPCSTR text) const {
    return std::strcoll(m_pchData, text ? text : "");
}

int CString::CollateNoCase(LPCSTR text) const {
    CString left(*this);
    CString right(text ? text : "");
    return left.MakeLower().Collate(right.MakeLower());
}

char *CString::GetBuffer(int minLength) {
    if (minLength < 0)
        AfxThrowInvalidArgException();
    Unshare(minLength);
    return m_pchData;
}

char *CString::GetBufferSetLength(int newLength) {
    GetBuffer(newLength);
    Data()->nDataLength = newLength;
    m_pchData[newLength] = '\0';
    return m_pchData;
}

void CString::ReleaseBuffer(int newLength) {
    if (newLength < 0)
        newLength = TextLength(m_pchData);
    if (newLength == 0) {
        Release();
        return;
    }
    Unshare(newLength);
    if (newLength > Data()->nAllocLength)
        AfxThrowInvalidArgException();
    Data()->nDataLength = newLength;
    m_pchData[newLength] = '\0';
}

void CString::FreeExtra() {
    const int length = GetLength();
    if (m_pchData == EmptyText() || Data()->nRefs != 1 || Data()->nAllocLength < length + 16)
        return;
    char *fresh = Allocate(length);
    std::memcpy(fresh, m_pchData, static_cast<size_t>(length) + 1);
    Release();
    m_pchData = fresh;
}

void CString::Preallocate(int length) {
    GetBuffer(length);
}

void CString::FormatRaw(LPCSTR format, ...) {
    va_list args;
    va_start(args, format);
    try {
        FormatV(format, args);
    } catch (...) {
        va_end(args);
        throw;
    }
    va_end(args);
}

void CString::FormatV(LPCSTR format, va_list args) {
    va_list again;
    va_copy(again, args);
    const int length = std::vsnprintf(nullptr, 0, format, again);
    va_end(again);
    if (length < 0)
        AfxThrowInvalidArgException();
    // An argument may be this string's own text, so the result is made elsewhere.
    CString result;
    char *buffer = result.GetBuffer(length);
    std::vsnprintf(buffer, static_cast<size_t>(length) + 1, format, args);
    result.ReleaseBuffer(length);
    *this = std::move(result);
}

BOOL CString::LoadString(UINT resourceId) {
    int capacity = 256;
    for (;;) {
        CString result;
        const int length = StringResource(resourceId, result.GetBuffer(capacity), capacity);
        result.ReleaseBuffer(length > 0 ? length : 0);
        if (length < capacity - 1) {
            *this = std::move(result);
            return length > 0;
        }
        capacity *= 2;
    }
}
