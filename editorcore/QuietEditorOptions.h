// CQuietEditorOptions: options that are always the same and keep nothing.
#pragma once

#include "editorcore/EditorOptions.h"

#include <afxwin.h>

#include <cstring>

class CQuietEditorOptions : public CVEditorOptions {
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
