// The layout file beside the data file, and the layout of a table that has none yet.
#include "editorcore/EditorCore.h"
#include "editorcore/FrozenWidthScope.h"
#include "grid/ValueScope.h"
#include "editorcore/WaitCursorScope.h"
#include "grid/PaintingScope.h"

#include <algorithm>

namespace {

constexpr int kDefaultRowHeightPx = 18;
constexpr UINT kLayoutOpenFlags =
    CFile::modeCreate | CFile::modeNoTruncate | CFile::modeReadWrite | CFile::typeBinary;

} // namespace

void CEditorCore::GetLayoutFileName(CString &path) {
    const int dot = path.ReverseFind('.');
    if (dot > 0)
        path = path.Left(dot) + path.Mid(dot + 1);
    path += ".@layout";
}

bool CEditorCore::Serialize(bool store) {
    if (!m_bAutoSaveLayout || !FileExists(m_strFilePath))
        return false;
    CString name(m_strFilePath);
    GetLayoutFileName(name);
    CFile file;
    if (!file.Open(name, kLayoutOpenFlags))
        return false;
    try {
        if (!store && file.GetLength() == 0) {
            file.Close();
            return false;
        }
        if (store)
            file.Seek(0, CFile::begin);
    } catch (CFileException *e) {
        e->Delete();
        AfxMessageBox("CEditorCore::Serialize: Seek error", MB_ICONHAND, 0);
        file.Abort();
        return false;
    }
    try {
        const CUGValueScope withinHere(&m_bAutoSaveLayout, false);
        CArchive archive(&file, store ? CArchive::store : CArchive::load);
        Serialize(archive);
        archive.Close();
        file.Flush();
        file.Close();
    } catch (CException *e) {
        e->Delete(); // a layout that cannot be read gives way to a fresh one
        file.Abort();
    }
    m_bLayoutValid = !store;
    return m_pLayout->IsTableFound();
}

void CEditorCore::Serialize(CArchive &ar) {
    if (!m_bAutoSaveLayout)
        m_pLayout->Serialize(ar);
}

void CEditorCore::SetGridLayout() {
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (source == nullptr)
        return;
    NoteChange(&TableState::columns);
    CPaintingScope quiet(this);
    if (!Serialize(false)) {
        BuildDefaultLayout(true);
    } else if (!m_pLayout->ApplyToGrid(source)) {
        const CWaitCursorScope waiting(ms_pAppInterface);
        BuildDefaultLayout(false);
    }
    m_bLayoutValid = true;
    if (source->GetNumRows() == 0)
        SetNumberRows(0, 1);
}

void CEditorCore::BuildDefaultLayout(bool setTranslations) {
    CUGDataSource *source = GetCurrentDataSrc(false);
    {
        CPaintingScope quiet(this);
        const CFrozenWidthScope keepingStep(this);
        SetGridUsingDataSource(m_nDataSrcIndex);
        CUGCtrl::SetNumberRows(std::max(RowsOfSource(source), 0L), 1);
        SetGridInitColWidths();
        SetRowHeight(0, ScaledRowHeight(kDefaultRowHeightPx));
        if (setTranslations) {
            for (int col = 0; col < GetNumberCols(); ++col)
                SetColTranslation(col, col);
        }
    }
    m_pLayout->CaptureFromGrid();
}
