// What CFile does alike on every system, and CMemFile.
#include "afx.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CFile, CObject)
IMPLEMENT_DYNAMIC(CMemFile, CFile)

const HANDLE CFile::hFileNull = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-1));

CFile::CFile() : m_hFile(hFileNull), m_bCloseOnDelete(FALSE) {}

CFile::CFile(HANDLE file) : m_hFile(file), m_bCloseOnDelete(FALSE) {}

CFile::CFile(LPCSTR fileName, UINT openFlags) : m_hFile(hFileNull), m_bCloseOnDelete(FALSE) {
    CFileException error;
    if (!CFile::Open(fileName, openFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CFile::~CFile() {
    if (m_hFile != hFileNull && m_bCloseOnDelete)
        CFile::Abort();
}

CString CFile::GetFileName() const {
    const int slash = std::max(m_strFileName.ReverseFind('\\'), m_strFileName.ReverseFind('/'));
    return m_strFileName.Mid(slash + 1);
}

CString CFile::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind('.');
    return dot > 0 ? name.Left(dot) : name;
}

CString CFile::GetFilePath() const {
    return m_strFileName;
}

void CFile::SetFilePath(LPCSTR fileName) {
    m_strFileName = fileName;
}

BOOL CFile::GetStatus(CFileStatus &status) const {
    return GetStatus(m_strFileName, status);
}

CMemFile::CMemFile(UINT growBytes)
    : m_growBytes(growBytes), m_position(0), m_size(0), m_capacity(0), m_bytes(nullptr), m_owned(true) {}

CMemFile::CMemFile(BYTE *buffer, UINT size, UINT growBytes) : CMemFile(growBytes) {
    Attach(buffer, size, growBytes);
}

CMemFile::~CMemFile() {
    CMemFile::Abort();
}

void CMemFile::Attach(BYTE *buffer, UINT size, UINT growBytes) {
    Abort();
    m_growBytes = growBytes;
    m_bytes = buffer;
    m_capacity = size;
    // Bytes that may grow are a place to write to, others are a content to read.
    m_size = growBytes == 0 ? size : 0;
    m_owned = false;
}

BYTE *CMemFile::Detach() {
    BYTE *bytes = m_bytes;
    m_bytes = nullptr;
    m_position = m_size = m_capacity = 0;
    m_owned = true;
    return bytes;
}

void CMemFile::Close() {
    Abort();
}

void CMemFile::Abort() {
    if (m_owned)
        std::free(m_bytes);
    Detach();
}

void CMemFile::Grow(size_t newLength) {
    if (newLength <= m_capacity)
        return;
    if (m_growBytes == 0)
        AfxThrowMemoryException();
    const size_t least = (newLength / m_growBytes + 1) * m_growBytes;
    const size_t capacity = std::max(least, m_capacity + m_capacity / 2);
    BYTE *bytes = static_cast<BYTE *>(m_owned ? std::realloc(m_bytes, capacity) : std::malloc(capacity));
    if (!bytes)
        AfxThrowMemoryException();
    if (!m_owned && m_size > 0)
        std::memcpy(bytes, m_bytes, m_size);
    m_bytes = bytes;
    m_capacity = capacity;
    m_owned = true;
}

UINT CMemFile::Read(void *buffer, UINT count) {
    if (m_position >= m_size || count == 0)
        return 0;
    const size_t got = std::min<size_t>(count, m_size - m_position);
    std::memcpy(buffer, m_bytes + m_position, got);
    m_position += got;
    return static_cast<UINT>(got);
}

void CMemFile::Write(const void *buffer, UINT count) {
    if (count == 0)
        return;
    const size_t end = m_position + count;
    Grow(end);
    if (m_position > m_size)
        std::memset(m_bytes + m_size, 0, m_position - m_size);
    std::memcpy(m_bytes + m_position, buffer, count);
    m_position = end;
    m_size = std::max(m_size, end);
}

ULONGLONG CMemFile::Seek(LONGLONG offset, UINT from) {
    const LONGLONG base = from == begin     ? 0
                          : from == current ? static_cast<LONGLONG>(m_position)
                                            : static_cast<LONGLONG>(m_size);
    if (base + offset < 0)
        AfxThrowFileException(CFileException::badSeek);
    m_position = static_cast<size_t>(base + offset);
    return m_position;
}

void CMemFile::SetLength(ULONGLONG newLength) {
    const size_t length = static_cast<size_t>(newLength);
    Grow(length);
    if (length > m_size)
        std::memset(m_bytes + m_size, 0, length - m_size);
    m_size = length;
    m_position = std::min(m_position, m_size);
}
