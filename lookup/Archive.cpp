#include "lookup/Archive.h"

#include "lookup/WideText.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr unsigned kLongCount = 0xFFFF; // the word in front of a count of four bytes
constexpr BYTE kLongString = 0xFF;      // the byte in front of a length word
constexpr WORD kWideMark = 0xFFFE;      // the length word of a wide string; its length starts over behind it
constexpr WORD kLongerString = 0xFFFF;  // the length word in front of four bytes
constexpr unsigned kLongestString = 0xFFFFFFFF; // the four bytes in front of eight

void PutLittleEndian(BYTE *bytes, unsigned long long value, int count) {
    for (int i = 0; i < count; ++i)
        bytes[i] = static_cast<BYTE>(value >> (8 * i));
}

unsigned long long GetLittleEndian(const BYTE *bytes, int count) {
    unsigned long long value = 0;
    for (int i = count - 1; i >= 0; --i)
        value = value << 8 | bytes[i];
    return value;
}

} // namespace

CArchive::CArchive(CFile *file, UINT mode, UINT bufferBytes, void *buffer)
    : m_file(file), m_mode(mode), m_fileName(file->GetFilePath()), m_buffer(static_cast<BYTE *>(buffer)),
      m_size(bufferBytes) {
    if (m_buffer != nullptr && m_size > 0)
        return;
    m_size = std::max<UINT>(m_size, 1);
    m_own.resize(m_size);
    m_buffer = m_own.data();
}

CArchive::~CArchive() {
    try {
        Close();
    } catch (CException *e) {
        e->Delete();
    }
}

void CArchive::Close() {
    if (IsStoring())
        Flush();
}

void CArchive::Flush() {
    if (!IsStoring() || m_used == 0)
        return;
    const size_t waiting = m_used;
    m_used = 0; // a fault is told once, not again from the destructor
    m_file->Write(m_buffer, static_cast<UINT>(waiting));
}

bool CArchive::FillBuffer() {
    m_used = 0;
    m_have = 0;
    const UINT got = m_file->Read(m_buffer, m_size);
    m_have = got;
    if (m_behind >= 0)
        m_behind = std::max<LONGLONG>(m_behind - got, 0);
    return got > 0;
}

UINT CArchive::Read(void *buffer, UINT bytes) {
    if (!IsLoading())
        AfxThrowArchiveException(CArchiveException::writeOnly, m_fileName);
    auto *out = static_cast<BYTE *>(buffer);
    UINT got = 0;
    while (got < bytes && (m_used < m_have || FillBuffer())) {
        const auto piece = static_cast<UINT>(std::min<size_t>(bytes - got, m_have - m_used));
        std::memcpy(out + got, m_buffer + m_used, piece);
        m_used += piece;
        got += piece;
    }
    return got;
}

void CArchive::ReadExactly(void *buffer, UINT bytes) {
    if (Read(buffer, bytes) != bytes)
        AfxThrowArchiveException(CArchiveException::endOfFile, m_fileName);
}

void CArchive::Write(const void *buffer, UINT bytes) {
    if (!IsStoring())
        AfxThrowArchiveException(CArchiveException::readOnly, m_fileName);
    auto *in = static_cast<const BYTE *>(buffer);
    while (bytes > 0) {
        const auto piece = static_cast<UINT>(std::min<size_t>(bytes, m_size - m_used));
        std::memcpy(m_buffer + m_used, in, piece);
        m_used += piece;
        in += piece;
        bytes -= piece;
        if (m_used == m_size)
            Flush();
    }
}

ULONGLONG CArchive::BytesBehindBuffer() {
    if (m_behind < 0) {
        const ULONGLONG length = m_file->GetLength();
        const ULONGLONG position = m_file->GetPosition();
        m_behind = position < length ? static_cast<LONGLONG>(length - position) : 0;
    }
    return static_cast<ULONGLONG>(m_behind);
}

ULONGLONG CArchive::BytesLeft() {
    return BytesBehindBuffer() + (m_have - m_used);
}

CArchive &CArchive::operator<<(BYTE value) {
    Write(&value, 1);
    return *this;
}

CArchive &CArchive::operator<<(WORD value) {
    BYTE bytes[2];
    PutLittleEndian(bytes, value, 2);
    Write(bytes, 2);
    return *this;
}

