#include "grid/UGEditMask.h"

#include "grid/MaskLetters.h"

namespace {

constexpr const char *kMaskCharacters = "09#L?Aa&C";
constexpr char kMark = 8; // stands in each string where the other one holds the character

bool IsMaskCharacter(char c) {
    return std::string(kMaskCharacters).find(c) != std::string::npos;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsPrintable(char c) {
    constexpr unsigned char kDelete = 127;
    const unsigned char value = static_cast<unsigned char>(c);
    return value >= ' ' && value != kDelete;
}

bool Matches(char kind, char c) {
    switch (kind) {
    case '#': return IsDigit(c) || c == ' ' || c == 'k' || c == 'm';
    case '&':
    case 'C': return IsPrintable(c);
    case '0': return IsDigit(c);
    case '9': return IsDigit(c) || c == ' ';
    case '?': return UGIsLetter(c) || c == ' ';
    case 'A': return UGIsLetterOrDigit(c);
    case 'L': return UGIsLetter(c);
    case 'a': return UGIsLetterOrDigit(c) || c == ' ';
    default: return true;
    }
}

} // namespace

void CUGEditMask::Set(const char *mask) {
    m_kinds.clear();
    m_literals.clear();
    for (const char *c = mask; c != nullptr && *c != '\0'; ++c) {
        const bool escaped = *c == '\\' && c[1] != '\0';
        if (escaped)
            ++c;
        const bool input = !escaped && IsMaskCharacter(*c);
        m_kinds += input ? *c : kMark;
        m_literals += input ? kMark : *c;
    }
}

char CUGEditMask::LiteralAt(int position) const {
    if (position < 0 || position >= Length() || m_literals[position] == kMark)
        return 0;
    return m_literals[position];
}

CUGEditMask::Place CUGEditMask::PlaceOf(const std::string &text, int caret) const {
    Place place{caret, 0, {}};
    for (; const char literal = LiteralAt(place.position); ++place.position) {
        const bool stands = place.missing.empty() && static_cast<size_t>(place.position) < text.size() &&
                            text[place.position] == literal;
        if (stands)
            ++place.passed;
        else
            place.missing += literal;
    }
    return place;
}

bool CUGEditMask::Accepts(int position, char character) const {
    return position >= 0 && position < Length() &&
           Matches(m_kinds[position], character);
}

std::string CUGEditMask::Reformat(const std::string &text) const {
    std::string result;
    size_t next = 0;
    for (int position = 0; position < Length() && next < text.size();) {
        if (const char literal = LiteralAt(position)) {
            result += literal;
            // The text's own copy of the literal is not asked to match the position behind it.
            if (text[next] == literal)
                ++next;
            ++position;
        } else if (Accepts(position, text[next])) {
            result += text[next++];
            ++position;
        } else {
            ++next;
        }
    }
    return result;
}
