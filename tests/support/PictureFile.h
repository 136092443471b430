// Pictures as values: kept in files that any viewer shows, and compared. Window-free.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Pixels are 0x00RRGGBB, rows from the top.
struct PixelMap {
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;

    PixelMap() = default;
    PixelMap(int w, int h, uint32_t colour = 0) : width(w), height(h), pixels(size_t(w) * h, colour) {}
    uint32_t &At(int x, int y) { return pixels[size_t(y) * width + x]; }
    uint32_t At(int x, int y) const { return pixels[size_t(y) * width + x]; }
};

// When two pictures count as the same. With fonts and colours pinned every run gives the same pixels; what is
// allowed is what another build of the system's drawing may do: round a colour to a coarser display, and put a
// pixel at the end of a slanted line or of a glyph's curve elsewhere. Four pixels are fewer than the least thing
// that is drawn, the dots of an ellipsis button.
constexpr int kLevelTolerance = 8; // of 255, in each channel
constexpr int kPixelTolerance = 4; // pixels beyond that

struct PictureDifference {
    bool same = true;
    int pixels = 0;   // that differ by more than the level tolerance
    std::string text; // empty when the same, else what differs and where
    PixelMap shown;   // the expected picture, faded, with the differing pixels in red
};

PictureDifference ComparePictures(const PixelMap &actual, const PixelMap &expected);

// Run-length coded bitmaps of up to 256 colours. Saving answers false for more colours or an unwritable file.
// Loading answers an empty picture for what is no such file.
bool SavePicture(const std::string &path, const PixelMap &picture);
PixelMap LoadPicture(const std::string &path);
