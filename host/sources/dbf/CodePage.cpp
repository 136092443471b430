#include "CodePage.h"

#include "CodePageTables.h"

#include <algorithm>
#include <iterator>

namespace dbf {
namespace {

struct Driver {
    std::uint8_t byte;
    short page;
};

// Pages of more than one byte a character are named too, so that they can be told from unknown bytes.
constexpr Driver kDrivers[] = {
    {0x01, 437},  {0x02, 850},  {0x03, 1252}, {0x08, 865},  {0x09, 437},  {0x0A, 850}, {0x0B, 437},
    {0x0D, 437},  {0x0E, 850},  {0x0F, 437},  {0x10, 850},  {0x11, 437},  {0x12, 850}, {0x13, 932},
    {0x14, 850},  {0x15, 437},  {0x16, 850},  {0x17, 865},  {0x18, 437},  {0x19, 437}, {0x1A, 850},
    {0x1B, 437},  {0x1C, 863},  {0x1D, 850},  {0x1F, 852},  {0x22, 852},  {0x23, 852}, {0x24, 860},
    {0x25, 850},  {0x26, 866},  {0x37, 850},  {0x40, 852},  {0x4D, 936},  {0x4E, 949}, {0x4F, 950},
    {0x50, 874},  {0x57, 1252}, {0x58, 1252}, {0x59, 1252}, {0x64, 852},  {0x65, 866}, {0x66, 865},
    {0x67, 861},  {0x6A, 737},  {0x6B, 857},  {0x6C, 863},  {0x78, 950},  {0x79, 949}, {0x7A, 936},
    {0x7B, 932},  {0x7C, 874},  {0x7D, 1255}, {0x7E, 1256}, {0x86, 737},  {0x87, 852}, {0x88, 857},
    {0xC8, 1250}, {0xC9, 1251}, {0xCA, 1254}, {0xCB, 1253}, {0xCC, 1257},
};

// The byte of `page` that stands for `character`, 0 when there is none.
char byteFor(const CodePage &page, char16_t character) {
    if (character < 0x80) {
        return static_cast<char>(character);
    }
    const auto found = std::find(page.upper.begin(), page.upper.end(), character);
    return found == page.upper.end() ? '\0' : static_cast<char>(0x80 + (found - page.upper.begin()));
}

} // namespace

const CodePage *findCodePage(int number) {
    const auto pages = codePageTables();
    const auto found =
        std::find_if(pages.begin(), pages.end(), [&](const CodePage &page) { return page.number == number; });
    return found == pages.end() ? nullptr : &*found;
}

int codePageOfLanguageDriver(std::uint8_t driver) {
    if (driver == 0) {
        return 0;
    }
    const auto found = std::find_if(std::begin(kDrivers), std::end(kDrivers),
                                    [&](const Driver &entry) { return entry.byte == driver; });
    return found == std::end(kDrivers) ? -1 : found->page;
}

TextTranslator::TextTranslator(const CodePage *file, const CodePage *display)
    : identity_(!file || file == display) {
    display_.fill('?');
    if (identity_ || !display) {
        return;
    }
    for (std::size_t i = 0; i < 128; ++i) {
        const char shown = file->upper[i] ? byteFor(*display, file->upper[i]) : '\0';
        display_[i] = shown ? shown : '?';
        file_[i] = display->upper[i] ? byteFor(*file, display->upper[i]) : '\0';
    }
}

void TextTranslator::toDisplay(std::string &text) const {
    if (identity_) {
        return;
    }
    for (char &c : text) {
        if (const auto byte = static_cast<std::uint8_t>(c); byte >= 0x80) {
            c = display_[byte - 0x80];
        }
    }
}

bool TextTranslator::toFile(std::string &text, std::size_t &position) const {
    if (identity_) {
        return true;
    }
    std::string translated = text;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<std::uint8_t>(text[i]);
        if (byte < 0x80) {
            continue;
        }
        translated[i] = file_[byte - 0x80];
        if (translated[i] == '\0') {
            position = i;
            return false;
        }
    }
    text = std::move(translated);
    return true;
}

} // namespace dbf