CArchive &CArchive::operator<<(int value) {
    BYTE bytes[4];
    PutLittleEndian(bytes, static_cast<unsigned>(value), 4);
    Write(bytes, 4);
    return *this;
}

CArchive &CArchive::operator>>(BYTE &value) {
    ReadExactly(&value, 1);
    return *this;
}

CArchive &CArchive::operator>>(WORD &value) {
    BYTE bytes[2];
    ReadExactly(bytes, 2);
    value = static_cast<WORD>(GetLittleEndian(bytes, 2));
    return *this;
}

CArchive &CArchive::operator>>(int &value) {
    BYTE bytes[4];
    ReadExactly(bytes, 4);
    value = static_cast<int>(GetLittleEndian(bytes, 4));
    return *this;
}

void CArchive::WriteCount(unsigned count) {
    if (count < kLongCount) {
        *this << static_cast<WORD>(count);
    } else {
        *this << static_cast<WORD>(kLongCount);
        *this << static_cast<int>(count);
    }
}

unsigned CArchive::ReadCount() {
    WORD count;
    *this >> count;
    if (count != kLongCount)
        return count;
    int large;
    *this >> large;
    return static_cast<unsigned>(large);
}

void AfxWriteStringLength(CArchive &ar, ULONGLONG length, BOOL wide) {
    if (wide)
        ar << kLongString << kWideMark;
    if (length < kLongString) {
        ar << static_cast<BYTE>(length);
    } else if (length < kWideMark) {
        ar << kLongString << static_cast<WORD>(length);
    } else if (length < kLongestString) {
        ar << kLongString << kLongerString << static_cast<int>(length);
    } else {
        ar << kLongString << kLongerString << static_cast<int>(kLongestString);
        ar << static_cast<int>(length) << static_cast<int>(length >> 32);
    }
}

void CArchive::WriteText(LPCSTR text, unsigned length) {
    AfxWriteStringLength(*this, length, FALSE);
    Write(text, length);
}

CArchive &CArchive::operator<<(const CString &text) {
    WriteText(text, static_cast<unsigned>(text.GetLength()));
    return *this;
}

ULONGLONG AfxReadStringLength(CArchive &ar, int &bytesEach) {
    bytesEach = 1;
    for (;;) {
        BYTE shortLength;
        ar >> shortLength;
        if (shortLength != kLongString)
            return shortLength;
        WORD wordLength;
        ar >> wordLength;
        if (wordLength == kLongerString)
            break;
        if (wordLength != kWideMark || bytesEach == 2)
            return wordLength;
        bytesEach = 2; // the length starts over
    }
    int low, high;
    ar >> low;
    if (static_cast<unsigned>(low) != kLongestString)
        return static_cast<unsigned>(low);
    ar >> low >> high;
    return static_cast<ULONGLONG>(static_cast<unsigned>(high)) << 32 | static_cast<unsigned>(low);
}

LPCSTR CArchive::ReadText(unsigned *length) {
    int width;
    const ULONGLONG characters = AfxReadStringLength(*this, width);
    const bool wide = width == 2;
    if (characters > BytesLeft() / static_cast<unsigned>(width) || characters > 0x3FFFFFFF)
        AfxThrowArchiveException(CArchiveException::endOfFile, m_fileName);
    const size_t bytes = static_cast<size_t>(characters) * static_cast<unsigned>(width);
    *length = static_cast<unsigned>(characters);
    if (!wide && bytes <= m_have - m_used) {
        m_used += bytes;
        return reinterpret_cast<LPCSTR>(m_buffer + (m_used - bytes));
    }
    m_text.resize(bytes);
    ReadExactly(m_text.data(), static_cast<UINT>(bytes));
    if (wide) {
        std::vector<WORD> units(static_cast<size_t>(characters));
        for (size_t i = 0; i < units.size(); ++i)
            units[i] = static_cast<WORD>(GetLittleEndian(&m_text[2 * i], 2));
        const CString text = TextFromWide(units);
        *length = static_cast<unsigned>(text.GetLength());
        m_text.assign(text.GetString(), text.GetString() + *length);
    }
    return reinterpret_cast<LPCSTR>(m_text.data());
}

CArchive &CArchive::operator>>(CString &text) {
    unsigned length;
    const LPCSTR characters = ReadText(&length);
    text = CString(characters, static_cast<int>(length));
    return *this;
}
