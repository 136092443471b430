#include "lookup/PoolCodes.h"

#include "lookup/CodeCompare.h"
#include "lookup/TreePool.h"

#include <cstring>

namespace {

constexpr unsigned kMore = 0x80; // in every byte of a number but the last

unsigned UnpackNumber(const char *&at) {
    unsigned number = 0;
    for (int shift = 0;; shift += 7) {
        const auto byte = static_cast<unsigned char>(*at++);
        number |= (byte & ~kMore) << shift;
        if (byte < kMore)
            return number;
    }
}

bool Counts(const CString &code) {
    return code != "!";
}

} // namespace

size_t CPoolCodes::PackNumber(unsigned number, char *bytes) {
    size_t size = 0;
    for (; number >= kMore; number >>= 7)
        bytes[size++] = static_cast<char>(number | kMore);
    bytes[size++] = static_cast<char>(number);
    return size;
}

CPoolCodes::CPoolCodes(CTreePool &pool, const CStringArray &codes, int count) {
    char number[5];
    unsigned kept = 0;
    size_t bytes = 0;
    for (int i = 0; i < count; ++i) {
        if (!Counts(codes[i]))
            continue;
        const auto length = static_cast<unsigned>(codes[i].GetLength());
        bytes += PackNumber(length, number) + length + 1;
        ++kept;
    }
    if (kept == 0)
        return;
    bytes += PackNumber(kept, number);
    char *at = pool.AllocateText(bytes);
    m_pPacked = at;
    at += PackNumber(kept, at);
    for (int i = 0; i < count; ++i) {
        if (!Counts(codes[i]))
            continue;
        const auto length = static_cast<unsigned>(codes[i].GetLength());
        at += PackNumber(length, at);
        std::memcpy(at, codes[i].GetString(), length + 1);
        at += length + 1;
    }
}

int CPoolCodes::GetCount() const {
    const char *at = m_pPacked;
    return at != nullptr ? static_cast<int>(UnpackNumber(at)) : 0;
}

CPoolCodes::Reader::Reader(const CPoolCodes &codes) : m_at(codes.m_pPacked), m_left(0) {
    if (m_at != nullptr)
        m_left = static_cast<int>(UnpackNumber(m_at));
}

const char *CPoolCodes::Reader::Take(int *length) {
    *length = static_cast<int>(UnpackNumber(m_at));
    const char *code = m_at;
    m_at += *length + 1;
    --m_left;
    return code;
}

void CPoolCodes::CopyTo(CStringArray &codes) const {
    codes.RemoveAll();
    int length;
    for (Reader reader(*this); !reader.IsAtEnd();) {
        const char *code = reader.Take(&length);
        codes.Add(CString(code, length));
    }
}

bool CPoolCodes::AreFirstOf(const CStringArray &codes, int count, bool bCaseSensitive) const {
    if (GetCount() != count)
        return false;
    Reader reader(*this);
    for (int i = 0, length; i < count; ++i) {
        if (CompareCodes(reader.Take(&length), codes[i], bCaseSensitive) != 0)
            return false;
    }
    return true;
}
