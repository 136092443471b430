#include "afx.h"

#include <windows.h>

namespace {

CString FullPath(LPCSTR fileName) {
    char path[MAX_PATH];
    const DWORD length = GetFullPathNameA(fileName, sizeof path, path, nullptr);
    return length > 0 && length < sizeof path ? path : fileName;
}

DWORD Access(UINT openFlags) {
    constexpr DWORD kAccess[] = {GENERIC_READ, GENERIC_WRITE, GENERIC_READ | GENERIC_WRITE,
                                 GENERIC_READ | GENERIC_WRITE};
    return kAccess[openFlags & 3];
}

DWORD Sharing(UINT openFlags) {
    switch (openFlags & 0x70) {
    case CFile::shareDenyWrite: return FILE_SHARE_READ;
    case CFile::shareDenyRead: return FILE_SHARE_WRITE;
    case CFile::shareDenyNone: return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default: return 0; // compatibility mode and exclusive use
    }
}

DWORD Creation(UINT openFlags) {
    if (!(openFlags & CFile::modeCreate))
        return OPEN_EXISTING;
    return openFlags & CFile::modeNoTruncate ? OPEN_ALWAYS : CREATE_ALWAYS;
}

void Check(bool success, const CString &fileName) {
    if (!success)
        CFileException::ThrowOsError(static_cast<LONG>(GetLastError()), fileName);
}

CTime TimeOf(const FILETIME &time) {
    constexpr ULONGLONG kTicksPerSecond = 10000000;
    constexpr LONGLONG kSecondsFrom1601To1970 = 11644473600;
    const ULONGLONG ticks = static_cast<ULONGLONG>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    return CTime(static_cast<LONGLONG>(ticks / kTicksPerSecond) - kSecondsFrom1601To1970);
}

} // namespace

int CFileException::OsErrorToException(LONG osError) {
    switch (osError) {
    case NO_ERROR: return none;
    case ERROR_FILE_NOT_FOUND: return fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_DIRECTORY: return badPath;
    case ERROR_TOO_MANY_OPEN_FILES: return tooManyOpenFiles;
    case ERROR_ACCESS_DENIED:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS: return accessDenied;
    case ERROR_INVALID_HANDLE: return invalidFile;
    case ERROR_CURRENT_DIRECTORY: return removeCurrentDir;
    case ERROR_CANNOT_MAKE: return directoryFull;
    case ERROR_SEEK:
    case ERROR_NEGATIVE_SEEK: return badSeek;
    case ERROR_CRC:
    case ERROR_READ_FAULT:
    case ERROR_WRITE_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_NOT_READY: return hardIO;
    case ERROR_SHARING_VIOLATION:
    case ERROR_SHARING_BUFFER_EXCEEDED: return sharingViolation;
    case ERROR_LOCK_VIOLATION:
    case ERROR_NOT_LOCKED: return lockViolation;
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_DISK_FULL: return diskFull;
    case ERROR_HANDLE_EOF: return endOfFile;
    default: return genericException;
    }
}

BOOL CFile::Open(LPCSTR fileName, UINT openFlags, CFileException *error) {
    m_strFileName = FullPath(fileName);
    SECURITY_ATTRIBUTES security{sizeof security, nullptr, !(openFlags & modeNoInherit)};
    m_hFile = CreateFileA(fileName, Access(openFlags), Sharing(openFlags), &security, Creation(openFlags),
                          FILE_ATTRIBUTE_NORMAL, nullptr);
    if (m_hFile == INVALID_HANDLE_VALUE) {
        if (error) {
            error->m_lOsError = static_cast<LONG>(GetLastError());
            error->m_cause = CFileException::OsErrorToException(error->m_lOsError);
            error->m_strFileName = fileName;
        }
        m_strFileName.Empty();
        return FALSE;
    }
    m_bCloseOnDelete = TRUE;
    return TRUE;
}

void CFile::Close() {
    const bool closed = m_hFile == hFileNull || CloseHandle(m_hFile);
    const CString name = m_strFileName;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    Check(closed, name);
}

void CFile::Abort() {
    if (m_hFile != hFileNull)
        CloseHandle(m_hFile);
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
}

UINT CFile::Read(void *buffer, UINT count) {
    DWORD got = 0;
    if (count > 0)
        Check(ReadFile(m_hFile, buffer, count, &got, nullptr), m_strFileName);
    return got;
}

void CFile::Write(const void *buffer, UINT count) {
    DWORD put = 0;
    if (count == 0)
        return;
    Check(WriteFile(m_hFile, buffer, count, &put, nullptr), m_strFileName);
    // A volume that fills up in the middle reports success for the part that fitted.
    if (put != count)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

ULONGLONG CFile::Seek(LONGLONG offset, UINT from) {
    LARGE_INTEGER distance, position;
    distance.QuadPart = offset;
    Check(SetFilePointerEx(m_hFile, distance, &position, from), m_strFileName);
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetPosition() const {
    LARGE_INTEGER distance, position;
    distance.QuadPart = 0;
    Check(SetFilePointerEx(m_hFile, distance, &position, FILE_CURRENT), m_strFileName);
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetLength() const {
    LARGE_INTEGER size;
    Check(GetFileSizeEx(m_hFile, &size), m_strFileName);
    return static_cast<ULONGLONG>(size.QuadPart);
}

void CFile::SetLength(ULONGLONG newLength) {
    Seek(static_cast<LONGLONG>(newLength), begin);
    Check(SetEndOfFile(m_hFile), m_strFileName);
}

void CFile::Flush() {
    Check(m_hFile == hFileNull || FlushFileBuffers(m_hFile), m_strFileName);
}

void CFile::Rename(LPCSTR oldName, LPCSTR newName) {
    Check(MoveFileA(oldName, newName), oldName);
}

void CFile::Remove(LPCSTR fileName) {
    Check(DeleteFileA(fileName), fileName);
}

BOOL CFile::GetStatus(LPCSTR fileName, CFileStatus &status) {
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExA(fileName, GetFileExInfoStandard, &data))
        return FALSE;
    status.m_ctime = TimeOf(data.ftCreationTime);
    status.m_mtime = TimeOf(data.ftLastWriteTime);
    status.m_atime = TimeOf(data.ftLastAccessTime);
    status.m_size = static_cast<ULONGLONG>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    status.m_attribute = static_cast<BYTE>(data.dwFileAttributes & 0x3f);
    lstrcpynA(status.m_szFullName, FullPath(fileName), sizeof status.m_szFullName);
    return TRUE;
}
