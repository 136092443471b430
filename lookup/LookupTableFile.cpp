#include "lookup/LookupTableFile.h"

#include "editorcore/AppInterface.h"
#include "lookup/ArchiveArrays.h"
#include "lookup/MenuSection.h"
#include "lookup/TrieSection.h"

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CLookupTableFile, CObject)

CVAppInterface *CLookupTableFile::ms_pAppInterface = nullptr;

namespace {

constexpr int kFileVersion = 4;

// Files may hold fewer properties, which then are true; an empty one says nothing.
void ReadProperty(const CStringArray &properties, int index, bool &property) {
    if (index >= properties.GetSize())
        property = true;
    else if (!properties[index].IsEmpty())
        property = properties[index] == "1";
}

// What a fault in the file is to the user.
LPCSTR ArchiveFaultText(int cause, bool bStoring) {
    if (cause == CArchiveException::badSchema)
        return "The lookup table was produced by different version of software!\nRecompile the lookup table.";
    return bStoring ? "Error saving lookup table!" : "Error reading lookup table!";
}

} // namespace

CLookupTableFile::CLookupTableFile() = default;

CLookupTableFile::~CLookupTableFile() = default;

void CLookupTableFile::Serialize(CArchive &archive) {
    if (archive.IsStoring())
        Store(archive);
    else
        Load(archive);
}

void CLookupTableFile::Store(CArchive &archive) {
    archive << kFileVersion;
    CStringArray properties;
    for (bool property : {m_bCaseSensitive, m_bAcceptEmptyCells, m_bEnableValidation, m_bSortMenuItems})
        properties.Add(property ? "1" : "0");
    CArray<int, int> reserved;
    m_LastTime = CTime::GetCurrentTime().GetTime();
    SerializeArray(archive, properties);
    SerializeArray(archive, reserved);
    WriteMenuSection(archive, m_MenuTree);
    if (m_bEnableValidation)
        WriteTrieSection(archive, m_LookupTree);
}

void CLookupTableFile::Load(CArchive &archive) {
    int version;
    archive >> version;
    if (version != kFileVersion)
        AfxThrowArchiveException(CArchiveException::badSchema, "");
    CStringArray properties;
    SerializeArray(archive, properties);
    ReadProperty(properties, 0, m_bCaseSensitive);
    ReadProperty(properties, 1, m_bAcceptEmptyCells);
    ReadProperty(properties, 2, m_bEnableValidation);
    ReadProperty(properties, 3, m_bSortMenuItems);
    CArray<int, int> reserved;
    SerializeArray(archive, reserved);
    CFileStatus status;
    if (archive.GetFile()->GetStatus(status))
        m_LastTime = status.m_mtime.GetTime();
    m_MenuTree.Clear(true);
    m_LookupTree.Clear();
    ReadMenuSection(archive, m_MenuTree);
    if (m_bEnableValidation)
        ReadTrieSection(archive, m_LookupTree);
}

bool CLookupTableFile::SerializeFile(LPCSTR path, CString &errorText, bool bStoring) {
    try {
        CFile file;
        return Open(file, path, errorText, bStoring) && Transfer(file, errorText, bStoring);
    } catch (CMemoryException *e) {
        e->Delete();
        return Fail(errorText, "Out of memory!", bStoring);
    }
}

bool CLookupTableFile::Open(CFile &file, LPCSTR path, CString &errorText, bool bStoring) {
    CFileStatus status;
    if (!bStoring && !CFile::GetStatus(path, status)) {
        errorText.Format("The file '%s' does not exist!", path);
        return false;
    }
    if (!file.Open(path, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeReadWrite | CFile::typeBinary)) {
        errorText.Format("Could not open file '%s'!", path);
        return false;
    }
    try {
        if (!bStoring && file.GetLength() == 0) {
            file.Close();
            errorText.Format("The file '%s' is empty!", path);
            return false;
        }
        file.SeekToBegin();
    } catch (CFileException *e) {
        e->Delete();
        file.Abort();
        errorText = "CLookupTableFile::Serialize: Seek error";
        return false;
    }
    return true;
}

// What the file itself reports is to the user the same as what the archive does: the table was not read or saved.
bool CLookupTableFile::Transfer(CFile &file, CString &errorText, bool bStoring) {
    try {
        CArchive archive(&file, bStoring ? CArchive::store : CArchive::load);
        Serialize(archive);
        archive.Close();
        if (bStoring)
            file.Flush();
        file.Close();
        return true;
    } catch (CArchiveException *e) {
        const int cause = e->m_cause;
        e->Delete();
        return Fail(errorText, ArchiveFaultText(cause, bStoring), bStoring);
    } catch (CFileException *e) {
        e->Delete();
        return Fail(errorText, ArchiveFaultText(CArchiveException::genericException, bStoring), bStoring);
    }
}

bool CLookupTableFile::Fail(CString &errorText, LPCSTR text, bool bStoring) {
    if (ms_pAppInterface != nullptr)
        ms_pAppInterface->DoWaitCursor(-1);
    if (!bStoring) {
        m_MenuTree.Clear(true);
        m_LookupTree.Clear();
    }
    errorText = text;
    return false;
}

bool CLookupTableFile::CheckForModification(LPCSTR path) {
    CFileStatus status;
    if (m_LastTime == -1 || !CFile::GetStatus(path, status) || status.m_mtime.GetTime() <= m_LastTime)
        return true;
    CString text;
    text.Format("The lookup table '%s' has been modified.", path);
    text += "\n\nWould you like to reload it?";
    if (AfxMessageBox(text, MB_YESNO | MB_ICONQUESTION, 0) != IDYES) {
        m_LastTime = status.m_mtime.GetTime();
        return true;
    }
    CString errorText;
    if (SerializeFile(path, errorText, false))
        return true;
    if (errorText.IsEmpty())
        return true;
    AfxMessageBox(errorText, MB_ICONHAND, 0);
    return false;
}

bool CLookupTableFile::IsValidCode(LPCSTR code) {
    return m_LookupTree.IsCompleteCode(code != nullptr ? code : "", m_bCaseSensitive);
}

bool CLookupTableFile::IsValidPartialCode(LPCSTR code) {
    return m_LookupTree.IsPartialCode(code != nullptr ? code : "", m_bCaseSensitive);
}

CMenuTree *CLookupTableFile::GetMenuForCode(LPCSTR code) {
    if (code == nullptr)
        return &m_MenuTree;
    CStringArray codes;
    if (!m_LookupTree.GetCodeList(code, m_bCaseSensitive, codes))
        return &m_MenuTree;
    CMenuTree *node = m_MenuTree.FindPath(codes, m_bCaseSensitive);
    return node != nullptr ? node : &m_MenuTree;
}
