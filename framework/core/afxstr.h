// CString, a counted and shared 8-bit string in the size of one pointer.
//
// Differences from MFC: copies of one string may not be used from several threads. Format is a template that
// replaces CString arguments by their text, because this compiler refuses to pass a class through "...".
// Only the changes of case and the comparisons without case know double-byte characters; searching works on
// bytes.
#pragma once

#include "afxdefs.h"
#include <cstdarg>
#include <utility>

// The system's headers would rename the method in some sources and not in others.
#undef LoadString

struct CStringData {
    long nRefs;
    int nDataLength;
    int nAllocLength;
    char *data() { return reinterpret_cast<char *>(this + 1); }
};

class ORVANEFW_API CString {
public:
    CString();
    CString(const CString &other);
    CString(CString &&other) noexcept;
    // Null gives the empty string. A pointer whose upper bits are zero is a string resource's number, as
    // made by MAKEINTRESOURCE.
    CString(LPCSTR text);
    CString(const unsigned char *text);
    CString(char character, int repeat = 1);
    CString(LPCSTR text, int length);
    ~CString();

    const CString &operator=(const CString &other);
    const CString &operator=(CString &&other) noexcept;
    const CString &operator=(LPCSTR text);
    const CString &operator=(const unsigned char *text);
    const CString &operator=(char character);

    int GetLength() const { return Data()->nDataLength; }
    BOOL IsEmpty() const { return GetLength() == 0; }
    void Empty();
    // The index of the closing null is allowed; beyond it CInvalidArgException is thrown.
    char GetAt(int index) const;
    char operator[](int index) const { return GetAt(index); }
    void SetAt(int index, char character);
    operator LPCSTR() const { return m_pchData; }
    LPCSTR GetString() const { return m_pchData; }

    const CString &operator+=(const CString &other);
    const CString &operator+=(LPCSTR text);
    const CString &operator+=(char character);
    void Append(LPCSTR text) { *this += text; }
    void Append(LPCSTR text, int length);
    void SetString(LPCSTR text, int length) { Assign(text, length); }
    void AppendChar(char character) { *this += character; }

    int Compare(LPCSTR text) const;
    int CompareNoCase(LPCSTR text) const;
    int Collate(LPCSTR text) const;
    int CollateNoCase(LPCSTR text) const;

    // Negative or too large positions and counts are cut to the string.
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;
    CString SpanIncluding(LPCSTR characters) const;
    CString SpanExcluding(LPCSTR characters) const;
    // The next piece from start on, without leading separators; start becomes -1 after the last piece.
    CString Tokenize(LPCSTR separators, int &start) const;

    CString &MakeUpper();
    CString &MakeLower();
    CString &MakeReverse();
    CString &TrimLeft();
    CString &TrimLeft(char target);
    CString &TrimLeft(LPCSTR targets);
    CString &TrimRight();
    CString &TrimRight(char target);
    CString &TrimRight(LPCSTR targets);
    CString &Trim();
    CString &Trim(char target);
    CString &Trim(LPCSTR targets);

    // Searches give a zero-based index or -1.
    int Find(char character, int start = 0) const;
    int Find(LPCSTR text, int start = 0) const;
    int ReverseFind(char character) const;
    int FindOneOf(LPCSTR characters) const;

    // Replace and Remove give the number of replacements, Insert and Delete the new length.
    int Replace(char oldCharacter, char newCharacter);
    int Replace(LPCSTR oldText, LPCSTR newText);
    int Remove(char character);
    int Insert(int index, char character);
    int Insert(int index, LPCSTR text);
    int Delete(int index, int count = 1);

    template <class... ARGS> void Format(LPCSTR format, ARGS... args) { FormatRaw(format, Plain(args)...); }
    template <class... ARGS> void Format(UINT resourceId, ARGS... args) {
        CString format;
        if (format.LoadString(resourceId))
            FormatRaw(format, Plain(args)...);
    }
    template <class... ARGS> void AppendFormat(LPCSTR format, ARGS... args) {
        CString tail;
        tail.FormatRaw(format, Plain(args)...);
        *this += tail;
    }
    void FormatV(LPCSTR format, va_list args);

    // FALSE and an empty string when there is no such resource; never found in the native build.
    BOOL LoadString(UINT resourceId);

    // A private, writable copy of at least minLength characters; ReleaseBuffer follows before other use.
    char *GetBuffer(int minLength = 0);
    char *GetBufferSetLength(int newLength);
    // -1: up to the first null.
    void ReleaseBuffer(int newLength = -1);
    void FreeExtra();
    int GetAllocLength() const { return Data()->nAllocLength; }
    void Preallocate(int length);

private:
    template <class T> static T Plain(T value) { return value; }
    static LPCSTR Plain(const CString &value) { return value.m_pchData; }

    CStringData *Data() const { return reinterpret_cast<CStringData *>(m_pchData) - 1; }
    void FormatRaw(LPCSTR format, ...);
    void Assign(LPCSTR text, int length);
    void Concat(LPCSTR text, int length);
    void Release();
    void Unshare(int minLength);

    char *m_pchData;
};

ORVANEFW_API CString operator+(const CString &left, const CString &right);
ORVANEFW_API CString operator+(const CString &left, LPCSTR right);
ORVANEFW_API CString operator+(LPCSTR left, const CString &right);
ORVANEFW_API CString operator+(const CString &left, char right);
ORVANEFW_API CString operator+(char left, const CString &right);

#define ORVANEFW_STRING_COMPARISON(op)                                                                       \
    inline bool operator op(const CString &left, const CString &right) {                                     \
        return left.Compare(right) op 0;                                                                     \
    }                                                                                                        \
    inline bool operator op(const CString &left, LPCSTR right) {                                             \
        return left.Compare(right) op 0;                                                                     \
    }                                                                                                        \
    inline bool operator op(LPCSTR left, const CString &right) {                                             \
        return 0 op right.Compare(left);                                                                     \
    }
ORVANEFW_STRING_COMPARISON(==)
ORVANEFW_STRING_COMPARISON(!=)
ORVANEFW_STRING_COMPARISON(<)
ORVANEFW_STRING_COMPARISON(>)
ORVANEFW_STRING_COMPARISON(<=)
ORVANEFW_STRING_COMPARISON(>=)
#undef ORVANEFW_STRING_COMPARISON

inline bool operator==(const CString &left, char right) {
    return left.GetLength() == 1 && left.GetAt(0) == right;
}
inline bool operator==(char left, const CString &right) {
    return right == left;
}
inline bool operator!=(const CString &left, char right) {
    return !(left == right);
}
inline bool operator!=(char left, const CString &right) {
    return !(right == left);
}

// Finds the n-th piece (from zero) between separators; FALSE and an empty result past the last piece.
ORVANEFW_API BOOL AfxExtractSubString(CString &result, LPCSTR text, int index, char separator = '\n');

// Replaces %1 and %2 (and so on up to %9) by the given texts; a missing one becomes "?".
ORVANEFW_API void AfxFormatStrings(CString &result, LPCSTR format, const LPCSTR *texts, int count);
