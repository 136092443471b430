#include "afx.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int Descriptor(HANDLE file) {
    return static_cast<int>(reinterpret_cast<INT_PTR>(file));
}

CString FullPath(LPCSTR fileName) {
    if (fileName[0] == '/')
        return fileName;
    char directory[4096];
    if (!getcwd(directory, sizeof directory))
        return fileName;
    return CString(directory) + "/" + fileName;
}

int SystemFlags(UINT openFlags) {
    constexpr int kAccess[] = {O_RDONLY, O_WRONLY, O_RDWR, O_RDWR};
    int flags = kAccess[openFlags & 3] | O_CLOEXEC;
    if (openFlags & CFile::modeCreate)
        flags |= O_CREAT | (openFlags & CFile::modeNoTruncate ? 0 : O_TRUNC);
    return flags;
}

void Check(bool success, const CString &fileName) {
    if (!success)
        CFileException::ThrowOsError(errno, fileName);
}

} // namespace

int CFileException::OsErrorToException(LONG osError) {
    switch (osError) {
    case 0: return none;
    case ENOENT: return fileNotFound;
    case ENOTDIR: return badPath;
    case EMFILE:
    case ENFILE: return tooManyOpenFiles;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case EEXIST: return accessDenied;
    case EBADF: return invalidFile;
    case ENOSPC: return diskFull;
    case ESPIPE:
    case EINVAL: return badSeek;
    case EIO: return hardIO;
    case EBUSY:
    case ETXTBSY: return sharingViolation;
    case EDEADLK: return lockViolation;
    default: return genericException;
    }
}

BOOL CFile::Open(LPCSTR fileName, UINT openFlags, CFileException *error) {
    m_strFileName = FullPath(fileName);
    struct stat info;
    int file = open(fileName, SystemFlags(openFlags), 0666);
    // A directory opens for reading, which no file does.
    if (file >= 0 && fstat(file, &info) == 0 && S_ISDIR(info.st_mode)) {
        ::close(file);
        file = -1;
        errno = EACCES;
    }
    if (file < 0) {
        if (error) {
            error->m_lOsError = errno;
            error->m_cause = CFileException::OsErrorToException(errno);
            error->m_strFileName = fileName;
        }
        m_strFileName.Empty();
        return FALSE;
    }
    m_hFile = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(file));
    m_bCloseOnDelete = TRUE;
    return TRUE;
}

void CFile::Close() {
    const bool closed = m_hFile == hFileNull || ::close(Descriptor(m_hFile)) == 0;
    const CString name = m_strFileName;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    Check(closed, name);
}

void CFile::Abort() {
    if (m_hFile != hFileNull)
        ::close(Descriptor(m_hFile));
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
}

UINT CFile::Read(void *buffer, UINT count) {
    UINT done = 0;
    while (done < count) {
        const ssize_t got = ::read(Descriptor(m_hFile), static_cast<BYTE *>(buffer) + done, count - done);
        if (got < 0 && errno == EINTR)
            continue;
        Check(got >= 0, m_strFileName);
        if (got == 0)
            break;
        done += static_cast<UINT>(got);
    }
    return done;
}

void CFile::Write(const void *buffer, UINT count) {
    UINT done = 0;
    while (done < count) {
        const ssize_t put =
            ::write(Descriptor(m_hFile), static_cast<const BYTE *>(buffer) + done, count - done);
        if (put < 0 && errno == EINTR)
            continue;
        Check(put >= 0, m_strFileName);
        done += static_cast<UINT>(put);
    }
}

ULONGLONG CFile::Seek(LONGLONG offset, UINT from) {
    constexpr int kFrom[] = {SEEK_SET, SEEK_CUR, SEEK_END};
    const off_t position = lseek(Descriptor(m_hFile), offset, kFrom[from % 3]);
    Check(position >= 0, m_strFileName);
    return static_cast<ULONGLONG>(position);
}

ULONGLONG CFile::GetPosition() const {
    const off_t position = lseek(Descriptor(m_hFile), 0, SEEK_CUR);
    Check(position >= 0, m_strFileName);
    return static_cast<ULONGLONG>(position);
}

ULONGLONG CFile::GetLength() const {
    struct stat info;
    Check(fstat(Descriptor(m_hFile), &info) == 0, m_strFileName);
    return static_cast<ULONGLONG>(info.st_size);
}

void CFile::SetLength(ULONGLONG newLength) {
    Check(ftruncate(Descriptor(m_hFile), static_cast<off_t>(newLength)) == 0, m_strFileName);
    Seek(static_cast<LONGLONG>(newLength), begin);
}

void CFile::Flush() {
    Check(m_hFile == hFileNull || fsync(Descriptor(m_hFile)) == 0, m_strFileName);
}

void CFile::Rename(LPCSTR oldName, LPCSTR newName) {
    // The system would replace an existing file without a word.
    if (access(newName, F_OK) == 0)
        AfxThrowFileException(CFileException::accessDenied, EEXIST, newName);
    Check(::rename(oldName, newName) == 0, oldName);
}

void CFile::Remove(LPCSTR fileName) {
    Check(::unlink(fileName) == 0, fileName);
}

BOOL CFile::GetStatus(LPCSTR fileName, CFileStatus &status) {
    struct stat info;
    if (stat(fileName, &info) != 0)
        return FALSE;
    status.m_ctime = CTime(static_cast<LONGLONG>(info.st_ctime));
    status.m_mtime = CTime(static_cast<LONGLONG>(info.st_mtime));
    status.m_atime = CTime(static_cast<LONGLONG>(info.st_atime));
    status.m_size = static_cast<ULONGLONG>(info.st_size);
    status.m_attribute = normal;
    if (S_ISDIR(info.st_mode))
        status.m_attribute |= directory;
    if (!(info.st_mode & S_IWUSR))
        status.m_attribute |= readOnly;
    std::snprintf(status.m_szFullName, sizeof status.m_szFullName, "%s", FullPath(fileName).GetString());
    return TRUE;
}
