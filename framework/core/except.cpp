#include "afx.h"
#include "report.h"

#include <new>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace {

BOOL CopyMessage(LPSTR buffer, UINT capacity, LPCSTR text) {
    if (capacity > 0) {
        std::strncpy(buffer, text, capacity - 1);
        buffer[capacity - 1] = '\0';
    }
    return *text != '\0';
}

// Made at load and never freed, because they are thrown when nothing can be made any more.
CMemoryException g_memoryException(FALSE);
CNotSupportedException g_notSupportedException(FALSE);
CResourceException g_resourceException(FALSE);
CInvalidArgException g_invalidArgException(FALSE);
CUserException g_userException(FALSE);

const std::new_handler g_previousHandler = std::set_new_handler(&AfxThrowMemoryException);

thread_local AFX_EXCEPTION_LINK *t_innermostLink = nullptr;

constexpr LPCSTR kFileMessages[] = {
    "No error occurred.",
    "An unknown error occurred while accessing %1.",
    "%1 was not found.",
    "%1 contains an incorrect path.",
    "%1 could not be opened because there are too many open files.",
    "Access to %1 was denied.",
    "An incorrect file handle was associated with %1.",
    "%1 could not be removed because it is the current directory.",
    "%1 could not be created because the directory is full.",
    "Seek failed on %1.",
    "A hardware I/O error was reported while accessing %1.",
    "A sharing violation occurred while accessing %1.",
    "A locking violation occurred while accessing %1.",
    "Disk full while accessing %1.",
    "An attempt was made to access %1 past its end.",
};

constexpr LPCSTR kArchiveMessages[] = {
    "No error occurred.",
    "An unknown error occurred while accessing %1.",
    "An attempt was made to write to the reading %1.",
    "An attempt was made to access %1 past its end.",
    "An attempt was made to read from the writing %1.",
    "%1 has a bad format.",
    "%1 contained an unexpected object.",
    "%1 contains an incorrect schema.",
};

template <size_t N>
BOOL NamedMessage(const LPCSTR (&messages)[N], int cause, const CString &name, LPSTR buffer, UINT capacity) {
    const LPCSTR names[1] = {name.IsEmpty() ? "an unnamed file" : static_cast<LPCSTR>(name)};
    const bool known = cause >= 0 && cause < static_cast<int>(N);
    CString text;
    AfxFormatStrings(text, messages[known ? cause : 1], names, 1);
    return CopyMessage(buffer, capacity, text);
}

} // namespace

CException::CException() : m_bAutoDelete(TRUE) {}

CException::CException(BOOL autoDelete) : m_bAutoDelete(autoDelete) {}

void CException::Delete() {
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPSTR buffer, UINT capacity, UINT *helpContext) const {
    if (helpContext)
        *helpContext = 0;
    CopyMessage(buffer, capacity, "");
    return FALSE;
}

int CException::ReportError(UINT type, UINT messageId) {
    char text[512];
    UINT help = 0;
    if (!GetErrorMessage(text, sizeof text, &help)) {
        CString fallback;
        if (messageId == 0 || !fallback.LoadString(messageId))
            fallback = "An unknown error has occurred.";
        return ReportToUser(fallback, type, help);
    }
    return ReportToUser(text, type, help);
}

CSimpleException::CSimpleException(BOOL autoDelete, LPCSTR message)
    : CException(autoDelete), m_message(message) {}

BOOL CSimpleException::GetErrorMessage(LPSTR buffer, UINT capacity, UINT *helpContext) const {
    if (helpContext)
        *helpContext = 0;
    return CopyMessage(buffer, capacity, m_message);
}

CMemoryException::CMemoryException(BOOL autoDelete) : CSimpleException(autoDelete, "Out of memory.") {}

CNotSupportedException::CNotSupportedException(BOOL autoDelete)
    : CSimpleException(autoDelete, "An unsupported operation was attempted.") {}

CResourceException::CResourceException(BOOL autoDelete)
    : CSimpleException(autoDelete, "A required resource was unavailable.") {}

CInvalidArgException::CInvalidArgException(BOOL autoDelete)
    : CSimpleException(autoDelete, "Encountered an improper argument.") {}

CUserException::CUserException(BOOL autoDelete) : CSimpleException(autoDelete, "") {}

CFileException::CFileException(int cause, LONG osError, LPCSTR fileName)
    : m_cause(cause), m_lOsError(osError), m_strFileName(fileName) {}

BOOL CFileException::GetErrorMessage(LPSTR buffer, UINT capacity, UINT *helpContext) const {
    if (helpContext)
        *helpContext = 0;
    return NamedMessage(kFileMessages, m_cause, m_strFileName, buffer, capacity);
}

void CFileException::ThrowOsError(LONG osError, LPCSTR fileName) {
    if (osError != 0)
        AfxThrowFileException(OsErrorToException(osError), osError, fileName);
}

CArchiveException::CArchiveException(int cause, LPCSTR archiveName)
    : m_cause(cause), m_strFileName(archiveName) {}

BOOL CArchiveException::GetErrorMessage(LPSTR buffer, UINT capacity, UINT *helpContext) const {
    if (helpContext)
        *helpContext = 0;
    return NamedMessage(kArchiveMessages, m_cause, m_strFileName, buffer, capacity);
}

void AfxThrowMemoryException() {
    throw &g_memoryException;
}

void AfxThrowNotSupportedException() {
    throw &g_notSupportedException;
}

void AfxThrowResourceException() {
    throw &g_resourceException;
}

void AfxThrowInvalidArgException() {
    throw &g_invalidArgException;
}

void AfxThrowUserException() {
    throw &g_userException;
}

void AfxThrowFileException(int cause, LONG osError, LPCSTR fileName) {
    throw new CFileException(cause, osError, fileName);
}

void AfxThrowArchiveException(int cause, LPCSTR archiveName) {
    throw new CArchiveException(cause, archiveName);
}

AFX_EXCEPTION_LINK::AFX_EXCEPTION_LINK() : m_previous(t_innermostLink), m_exception(nullptr) {
    t_innermostLink = this;
}

AFX_EXCEPTION_LINK::~AFX_EXCEPTION_LINK() {
    t_innermostLink = m_previous;
    if (m_exception)
        m_exception->Delete();
}

void AfxThrowLastCleanup() {
    if (t_innermostLink)
        t_innermostLink->m_exception = nullptr;
}
