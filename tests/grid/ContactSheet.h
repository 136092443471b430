// A contact sheet: captioned samples painted in a bitmap, and the comparison of the whole with a stored picture.
#pragma once

#include "PictureFile.h"

#include <afxwin.h>

#include <functional>
#include <string>

class ContactSheet {
public:
    // Room for samples in rows of this width; the height grows with them up to the bitmap's.
    ContactSheet(int width, int height);
    ~ContactSheet();
    ContactSheet(const ContactSheet &) = delete;
    ContactSheet &operator=(const ContactSheet &) = delete;

    // Places a sample of this size behind the last one, with its caption above, and paints it.
    void Add(const char *caption, CSize size, const std::function<void(CDC *, CRect)> &paint);
    // Begins a new row.
    void Break();
    // The part of the bitmap that is used.
    PixelMap Pixels();

private:
    CDC m_dc;
    CBitmap m_bitmap;
    CFont m_captionFont, m_cellFont;
    HGDIOBJ m_oldBitmap, m_oldFont;
    uint32_t *m_bits = nullptr;
    CSize m_size;
    CPoint m_at;
    int m_rowBottom = 0;
};

// Fails the test when the sheet is not the picture of this name in tests/grid/pictures. The picture as it is and
// the difference are then in the build tree. With ORVANE_RENEW_PICTURES set the stored picture is written instead.
void ExpectPicture(const std::string &name, const PixelMap &actual);

// The system's colours that the pictures show, at fixed values for the length of a block.
class PinnedColours {
public:
    PinnedColours();
    ~PinnedColours();
    PinnedColours(const PinnedColours &) = delete;
    PinnedColours &operator=(const PinnedColours &) = delete;

private:
    COLORREF m_before[16];
};
