// CString's searches, extractions and changes in place.
#include "afx.h"
#include "stringcase.h"

#include <algorithm>

CString CString::Mid(int first) const {
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const {
    const int length = GetLength();
    first = std::clamp(first, 0, length);
    count = std::clamp(count, 0, length - first);
    return count == length ? *this : CString(m_pchData + first, count);
}

CString CString::Left(int count) const {
    return Mid(0, count);
}

CString CString::Right(int count) const {
    count = std::clamp(count, 0, GetLength());
    return Mid(GetLength() - count, count);
}

CString CString::SpanIncluding(LPCSTR characters) const {
    return Left(static_cast<int>(std::strspn(m_pchData, characters)));
}

CString CString::SpanExcluding(LPCSTR characters) const {
    return Left(static_cast<int>(std::strcspn(m_pchData, characters)));
}

CString CString::Tokenize(LPCSTR separators, int &start) const {
    if (start < 0 || start > GetLength()) {
        start = -1;
        return CString();
    }
    const int first = start + static_cast<int>(std::strspn(m_pchData + start, separators));
    const int length = static_cast<int>(std::strcspn(m_pchData + first, separators));
    if (length == 0) {
        start = -1;
        return CString();
    }
    start = std::min(first + length + 1, GetLength());
    return Mid(first, length);
}

CString &CString::MakeUpper() {
    Unshare(GetLength());
    StringMakeUpper(m_pchData, GetLength());
    return *this;
}

CString &CString::MakeLower() {
    Unshare(GetLength());
    StringMakeLower(m_pchData, GetLength());
    return *this;
}

CString &CString::MakeReverse() {
    Unshare(GetLength());
    StringMakeReverse(m_pchData, GetLength());
    return *this;
}

CString &CString::TrimLeft() {
    int first = 0;
    while (first < GetLength() && StringIsSpace(m_pchData[first]))
        first++;
    Delete(0, first);
    return *this;
}

CString &CString::TrimLeft(char target) {
    const char targets[2] = {target, '\0'};
    return TrimLeft(targets);
}

CString &CString::TrimLeft(LPCSTR targets) {
    if (targets && *targets)
        Delete(0, static_cast<int>(std::strspn(m_pchData, targets)));
    return *this;
}

CString &CString::TrimRight() {
    int end = GetLength();
    while (end > 0 && StringIsSpace(m_pchData[end - 1]))
        end--;
    Delete(end, GetLength() - end);
    return *this;
}

CString &CString::TrimRight(char target) {
    const char targets[2] = {target, '\0'};
    return TrimRight(targets);
}

CString &CString::TrimRight(LPCSTR targets) {
    int end = GetLength();
    while (targets && end > 0 && m_pchData[end - 1] && std::strchr(targets, m_pchData[end - 1]))
        end--;
    Delete(end, GetLength() - end);
    return *this;
}

CString &CString::Trim() {
    return TrimRight().TrimLeft();
}

CString &CString::Trim(char target) {
    return TrimRight(target).TrimLeft(target);
}

CString &CString::Trim(LPCSTR targets) {
    return TrimRight(targets).TrimLeft(targets);
}

int CString::Find(char character, int start) const {
    if (start < 0 || start >= GetLength())
        return -1;
    const char *found = std::strchr(m_pchData + start, character);
    return found ? static_cast<int>(found - m_pchData) : -1;
}

int CString::Find(LPCSTR text, int start) const {
    if (!text || start < 0 || start > GetLength())
        return -1;
    const char *found = std::strstr(m_pchData + start, text);
    return found ? static_cast<int>(found - m_pchData) : -1;
}

int CString::ReverseFind(char character) const {
    const char *found = std::strrchr(m_pchData, character);
    return found ? static_cast<int>(found - m_pchData) : -1;
}

int CString::FindOneOf(LPCSTR characters) const {
    const char *found = std::strpbrk(m_pchData, characters);
    return found ? static_cast<int>(found - m_pchData) : -1;
}

int CString::Replace(char oldCharacter, char newCharacter) {
    if (oldCharacter == newCharacter)
        return 0;
    const int count = static_cast<int>(std::count(m_pchData, m_pchData + GetLength(), oldCharacter));
    if (count == 0)
        return 0;
    Unshare(GetLength());
    std::replace(m_pchData, m_pchData + GetLength(), oldCharacter, newCharacter);
    return count;
}

int CString::Replace(LPCSTR oldText, LPCSTR newText) {
    const int oldLength = oldText ? static_cast<int>(std::strlen(oldText)) : 0;
    if (oldLength == 0)
        return 0;
    CString result;
    int count = 0;
    int from = 0;
    for (int at = Find(oldText, 0); at >= 0; at = Find(oldText, from)) {
        result.Append(m_pchData + from, at - from);
        result += newText;
        from = at + oldLength;
        count++;
    }
    if (count > 0) {
        result.Append(m_pchData + from, GetLength() - from);
        *this = std::move(result);
    }
    return count;
}

int CString::Remove(char character) {
    const int count = static_cast<int>(std::count(m_pchData, m_pchData + GetLength(), character));
    if (count == 0)
        return 0;
    Unshare(GetLength());
    char *end = std::remove(m_pchData, m_pchData + GetLength(), character);
    ReleaseBuffer(static_cast<int>(end - m_pchData));
    return count;
}

int CString::Insert(int index, char character) {
    const char text[2] = {character, '\0'};
    return Insert(index, text);
}

int CString::Insert(int index, LPCSTR text) {
    if (!text || !*text)
        return GetLength();
    index = std::clamp(index, 0, GetLength());
    CString result(m_pchData, index);
    result += text;
    result.Append(m_pchData + index, GetLength() - index);
    *this = std::move(result);
    return GetLength();
}

int CString::Delete(int index, int count) {
    const int length = GetLength();
    index = std::max(index, 0);
    if (count <= 0 || index >= length)
        return length;
    count = std::min(count, length - index);
    Unshare(length);
    std::memmove(m_pchData + index, m_pchData + index + count, static_cast<size_t>(length - index - count));
    ReleaseBuffer(length - count);
    return GetLength();
}

BOOL AfxExtractSubString(CString &result, LPCSTR text, int index, char separator) {
    result.Empty();
    if (!text)
        return FALSE;
    for (; index > 0; index--) {
        text = std::strchr(text, separator);
        if (!text)
            return FALSE;
        text++;
    }
    const char *end = std::strchr(text, separator);
    result = CString(text, static_cast<int>(end ? end - text : std::strlen(text)));
    return TRUE;
}

void AfxFormatStrings(CString &result, LPCSTR format, const LPCSTR *texts, int count) {
    CString built;
    for (const char *p = format; *p; p++) {
        if (p[0] == '%' && p[1] >= '1' && p[1] <= '9') {
            const int index = *++p - '1';
            built += index < count ? texts[index] : "?";
        } else {
            built += *p;
        }
    }
    result = std::move(built);
}
