// CHostOptions: the host's editor options, kept in the registry below the application's own key.
#pragma once

#include <afxwin.h>

#include "editorcore/EditorOptions.h"

class CHostOptions final : public CVEditorOptions {
public:
    // Reads what is stored; defaults stand in for what is not.
    void Load();

    void GetCellFont(LOGFONTA *font) override { *font = m_cellFont; }
    void GetHeadingFont(LOGFONTA *font) override { *font = m_headingFont; }
    void SetCellFont(const LOGFONTA *font) override;
    void SetHeadingFont(const LOGFONTA *font) override;
    COLORREF GetCellTextColour() override { return m_textColour; }
    COLORREF GetCellHighlightColour() override { return m_highlightColour; }
    int GetUndoLevels() override { return m_undoLevels; }
    int GetMaxDisplayColWidth() override { return m_maxDisplayColWidth; }
    bool IsEnterKeyTab() override { return m_enterIsTab; }
    void SetEnterKeyTab(bool enterIsTab) override;
    bool IsRightJustifyingNumbers() override { return m_rightNumbers; }
    bool IsRightJustifyingText() override { return m_rightText; }
    void SetGridLines(bool horizontal, bool vertical) override;
    void GetGridLines(bool *horizontal, bool *vertical) override;

    // What the library only reads.
    void SetColours(COLORREF text, COLORREF highlight);
    void SetUndoLevels(int levels);
    void SetRightJustifying(bool numbers, bool text);

private:
    LOGFONTA m_cellFont{};
    LOGFONTA m_headingFont{};
    COLORREF m_textColour = 0;
    COLORREF m_highlightColour = 0;
    int m_undoLevels = 0;
    int m_maxDisplayColWidth = 0;
    bool m_enterIsTab = false;
    bool m_rightNumbers = true;
    bool m_rightText = false;
    bool m_horizontalLines = true;
    bool m_verticalLines = true;
};
