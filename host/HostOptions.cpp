#include "host/HostOptions.h"

#include <cstring>

namespace {

const char *const kSection = "Editor";
constexpr int kFontPoints = 10;
constexpr COLORREF kDefaultHighlight = RGB(0, 90, 158); // dark enough for the system's white highlight text
constexpr int kDefaultUndoLevels = 100;
constexpr int kDefaultMaxDisplayColWidth = 40;

LOGFONTA DefaultFont(LONG weight) {
    LOGFONTA font{};
    HDC screen = ::GetDC(nullptr);
    font.lfHeight = -::MulDiv(kFontPoints, ::GetDeviceCaps(screen, LOGPIXELSY), 72);
    ::ReleaseDC(nullptr, screen);
    font.lfWeight = weight;
    font.lfCharSet = ANSI_CHARSET;
    std::strcpy(font.lfFaceName, "Arial");
    return font;
}

void ReadFont(const char *entry, LOGFONTA *font) {
    BYTE *data = nullptr;
    UINT bytes = 0;
    if (!AfxGetApp()->GetProfileBinary(kSection, entry, &data, &bytes))
        return;
    if (bytes == sizeof *font) {
        std::memcpy(font, data, sizeof *font);
        font->lfFaceName[LF_FACESIZE - 1] = '\0';
    }
    delete[] data;
}

void WriteFont(const char *entry, const LOGFONTA &font) {
    LOGFONTA copy = font;
    AfxGetApp()->WriteProfileBinary(kSection, entry, reinterpret_cast<BYTE *>(&copy), sizeof copy);
}

int Read(const char *entry, int otherwise) {
    return static_cast<int>(AfxGetApp()->GetProfileInt(kSection, entry, otherwise));
}

void Write(const char *entry, int value) {
    AfxGetApp()->WriteProfileInt(kSection, entry, value);
}

} // namespace

void CHostOptions::Load() {
    m_cellFont = DefaultFont(FW_NORMAL);
    m_headingFont = DefaultFont(FW_BOLD);
    ReadFont("CellFont", &m_cellFont);
    ReadFont("HeadingFont", &m_headingFont);
    m_textColour = static_cast<COLORREF>(Read("TextColour", 0)) & 0xFFFFFF;
    m_highlightColour = static_cast<COLORREF>(Read("HighlightColour", kDefaultHighlight)) & 0xFFFFFF;
    m_undoLevels = Read("UndoLevels", kDefaultUndoLevels);
    m_maxDisplayColWidth = Read("MaxDisplayColWidth", kDefaultMaxDisplayColWidth);
    m_enterIsTab = Read("EnterIsTab", 0) != 0;
    m_rightNumbers = Read("RightJustifyNumbers", 1) != 0;
    m_rightText = Read("RightJustifyText", 0) != 0;
    m_horizontalLines = Read("HorizontalLines", 1) != 0;
    m_verticalLines = Read("VerticalLines", 1) != 0;
}

void CHostOptions::SetCellFont(const LOGFONTA *font) {
    m_cellFont = *font;
    WriteFont("CellFont", m_cellFont);
}

void CHostOptions::SetHeadingFont(const LOGFONTA *font) {
    m_headingFont = *font;
    WriteFont("HeadingFont", m_headingFont);
}

void CHostOptions::SetEnterKeyTab(bool enterIsTab) {
    m_enterIsTab = enterIsTab;
    Write("EnterIsTab", enterIsTab);
}

void CHostOptions::SetGridLines(bool horizontal, bool vertical) {
    m_horizontalLines = horizontal;
    m_verticalLines = vertical;
    Write("HorizontalLines", horizontal);
    Write("VerticalLines", vertical);
}

void CHostOptions::GetGridLines(bool *horizontal, bool *vertical) {
    *horizontal = m_horizontalLines;
    *vertical = m_verticalLines;
}

void CHostOptions::SetColours(COLORREF text, COLORREF highlight) {
    m_textColour = text;
    m_highlightColour = highlight;
    Write("TextColour", static_cast<int>(text));
    Write("HighlightColour", static_cast<int>(highlight));
}

void CHostOptions::SetUndoLevels(int levels) {
    m_undoLevels = levels;
    Write("UndoLevels", levels);
}

void CHostOptions::SetRightJustifying(bool numbers, bool text) {
    m_rightNumbers = numbers;
    m_rightText = text;
    Write("RightJustifyNumbers", numbers);
    Write("RightJustifyText", text);
}
