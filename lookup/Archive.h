// CArchive: the byte stream of the persisted files, over a CFile.
//
// Differences from MFC: no object protocol. The stream holds no class records, tags or schema numbers; each class
// writes its own leading version. All values are little-endian.
//
// Faults are thrown: CArchiveException readOnly (a write while loading), writeOnly (a read while storing) and
// endOfFile, and whatever the file throws. Destroying a storing archive writes its buffer out; a fault there is
// only told by Flush or Close.
#pragma once

#include <afx.h>
#include <afxcoll.h>

#include <vector>

constexpr UINT kArchiveBufferBytes = 4096;

class ORVANE_API CArchive {
public:
    enum Mode { store = 0, load = 1 };

    // The file is borrowed and stays open. So is the buffer, of that many bytes; null for one of the archive's own.
    CArchive(CFile *file, UINT mode, UINT bufferBytes = kArchiveBufferBytes, void *buffer = nullptr);
    ~CArchive();
    CArchive(const CArchive &) = delete;
    CArchive &operator=(const CArchive &) = delete;

    bool IsStoring() const { return m_mode == store; }
    bool IsLoading() const { return m_mode == load; }

    // How many bytes it got; fewer only at the end of the file.
    UINT Read(void *buffer, UINT bytes);
    void Write(const void *buffer, UINT bytes);
    void Flush();
    void Close();

    CArchive &operator<<(BYTE value);
    CArchive &operator<<(WORD value);
    CArchive &operator<<(int value); // four bytes
    CArchive &operator<<(const CString &text);
    // A string field.
    void WriteText(LPCSTR text, unsigned length);
    CArchive &operator>>(BYTE &value);
    CArchive &operator>>(WORD &value);
    CArchive &operator>>(int &value);
    CArchive &operator>>(CString &text);
    // The characters of a string field. They stand in the archive's own memory until it reads again, and no null
    // ends them.
    LPCSTR ReadText(unsigned *length);

    // Reads on from the file; false at its end.
    bool FillBuffer();
    // A word, or 0xFFFF and four bytes.
    void WriteCount(unsigned count);
    unsigned ReadCount();

    CFile *GetFile() const { return m_file; }
    // Bytes between the reading position and the end of the file: no field can be larger. The file's length is asked
    // for once, so it must not change while it is read.
    ULONGLONG BytesLeft();

private:
    void ReadExactly(void *buffer, UINT bytes);
    ULONGLONG BytesBehindBuffer();

    CFile *m_file;
    UINT m_mode;
    CString m_fileName; // goes into every exception
    std::vector<BYTE> m_own; // the buffer, unless it is the caller's
    BYTE *m_buffer;
    UINT m_size; // of the buffer, bytes
    size_t m_used = 0; // loading: bytes consumed; storing: bytes waiting
    size_t m_have = 0; // loading: bytes in the buffer
    LONGLONG m_behind = -1;     // loading: bytes of the file behind the buffer; -1 while not asked for
    std::vector<BYTE> m_text;   // a string that the buffer holds no more than a part of
};

// What stands in front of a string's characters: their number in 1, 3, 7 or 15 bytes, with a mark of 3 before it when
// they are of two bytes each.
ORVANE_API void AfxWriteStringLength(CArchive &ar, ULONGLONG length, BOOL wide);
// `bytesEach` becomes 1 or 2.
ORVANE_API ULONGLONG AfxReadStringLength(CArchive &ar, int &bytesEach);
