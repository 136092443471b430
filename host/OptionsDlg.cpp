#include "host/OptionsDlg.h"

#include <afxdlgs.h>

#include "editorcore/EditorCore.h"
#include "host/HostOptions.h"
#include "host/Resource.h"

BEGIN_MESSAGE_MAP(COptionsDlg, CDialog)
    ON_BN_CLICKED(IDC_CELL_FONT, OnCellFont)
    ON_BN_CLICKED(IDC_HEADING_FONT, OnHeadingFont)
    ON_BN_CLICKED(IDC_TEXT_COLOUR, OnTextColour)
    ON_BN_CLICKED(IDC_HIGHLIGHT_COLOUR, OnHighlightColour)
END_MESSAGE_MAP()

namespace {

constexpr int kMostUndoLevels = 10000;

CString DescribeFont(const LOGFONTA &font) {
    CString text;
    text.Format("%s, %ld pixels%s", font.lfFaceName, font.lfHeight < 0 ? -font.lfHeight : font.lfHeight,
                font.lfWeight >= FW_BOLD ? ", bold" : "");
    return text;
}

} // namespace

COptionsDlg::COptionsDlg(CHostOptions &options, CWnd *parent)
    : CDialog(IDD_OPTIONS, parent), m_options(options), m_textColour(options.GetCellTextColour()),
      m_highlightColour(options.GetCellHighlightColour()), m_undoLevels(options.GetUndoLevels()),
      m_enterIsTab(options.IsEnterKeyTab()), m_rightNumbers(options.IsRightJustifyingNumbers()),
      m_rightText(options.IsRightJustifyingText()) {
    options.GetCellFont(&m_cellFont);
    options.GetHeadingFont(&m_headingFont);
}

BOOL COptionsDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    ShowFonts();
    return TRUE;
}

void COptionsDlg::DoDataExchange(CDataExchange *exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_UNDO_LEVELS, m_undoLevels);
    DDV_MinMaxInt(exchange, m_undoLevels, 0, kMostUndoLevels);
    DDX_Check(exchange, IDC_ENTER_IS_TAB, m_enterIsTab);
    DDX_Check(exchange, IDC_RIGHT_NUMBERS, m_rightNumbers);
    DDX_Check(exchange, IDC_RIGHT_TEXT, m_rightText);
}

void COptionsDlg::ShowFonts() {
    SetDlgItemText(IDC_CELL_FONT_NAME, DescribeFont(m_cellFont));
    SetDlgItemText(IDC_HEADING_FONT_NAME, DescribeFont(m_headingFont));
}

void COptionsDlg::ChooseFont(LOGFONTA *font) {
    CFontDialog dialog(font, CF_SCREENFONTS, nullptr, this);
    if (dialog.DoModal() == IDOK) {
        dialog.GetCurrentFont(font);
        ShowFonts();
    }
}

void COptionsDlg::ChooseColour(COLORREF *colour) {
    CColorDialog dialog(*colour, 0, this);
    if (dialog.DoModal() == IDOK)
        *colour = dialog.GetColor();
}

void COptionsDlg::OnOK() {
    if (!UpdateData(TRUE))
        return;
    m_options.SetColours(m_textColour, m_highlightColour);
    m_options.SetUndoLevels(m_undoLevels);
    m_options.SetRightJustifying(m_rightNumbers != FALSE, m_rightText != FALSE);
    CEditorCore::SetEnterKey(m_enterIsTab != FALSE);
    CEditorCore::SetFonts(m_cellFont, m_headingFont);
    EndDialog(IDOK);
}
