// COptionsDlg: fonts, colours, undo depth and the Enter key of all editors.
#pragma once

#include <afxwin.h>

class CHostOptions;

class COptionsDlg : public CDialog {
public:
    // What was chosen is stored and applied to the open editors on OK.
    COptionsDlg(CHostOptions &options, CWnd *parent);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange *exchange) override;
    void OnOK() override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnCellFont() { ChooseFont(&m_cellFont); }
    afx_msg void OnHeadingFont() { ChooseFont(&m_headingFont); }
    afx_msg void OnTextColour() { ChooseColour(&m_textColour); }
    afx_msg void OnHighlightColour() { ChooseColour(&m_highlightColour); }

private:
    void ChooseFont(LOGFONTA *font);
    void ChooseColour(COLORREF *colour);
    void ShowFonts();

    CHostOptions &m_options;
    LOGFONTA m_cellFont;
    LOGFONTA m_headingFont;
    COLORREF m_textColour;
    COLORREF m_highlightColour;
    int m_undoLevels;
    BOOL m_enterIsTab;
    BOOL m_rightNumbers;
    BOOL m_rightText;
};
