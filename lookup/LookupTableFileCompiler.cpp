#include "lookup/LookupTableFileCompiler.h"

#include "editorcore/AppInterface.h"
#include "grid/UGDataSource.h"
#include "lookup/MenuPaths.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CLookupTableFileCompiler, CLookupTableFile)

namespace {

class CWaitCursorOn {
public:
    explicit CWaitCursorOn(CVAppInterface *host) : m_host(host) { m_host->DoWaitCursor(1); }
    ~CWaitCursorOn() { m_host->DoWaitCursor(-1); }
    CWaitCursorOn(const CWaitCursorOn &) = delete;
    CWaitCursorOn &operator=(const CWaitCursorOn &) = delete;

private:
    CVAppInterface *m_host;
};

} // namespace

CLookupTableFileCompiler::CLookupTableFileCompiler(CVAppInterface *pAppInterface) : m_pAppInterface(pAppInterface) {}

CLookupTableFileCompiler::~CLookupTableFileCompiler() {
    if (m_bOwnsDataSource)
        delete m_pDataSource;
}

void CLookupTableFileCompiler::AttachDataSource(CUGDataSource *pDataSource) {
    m_pDataSource = pDataSource;
    m_sSourcePath.Empty();
    m_bAttached = true;
    CString *path = &m_sSourcePath;
    int none = 0;
    m_pDataSource->GetOption(UGSRC_PATH, &path, &none);
}

void CLookupTableFileCompiler::DetachDataSource() {
    if (!m_bAttached)
        return;
    m_pDataSource = nullptr;
    m_bAttached = false;
    m_sSourcePath.Empty();
}

bool CLookupTableFileCompiler::CheckDataSource(CString &errorText) {
    if (m_pDataSource == nullptr)
        errorText = "No data source attached!";
    else if (m_pDataSource->GetNumCols() <= 0 || m_pDataSource->GetNumRows() <= 0)
        errorText = "File has no data!";
    else if (m_pDataSource->GetNumCols() % 2 != 0)
        errorText = "File must have an even number of fields!\n\n"
                    "Each lookup level needs to have a 'Code' and\n"
                    "a 'Description' field.";
    else
        return true;
    return false;
}

bool CLookupTableFileCompiler::GetCellText(int col, long row, CString &text, CString &errorText) {
    CUGCell cell;
    if (m_pDataSource->GetCell(col, row, &cell) == GRID_SUCCESS && cell.GetText(&text) == GRID_SUCCESS)
        return true;
    errorText.Format("Could not get text at cell col %d, row %ld!", col, row);
    return false;
}

// The source's path with another suffix, or with one.
CString CLookupTableFileCompiler::GetTablePath() const {
    const int dot = m_sSourcePath.ReverseFind('.');
    return (dot > 0 ? m_sSourcePath.Left(dot) : m_sSourcePath) + ".lbn";
}

void CLookupTableFileCompiler::GetLookupFileName(CString &name) const {
    const CString path = GetTablePath();
    const int separator = path.ReverseFind('\\');
    if (separator > 0)
        name = path.Mid(separator + 1);
}

// What cannot be read counts as no text: the checks come later.
int CLookupTableFileCompiler::CountLevelsOfFirstRow() {
    int levels = 0;
    const bool hasRow = m_pDataSource != nullptr && m_pDataSource->GetNumRows() > 0;
    const int columns = hasRow ? m_pDataSource->GetNumCols() : 0;
    for (int col = 0; col < columns; col += 2) {
        CString text, ignored;
        if (GetCellText(col, 0, text, ignored) && !text.IsEmpty())
            ++levels;
    }
    return levels;
}

// Whether to overwrite the table, and with which properties.
bool CLookupTableFileCompiler::AskUser(const CString &path) {
    CFileStatus status;
    if (CFile::GetStatus(path, status)) {
        CString question;
        question.Format("File '%s' exists!\n\nOverwrite?", path);
        if (AfxMessageBox(question, MB_YESNO | MB_ICONQUESTION, 0) != IDYES)
            return false;
    }
    bool caseSensitive = m_bCaseSensitive, acceptEmpty = m_bAcceptEmptyCells, validate = m_bEnableValidation,
         sort = m_bSortMenuItems;
    if (!m_pAppInterface->EditLookupTableProperties(&caseSensitive, &acceptEmpty, &validate, &sort))
        return false;
    m_bCaseSensitive = caseSensitive;
    m_bAcceptEmptyCells = acceptEmpty;
    m_bEnableValidation = validate;
    m_bSortMenuItems = sort;
    return true;
}

bool CLookupTableFileCompiler::Compile(int &errorCol, long &errorRow, CString &errorText) {
    errorCol = -1;
    errorRow = -1;
    errorText.Empty();
    int levels = 0;
    try {
        levels = CountLevelsOfFirstRow();
        if (!CheckDataSource(errorText) || !AskUser(GetTablePath()))
            return false;
    } catch (CMemoryException *e) {
        e->Delete();
        AfxMessageBox("Out of memory!", MB_ICONHAND, 0);
        return false;
    }
    const CWaitCursorOn wait(m_pAppInterface);
    m_MenuTree.Clear(true);
    m_LookupTree.Clear();
    const bool independent = m_pDataSource->GetNumCols() > 2 && levels > 1;
    return independent ? BuildLevels(errorCol, errorRow, errorText) : BuildOutline(errorCol, errorRow, errorText);
}

// False when the user stopped it. The paths are not collected: their number is that of all combinations.
bool CLookupTableFileCompiler::BuildLookupTree() {
    if (!m_bEnableValidation)
        return true;
    m_MenuTree.ResetIterator();
    while (const CMenuTree *item = m_MenuTree.GetNextChild()) {
        CMenuPaths paths(item);
        while (paths.Next()) {
            if (m_pAppInterface->CheckAbort() != 0)
                return false;
            m_LookupTree.AddCode(m_bCaseSensitive, paths.GetPath(), 0, 0);
        }
    }
    return true;
}

bool CLookupTableFileCompiler::Finish(CString &errorText) {
    try {
        if (!BuildLookupTree()) {
            errorText.Empty();
            return false;
        }
    } catch (CException *e) {
        e->Delete();
        AfxMessageBox("Exception caught from 'BuildLookupTree ()'!", MB_ICONHAND, 0);
    }
    return SerializeFile(GetTablePath(), errorText, true);
}
