// The fonts of all editors.
#include "editorcore/EditorCore.h"
#include "editorcore/FrozenWidthScope.h"
#include "grid/PaintingScope.h"

#include <memory>

void CEditorCore::SetFonts(const LOGFONTA &cell, const LOGFONTA &heading) {
    std::unique_ptr<CFont> cellFont, headingFont;
    try {
        cellFont = std::make_unique<CFont>();
        headingFont = std::make_unique<CFont>();
    } catch (CMemoryException *e) {
        e->Delete();
        ReportOutOfMemory();
        return;
    }
    if (!cellFont->CreateFontIndirect(&cell) || !headingFont->CreateFontIndirect(&heading)) {
        AfxMessageBox("Could not create new font!", MB_ICONHAND, 0);
        return;
    }
    int maxCharWidth = 0, height = 0;
    if (m_InstanceList.GetSize() > 0) {
        CEditorCore *first = m_InstanceList.GetAt(0);
        if (CDC *dc = first->GetTopHeadingDC()) {
            TEXTMETRICA metrics{};
            CFont *old = dc->SelectObject(headingFont.get());
            ::GetTextMetricsA(dc->GetSafeHdc(), &metrics);
            dc->SelectObject(old);
            first->ReleaseTopHeadingDC(dc);
            maxCharWidth = metrics.tmMaxCharWidth;
            height = metrics.tmHeight + metrics.tmExternalLeading;
        }
    }
    for (int i = 0; i < m_InstanceList.GetSize(); ++i)
        m_InstanceList.GetAt(i)->ApplyFonts(cellFont.get(), headingFont.get(), maxCharWidth, height);
    delete ms_pCellFont;
    delete ms_pHeadingFont;
    ms_lfCellFont = cell;
    ms_lfHeadingFont = heading;
    ms_pCellFont = cellFont.release();
    ms_pHeadingFont = headingFont.release();
    CVEditorOptions *options = ms_pAppInterface->GetEditorOptions();
    options->SetCellFont(&ms_lfCellFont);
    options->SetHeadingFont(&ms_lfHeadingFont);
}

// Columns and the top heading grow where the new heading font needs it; they never shrink.
void CEditorCore::ApplyFonts(CFont *cell, CFont *heading, int maxCharWidth, int headingHeight) {
    CPaintingScope quiet(this);
    const CFrozenWidthScope keepingStep(this);
    SetDefaultFont(cell);
    CUGCell defaults;
    GetHeadingDefault(&defaults);
    defaults.SetFont(heading);
    SetHeadingDefault(&defaults);
    CString name;
    for (int col = 0; col < GetNumberCols(); ++col) {
        GetColName(col, name);
        const int needed = name.GetLength() * maxCharWidth + 1;
        int width = 0;
        GetColWidth(col, &width);
        if (needed <= width)
            continue;
        SetColWidth(col, needed);
        if (m_pLayout != nullptr)
            m_pLayout->SetColWidth(col, needed);
    }
    if (headingHeight > GetTH_Height()) {
        SetTH_Height(headingHeight);
        if (m_pLayout != nullptr)
            m_pLayout->SetTopHeadingHeight(headingHeight);
    }
}
