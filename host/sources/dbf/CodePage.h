// Single-byte code pages and the way between two of them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace dbf {

// The characters of the bytes 0x80 to 0xFF; 0 marks a byte that stands for no character. The bytes below 0x80
// are ASCII in every page here.
struct CodePage {
    int number;
    std::array<char16_t, 128> upper;
};

// Null when the page is not among those known.
const CodePage *findCodePage(int number);

// The code page number that a language driver byte (offset 29 of the header) stands for: 0 for "none stated",
// -1 for a byte of unknown meaning. The number may be one that findCodePage does not know.
int codePageOfLanguageDriver(std::uint8_t driver);

// Translates between the page of a file and the page of the display. Where the file's page is unknown (null)
// or both are the same, bytes pass through as they are. Where only that of the display is unknown, as it is
// when the system's characters take several bytes, nothing but ASCII gets through.
class TextTranslator {
public:
    TextTranslator() = default;
    TextTranslator(const CodePage *file, const CodePage *display);

    bool isIdentity() const { return identity_; }
    // A character that the display page lacks becomes '?'.
    void toDisplay(std::string &text) const;
    // False when the file's page lacks a character; `position` is then its index and `text` is unchanged.
    bool toFile(std::string &text, std::size_t &position) const;

private:
    bool identity_ = true;
    std::array<char, 128> display_{}; // by file byte - 0x80
    std::array<char, 128> file_{};    // by display byte - 0x80; 0 where there is no place
};

} // namespace dbf
