#include "PictureFile.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>

namespace {

constexpr int kHeaderBytes = 14 + 40;
constexpr int kColours = 256;
constexpr uint32_t kRunLength8 = 1;
constexpr int kLongestRun = 255;

using Bytes = std::vector<uint8_t>;

void Put(Bytes &out, uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i)
        out.push_back(static_cast<uint8_t>(value >> (8 * i)));
}

uint32_t Get(const Bytes &in, size_t at, int bytes) {
    uint32_t value = 0;
    for (int i = 0; i < bytes; ++i)
        value |= uint32_t(in[at + i]) << (8 * i);
    return value;
}

int Channel(uint32_t colour, int which) {
    return static_cast<int>(colour >> (8 * which) & 0xFF);
}

bool Differs(uint32_t a, uint32_t b) {
    for (int which = 0; which < 3; ++which) {
        if (std::abs(Channel(a, which) - Channel(b, which)) > kLevelTolerance)
            return true;
    }
    return false;
}

uint32_t Faded(uint32_t colour) {
    uint32_t result = 0;
    for (int which = 0; which < 3; ++which)
        result |= uint32_t(192 + Channel(colour, which) / 4) << (8 * which);
    return result;
}

// Rows go from the bottom up; each ends with the mark 0 0, the last with 0 1.
Bytes Encode(const PixelMap &picture, const std::map<uint32_t, int> &indices) {
    Bytes out;
    for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width;) {
            const uint32_t colour = picture.At(x, y);
            int run = 1;
            while (run < kLongestRun && x + run < picture.width && picture.At(x + run, y) == colour)
                ++run;
            out.push_back(static_cast<uint8_t>(run));
            out.push_back(static_cast<uint8_t>(indices.at(colour)));
            x += run;
        }
        Put(out, y > 0 ? 0x0000 : 0x0100, 2);
    }
    return out;
}

} // namespace

PictureDifference ComparePictures(const PixelMap &actual, const PixelMap &expected) {
    PictureDifference result;
    if (actual.width != expected.width || actual.height != expected.height) {
        result.same = false;
        result.text = "size " + std::to_string(actual.width) + "x" + std::to_string(actual.height) +
                      " instead of " + std::to_string(expected.width) + "x" + std::to_string(expected.height);
        return result;
    }
    result.shown = PixelMap(actual.width, actual.height);
    int left = actual.width, top = actual.height, right = 0, bottom = 0;
    for (int y = 0; y < actual.height; ++y) {
        for (int x = 0; x < actual.width; ++x) {
            const bool differs = Differs(actual.At(x, y), expected.At(x, y));
            result.shown.At(x, y) = differs ? 0xFF0000 : Faded(expected.At(x, y));
            if (!differs)
                continue;
            ++result.pixels;
            left = std::min(left, x);
            top = std::min(top, y);
            right = std::max(right, x + 1);
            bottom = std::max(bottom, y + 1);
        }
    }
    result.same = result.pixels <= kPixelTolerance;
    if (!result.same)
        result.text = std::to_string(result.pixels) + " pixels differ, within (" + std::to_string(left) + "," +
                      std::to_string(top) + ")-(" + std::to_string(right) + "," + std::to_string(bottom) + ")";
    return result;
}

bool SavePicture(const std::string &path, const PixelMap &picture) {
    std::map<uint32_t, int> indices;
    for (uint32_t colour : picture.pixels)
        indices.emplace(colour, 0);
    if (indices.size() > kColours)
        return false;
    Bytes palette;
    int next = 0;
    for (auto &[colour, index] : indices) {
        index = next++;
        Put(palette, colour, 4);
    }
    palette.resize(kColours * 4);
    const Bytes data = Encode(picture, indices);
    Bytes out = {'B', 'M'};
    const auto start = static_cast<uint32_t>(kHeaderBytes + palette.size());
    Put(out, start + static_cast<uint32_t>(data.size()), 4);
    Put(out, 0, 4);
    Put(out, start, 4);
    Put(out, 40, 4);
    Put(out, static_cast<uint32_t>(picture.width), 4);
    Put(out, static_cast<uint32_t>(picture.height), 4);
    Put(out, 1, 2); // planes
    Put(out, 8, 2); // bits a pixel
    Put(out, kRunLength8, 4);
    Put(out, static_cast<uint32_t>(data.size()), 4);
    for (int unused = 0; unused < 4; ++unused)
        Put(out, 0, 4);
    out.insert(out.end(), palette.begin(), palette.end());
    out.insert(out.end(), data.begin(), data.end());
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char *>(out.data()), static_cast<std::streamsize>(out.size()));
    return file.good();
}

PixelMap LoadPicture(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    const Bytes in{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    constexpr size_t kStart = kHeaderBytes + kColours * 4;
    if (in.size() < kStart || in[0] != 'B' || in[1] != 'M' || Get(in, 28, 2) != 8 ||
        Get(in, 30, 4) != kRunLength8)
        return {};
    PixelMap picture(static_cast<int>(Get(in, 18, 4)), static_cast<int>(Get(in, 22, 4)));
    int x = 0, y = picture.height - 1;
    for (size_t at = kStart; at + 1 < in.size() && y >= 0; at += 2) {
        if (in[at] == 0) { // end of a row
            x = 0;
            --y;
            continue;
        }
        const uint32_t colour = Get(in, kHeaderBytes + in[at + 1] * 4u, 3);
        for (int run = in[at]; run > 0 && x < picture.width; --run)
            picture.At(x++, y) = colour;
    }
    return picture;
}
