// QuietHost and QuietOptions: a host that offers nothing, takes everything and shows nothing. What a test or
// a benchmark wants otherwise it overrides.
#pragma once

#include "editorcore/QuietAppInterface.h"

#include <afxwin.h>

#include <cstring>

class QuietOptions : public CVEditorOptions {
public:
    void GetCellFont(LOGFONTA *font) override {
        std::memset(font, 0, sizeof *font);
        font->lfHeight = -13;
        std::strcpy(font->lfFaceName, "Arial");
    }
    void GetHeadingFont(LOGFONTA *font) override { GetCellFont(font); }
    void SetCellFont(const LOGFONTA *) override {}
    void SetHeadingFont(const LOGFONTA *) override {}
    COLORREF GetCellTextColour() override { return 0; }
    COLORREF GetCellHighlightColour() override { return RGB(0, 90, 158); }
    int GetUndoLevels() override { return 100; }
    int GetMaxDisplayColWidth() override { return 40; }
    bool IsEnterKeyTab() override { return false; }
    void SetEnterKeyTab(bool) override {}
    bool IsRightJustifyingNumbers() override { return true; }
    bool IsRightJustifyingText() override { return false; }
    void SetGridLines(bool, bool) override {}
    void GetGridLines(bool *horizontal, bool *vertical) override { *horizontal = *vertical = true; }
};

class QuietHost : public CQuietAppInterface {
public:
    CVEditorOptions *GetEditorOptions() override { return &m_quietOptions; }

private:
    QuietOptions m_quietOptions;
};
