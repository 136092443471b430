// Saving, saving under another name, and telling the host what is open.
#include "editorcore/EditorCore.h"
#include "editorcore/MemoryGuard.h"
#include "editorcore/TableWatch.h"
#include "grid/PaintingScope.h"

#include <mbstring.h>

namespace {

// The path as the file system spells it in short; empty when there is none.
CString ShortPath(const char *path) {
    CString result;
    char *buffer = result.GetBuffer(MAX_PATH);
    const DWORD length = ::GetShortPathNameA(path, buffer, MAX_PATH);
    result.ReleaseBuffer(length < 1 || length >= MAX_PATH ? 0 : static_cast<int>(length));
    return result;
}

} // namespace

const char *CEditorCore::GetFileName() const {
    if (m_strFilePath.GetLength() < 2)
        return nullptr;
    const int backslash = m_strFilePath.ReverseFind('\\');
    const char *path = m_strFilePath;
    // A backslash at the very start is part of the name: there is no folder in front of it.
    return backslash > 0 ? path + backslash + 1 : path;
}

bool CEditorCore::FileExists(const char *path) {
    WIN32_FIND_DATAA data;
    HANDLE find = ::FindFirstFileA(path, &data);
    if (find == INVALID_HANDLE_VALUE)
        return false;
    ::FindClose(find);
    return true;
}

CEditorCore *CEditorCore::GetOpenFilesGrid(const char *path) {
    const CString wanted = ShortPath(path);
    if (wanted.IsEmpty())
        return nullptr;
    for (int i = 0; i < m_InstanceList.GetSize(); ++i) {
        CEditorCore *editor = m_InstanceList.GetAt(i);
        const CString open = ShortPath(editor->m_strFilePath);
        if (open.IsEmpty())
            return nullptr;
        const auto *a = reinterpret_cast<const unsigned char *>(static_cast<const char *>(wanted));
        const auto *b = reinterpret_cast<const unsigned char *>(static_cast<const char *>(open));
        if (::_mbsicmp(a, b) == 0)
            return editor;
    }
    return nullptr;
}

bool CEditorCore::IsFileModified() {
    if (IsEditTyped())
        return true;
    CUGDataSource *source = m_bDataSrcOpen ? GetCurrentDataSrc(false) : nullptr;
    return source != nullptr && source->CanUndo();
}

void CEditorCore::UpdateTitle() {
    if (m_strFilePath.IsEmpty())
        return;
    const char *table = m_strTableName.IsEmpty() ? nullptr : static_cast<const char *>(m_strTableName);
    // Without memory a title stays as it was: no reason to break off what led here.
    RunInMemory([&] { ms_pAppInterface->SetEditorTitle(m_strFilePath, table, this); });
    if (CWnd *parent = GetParent())
        parent->PostMessage(kMsgTitleChanged,
                            reinterpret_cast<WPARAM>(static_cast<const char *>(m_strFilePath)),
                            reinterpret_cast<LPARAM>(table));
}

void CEditorCore::OnSave(int) {
    if (GetEditControl() != nullptr)
        SaveEditContents();
    if (CUGDataSource *source = GetCurrentDataSrc(true)) {
        const SourceWork saving(this, source);
        source->Save(); // a failure is told by the source
        UpdateTitle();
    }
}

// False, having told why or been told so, for a file that is open and for one that is to be kept.
bool CEditorCore::MayWriteTo(const CString &path) {
    CString text;
    if (GetOpenFilesGrid(path) != nullptr) {
        text.Format("The file '%s' is already open in the Editor.\n\n"
                    "Please close before trying to save to it.",
                    static_cast<const char *>(path));
        AfxMessageBox(text, 0, 0);
        return false;
    }
    if (!FileExists(path))
        return true;
    text.Format("The file '%s' already exists!\nOverwrite?", static_cast<const char *>(path));
    return AfxMessageBox(text, MB_YESNO | MB_ICONQUESTION, 0) == IDYES;
}

bool CEditorCore::OnSaveAs(const CString &newPath, bool filtered, int filterNumber) {
    if (!filtered && m_strFilePath.CompareNoCase(newPath) == 0) {
        OnSave(filterNumber);
        return true;
    }
    if (GetEditControl() != nullptr)
        SaveEditContents();
    const CTableWatch watch(this);
    if (GetCurrentDataSrc(true) == nullptr || !MayWriteTo(newPath) || !watch.SameTable())
        return false;
    SettleEdit(); // one begun while it was asked
    CUGDataSource *source = GetCurrentDataSrc(true);
    if (source == nullptr || !watch.SameTable())
        return false;
    // The working copy is gone once it was written, so it is read back. A file of several tables cannot be: then it
    // stays as it was.
    const CTableInfo kept = m_pLayout->GetWorkingCopy();
    Serialize(true);
    if (!Serialize(false))
        m_pLayout->SetWorkingCopy(kept);
    CString layout(newPath);
    GetLayoutFileName(layout);
    if (FileExists(layout)) {
        try {
            CFile::Remove(layout);
        } catch (CException *e) {
            e->Delete(); // a layout that cannot be deleted is overwritten at close
        }
    }
    CString options(m_strTableName);
    if (filtered && filterNumber != -1)
        options.AppendFormat(" -filter %d", filterNumber);
    return SaveUnderNewPath(source, newPath, options);
}

bool CEditorCore::SaveUnderNewPath(CUGDataSource *source, const CString &newPath, const CString &options) {
    {
        CPaintingScope quiet(this);
        const SourceWork saving(this, source);
        if (source->SaveAs(newPath, options) != GRID_SUCCESS) {
            CString text;
            text.Format("Could not save %s!", static_cast<const char *>(newPath));
            AfxMessageBox(text, MB_ICONHAND, 0);
            return false;
        }
        m_strFilePath = newPath;
        LoseEdit(); // what passes a filter may be all that there is now
        CUGCtrl::SetNumberRows(RowsOfSource(source), 1);
    }
    UpdateTitle();
    RedrawAll();
    return true;
}
