#include "filter/Utf8.h"

#include <algorithm>

namespace filter {
namespace {

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](unsigned char c) { return c < 0x80; });
}

void append(std::string &text, char16_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | character >> 6);
        text += static_cast<char>(0x80 | (character & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | character >> 12);
        text += static_cast<char>(0x80 | (character >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (character & 0x3F));
    }
}

bool continues(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// The character that begins at `place`, which moves behind it; 0 for what no code page here can hold.
char32_t take(std::string_view text, std::size_t &place) {
    const auto first = static_cast<unsigned char>(text[place++]);
    if (first < 0x80) {
        return first;
    }
    char32_t character = first >= 0xF0 ? first & 7 : first >= 0xE0 ? first & 15 : first & 31;
    while (place < text.size() && continues(text[place])) {
        character = character << 6 | (static_cast<unsigned char>(text[place++]) & 0x3F);
    }
    return character < 0x80 ? 0 : character;
}

} // namespace

std::string toUtf8(std::string_view text, const dbf::CodePage *page) {
    if (isAscii(text)) {
        return std::string(text);
    }
    std::string made;
    made.reserve(text.size() + 8);
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const char16_t character = byte < 0x80 ? byte : page ? page->upper[byte - 0x80] : u'\0';
        append(made, character ? character : u'?');
    }
    return made;
}

std::string fromUtf8(std::string_view text, const dbf::CodePage *page) {
    std::string made;
    for (std::size_t place = 0; place < text.size();) {
        const char32_t character = take(text, place);
        if (character > 0 && character < 0x80) {
            made += static_cast<char>(character);
            continue;
        }
        const char16_t *end = page ? page->upper.data() + page->upper.size() : nullptr;
        const char16_t *found = page ? std::find(page->upper.data(), end, character ? character : 0xFFFD) : nullptr;
        made += found != end ? static_cast<char>(0x80 + (found - page->upper.data())) : '?';
    }
    return made;
}

void cutUtf8(std::string &text, std::size_t most) {
    if (text.size() > most) {
        while (most > 0 && continues(text[most])) {
            --most;
        }
        text.resize(most);
    }
}

std::size_t charactersBefore(std::string_view utf8, std::size_t byte) {
    const std::string_view before = utf8.substr(0, byte);
    return before.size() - static_cast<std::size_t>(std::count_if(before.begin(), before.end(), continues));
}

} // namespace filter
