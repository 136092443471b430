#include "ContactSheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>

namespace {

constexpr int kGapPx = 8;
constexpr int kCaptionPx = 13;
constexpr COLORREF kPaper = RGB(236, 236, 228);
constexpr COLORREF kCaptionInk = RGB(90, 90, 120);

constexpr int kColourIndices[] = {COLOR_BTNFACE,     COLOR_BTNSHADOW,  COLOR_BTNHIGHLIGHT, COLOR_3DLIGHT,
                                  COLOR_3DDKSHADOW,  COLOR_BTNTEXT,    COLOR_WINDOW,       COLOR_WINDOWTEXT,
                                  COLOR_WINDOWFRAME, COLOR_HIGHLIGHT,  COLOR_HIGHLIGHTTEXT, COLOR_SCROLLBAR,
                                  COLOR_GRAYTEXT};
constexpr COLORREF kColours[] = {RGB(212, 208, 200), RGB(128, 128, 128), RGB(255, 255, 255), RGB(226, 224, 216),
                                 RGB(64, 64, 64),    RGB(0, 0, 0),       RGB(255, 255, 255), RGB(0, 0, 0),
                                 RGB(0, 0, 0),       RGB(10, 36, 106),   RGB(255, 255, 255), RGB(212, 208, 200),
                                 RGB(128, 128, 128)};
constexpr int kCount = static_cast<int>(std::size(kColourIndices));

} // namespace

ContactSheet::ContactSheet(int width, int height) : m_size(width, height), m_at(kGapPx, kGapPx) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void *bits = nullptr;
    m_dc.CreateCompatibleDC(nullptr);
    m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    m_bits = static_cast<uint32_t *>(bits);
    m_oldBitmap = ::SelectObject(m_dc.GetSafeHdc(), m_bitmap.GetSafeHandle());
    m_captionFont.CreateFont(-9, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
    m_cellFont.CreateFont(-13, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
    m_oldFont = ::SelectObject(m_dc.GetSafeHdc(), m_cellFont.GetSafeHandle());
    m_dc.FillSolidRect(0, 0, width, height, kPaper);
}

ContactSheet::~ContactSheet() {
    ::SelectObject(m_dc.GetSafeHdc(), m_oldFont);
    ::SelectObject(m_dc.GetSafeHdc(), m_oldBitmap);
}

void ContactSheet::Break() {
    m_at = CPoint(kGapPx, m_rowBottom + kGapPx);
}

void ContactSheet::Add(const char *caption, CSize size, const std::function<void(CDC *, CRect)> &paint) {
    HDC hdc = m_dc.GetSafeHdc();
    ::SelectObject(hdc, m_captionFont.GetSafeHandle());
    SIZE extent{};
    ::GetTextExtentPoint32A(hdc, caption, static_cast<int>(std::strlen(caption)), &extent);
    const int width = std::max<int>(size.cx, extent.cx);
    if (m_at.x + width + kGapPx > m_size.cx)
        Break();
    ::SetTextAlign(hdc, TA_LEFT | TA_TOP);
    ::SetTextColor(hdc, kCaptionInk);
    ::SetBkMode(hdc, TRANSPARENT);
    ::TextOutA(hdc, m_at.x, m_at.y, caption, static_cast<int>(std::strlen(caption)));
    ::SetBkMode(hdc, OPAQUE);
    ::SelectObject(hdc, m_cellFont.GetSafeHandle());
    const CRect area(CPoint(m_at.x, m_at.y + kCaptionPx), size);
    paint(&m_dc, area);
    m_at.x += width + kGapPx;
    m_rowBottom = std::max<int>(m_rowBottom, area.bottom);
    EXPECT_LE(m_rowBottom + kGapPx, m_size.cy) << "the sheet is too low for " << caption;
}

PixelMap ContactSheet::Pixels() {
    ::GdiFlush();
    PixelMap pixels(m_size.cx, std::min<int>(m_rowBottom + kGapPx, m_size.cy));
    for (size_t i = 0; i < pixels.pixels.size(); ++i)
        pixels.pixels[i] = m_bits[i] & 0xFFFFFF;
    return pixels;
}

void ExpectPicture(const std::string &name, const PixelMap &actual) {
    const std::string stored = std::string(ORVANE_PICTURES) + "/" + name + ".bmp";
    if (std::getenv("ORVANE_RENEW_PICTURES") != nullptr) {
        EXPECT_TRUE(SavePicture(stored, actual)) << "cannot write " << stored;
        return;
    }
    const PictureDifference difference = ComparePictures(actual, LoadPicture(stored));
    if (difference.same)
        return;
    const std::string base = std::string(ORVANE_PICTURES_OUT) + "/" + name;
    SavePicture(base + ".actual.bmp", actual);
    SavePicture(base + ".difference.bmp", difference.shown);
    ADD_FAILURE() << "picture " << name << ": " << difference.text << "\n  expected " << stored << "\n  actual   "
                  << base << ".actual.bmp\n  differs  " << base << ".difference.bmp";
}

PinnedColours::PinnedColours() {
    static_assert(std::size(kColours) == kCount);
    for (int i = 0; i < kCount; ++i)
        m_before[i] = ::GetSysColor(kColourIndices[i]);
    ::SetSysColors(kCount, kColourIndices, kColours);
}

PinnedColours::~PinnedColours() {
    ::SetSysColors(kCount, kColourIndices, m_before);
}
