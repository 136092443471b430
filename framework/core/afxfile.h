// CFile, an unbuffered binary file, and CMemFile, a file in memory.
//
// Differences from MFC: typeText changes nothing. Locking of ranges, duplication and CStdioFile do not exist.
// The native build does not honour the sharing flags.
#pragma once

#include "afxexcept.h"
#include "afxtime.h"

struct ORVANEFW_API CFileStatus {
    CTime m_ctime; // creation; natively the last change of the entry
    CTime m_mtime; // last change of the content
    CTime m_atime; // last access
    ULONGLONG m_size = 0;
    BYTE m_attribute = 0; // of CFile::Attribute
    char m_szFullName[MAX_PATH] = "";
};

class ORVANEFW_API CFile : public CObject {
    DECLARE_DYNAMIC(CFile)
public:
    enum OpenFlags {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeText = 0x4000,
        typeBinary = 0x8000
    };
    enum Attribute {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20
    };
    enum SeekPosition { begin = 0, current = 1, end = 2 };
    static const HANDLE hFileNull; // the handle of a closed file

    CFile();
    // The caller's handle, which Close will close; the destructor leaves it open.
    explicit CFile(HANDLE file);
    // Throws CFileException.
    CFile(LPCSTR fileName, UINT openFlags);
    // Closes; errors on the way are lost, so a writer calls Close itself.
    ~CFile() override;

    operator HANDLE() const { return m_hFile; }

    // FALSE on failure, with the cause in error when that is given; never throws CFileException.
    virtual BOOL Open(LPCSTR fileName, UINT openFlags, CFileException *error = nullptr);
    // All of the following throw CFileException.
    virtual void Close();
    virtual UINT Read(void *buffer, UINT count); // less than count only at the end of the file
    virtual void Write(const void *buffer, UINT count);
    virtual ULONGLONG Seek(LONGLONG offset, UINT from); // the new position in bytes
    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    virtual void SetLength(ULONGLONG newLength);
    virtual void Flush();
    // Closes without an exception; also on a closed file.
    virtual void Abort();

    virtual CString GetFileName() const;  // name.ext
    virtual CString GetFileTitle() const; // name
    virtual CString GetFilePath() const;  // the full path
    virtual void SetFilePath(LPCSTR fileName);
    BOOL GetStatus(CFileStatus &status) const;

    static void Rename(LPCSTR oldName, LPCSTR newName);
    static void Remove(LPCSTR fileName);
    static BOOL GetStatus(LPCSTR fileName, CFileStatus &status);

    HANDLE m_hFile;

protected:
    BOOL m_bCloseOnDelete;
    CString m_strFileName; // the full path
};

class ORVANEFW_API CMemFile : public CFile {
    DECLARE_DYNAMIC(CMemFile)
public:
    explicit CMemFile(UINT growBytes = 1024);
    // Reads and overwrites the caller's bytes in place; with growBytes 0 it cannot grow.
    CMemFile(BYTE *buffer, UINT size, UINT growBytes = 0);
    ~CMemFile() override;

    void Attach(BYTE *buffer, UINT size, UINT growBytes = 0);
    // The bytes, which the caller frees with std::free; the file is then empty.
    BYTE *Detach();

    void Close() override;
    UINT Read(void *buffer, UINT count) override;
    void Write(const void *buffer, UINT count) override;
    ULONGLONG Seek(LONGLONG offset, UINT from) override;
    ULONGLONG GetPosition() const override { return m_position; }
    ULONGLONG GetLength() const override { return m_size; }
    void SetLength(ULONGLONG newLength) override;
    void Flush() override {}
    void Abort() override;

private:
    void Grow(size_t newLength);

    UINT m_growBytes;
    size_t m_position;
    size_t m_size;
    size_t m_capacity;
    BYTE *m_bytes;
    bool m_owned;
};
