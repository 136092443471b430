// Exceptions, thrown by pointer and released with Delete.
//
// Differences from MFC: the messages are fixed English texts, not resources. TRY and its companions always
// stand for real C++ exceptions; an exception caught by CATCH is deleted at END_CATCH.
#pragma once

#include "afxobj.h"
#include "afxstr.h"

class ORVANEFW_API CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    CException();
    // autoDelete FALSE: an object that is not on the heap; Delete leaves it alone.
    explicit CException(BOOL autoDelete);

    void Delete();
    // FALSE when the exception has no message of its own; the buffer is then empty.
    virtual BOOL GetErrorMessage(LPSTR buffer, UINT capacity, UINT *helpContext = nullptr) const;
    // Shows the message in a message box (natively on standard error) and gives the box's answer.
    virtual int ReportError(UINT type = 0, UINT messageId = 0);

    BOOL m_bAutoDelete;
};

// An exception with nothing but a fixed message.
class ORVANEFW_API CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)
public:
    explicit CSimpleException(BOOL autoDelete, LPCSTR message);
    BOOL GetErrorMessage(LPSTR buffer, UINT capacity, UINT *helpContext = nullptr) const override;

private:
    LPCSTR m_message;
};

class ORVANEFW_API CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    explicit CMemoryException(BOOL autoDelete = TRUE);
};

class ORVANEFW_API CNotSupportedException : public CSimpleException {
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    explicit CNotSupportedException(BOOL autoDelete = TRUE);
};

class ORVANEFW_API CResourceException : public CSimpleException {
    DECLARE_DYNAMIC(CResourceException)
public:
    explicit CResourceException(BOOL autoDelete = TRUE);
};

class ORVANEFW_API CInvalidArgException : public CSimpleException {
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    explicit CInvalidArgException(BOOL autoDelete = TRUE);
};

// Ends an operation of which the user has been told already.
class ORVANEFW_API CUserException : public CSimpleException {
    DECLARE_DYNAMIC(CUserException)
public:
    explicit CUserException(BOOL autoDelete = TRUE);
};

class ORVANEFW_API CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)
public:
    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = none, LONG osError = -1, LPCSTR fileName = nullptr);
    BOOL GetErrorMessage(LPSTR buffer, UINT capacity, UINT *helpContext = nullptr) const override;

    // The cause for an error of the operating system: of GetLastError, natively of errno.
    static int OsErrorToException(LONG osError);
    static void ThrowOsError(LONG osError, LPCSTR fileName = nullptr);

    int m_cause;
    LONG m_lOsError; // -1: the system reported none
    CString m_strFileName;
};

class ORVANEFW_API CArchiveException : public CException {
    DECLARE_DYNAMIC(CArchiveException)
public:
    enum { none, genericException, readOnly, endOfFile, writeOnly, badIndex, badClass, badSchema };

    explicit CArchiveException(int cause = none, LPCSTR archiveName = nullptr);
    BOOL GetErrorMessage(LPSTR buffer, UINT capacity, UINT *helpContext = nullptr) const override;

    int m_cause;
    CString m_strFileName;
};

// AfxThrowMemoryException throws an object that was made when the framework was loaded, and so does a failing
// operator new.
[[noreturn]] ORVANEFW_API void AfxThrowMemoryException();
[[noreturn]] ORVANEFW_API void AfxThrowNotSupportedException();
[[noreturn]] ORVANEFW_API void AfxThrowResourceException();
[[noreturn]] ORVANEFW_API void AfxThrowInvalidArgException();
[[noreturn]] ORVANEFW_API void AfxThrowUserException();
[[noreturn]] ORVANEFW_API void AfxThrowFileException(int cause, LONG osError = -1, LPCSTR fileName = nullptr);
[[noreturn]] ORVANEFW_API void AfxThrowArchiveException(int cause, LPCSTR archiveName = nullptr);

// Owns what a CATCH caught. The links of one thread form a stack, so that THROW_LAST finds the innermost.
struct ORVANEFW_API AFX_EXCEPTION_LINK {
    AFX_EXCEPTION_LINK();
    ~AFX_EXCEPTION_LINK();
    AFX_EXCEPTION_LINK(const AFX_EXCEPTION_LINK &) = delete;
    void operator=(const AFX_EXCEPTION_LINK &) = delete;

    AFX_EXCEPTION_LINK *m_previous;
    CException *m_exception;
};
// The exception goes on upwards: the innermost link lets go of it.
ORVANEFW_API void AfxThrowLastCleanup();

#define TRY                                                                                                  \
    {                                                                                                        \
        AFX_EXCEPTION_LINK _afxExceptionLink;                                                                \
        try {

#define CATCH(class_name, e)                                                                                 \
    }                                                                                                        \
    catch (class_name * e) {                                                                                 \
        _afxExceptionLink.m_exception = e;

#define AND_CATCH(class_name, e) CATCH(class_name, e)
#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) CATCH(CException, e)

#define END_CATCH                                                                                            \
    }                                                                                                        \
    }
#define END_CATCH_ALL END_CATCH
#define END_TRY                                                                                              \
    }                                                                                                        \
    catch (CException * e) {                                                                                 \
        _afxExceptionLink.m_exception = e;                                                                   \
    }                                                                                                        \
    }

#define THROW(e) throw e
#define THROW_LAST() (AfxThrowLastCleanup(), throw)
