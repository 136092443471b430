#include "lookup/CodeCompare.h"

#include "lookup/CodePage.h"

#include <array>
#include <cstring>
#include <numeric>

namespace {

unsigned char Byte(char character) {
    return static_cast<unsigned char>(character);
}

// The value of the character at `text`, which is moved past it.
unsigned NextCharacter(const CodePageTables &page, LPCSTR &text, bool bCaseSensitive) {
    const unsigned char first = Byte(*text++);
    if (page.isLead[first] && *text != '\0')
        return static_cast<unsigned>(first) << 8 | Byte(*text++);
    return bCaseSensitive ? first : page.folded[first];
}

} // namespace

int CompareCodes(LPCSTR left, LPCSTR right, bool bCaseSensitive) {
    const CodePageTables &page = CodePage();
    if (bCaseSensitive && !page.hasLead)
        return std::strcmp(left, right);
    while (*left != '\0' && *right != '\0') {
        const unsigned a = NextCharacter(page, left, bCaseSensitive);
        const unsigned b = NextCharacter(page, right, bCaseSensitive);
        if (a != b)
            return a < b ? -1 : 1;
    }
    return (*left != '\0') - (*right != '\0');
}

const unsigned char *CodeByteRanks(bool bCaseSensitive) {
    static const auto asTheyAre = [] {
        std::array<unsigned char, 256> ranks;
        std::iota(ranks.begin(), ranks.end(), static_cast<unsigned char>(0));
        return ranks;
    }();
    return bCaseSensitive ? asTheyAre.data() : CodePage().folded;
}

bool IsSameStart(LPCSTR left, LPCSTR right, int length, bool bCaseSensitive) {
    if (std::memcmp(left, right, static_cast<size_t>(length)) == 0)
        return true;
    if (bCaseSensitive)
        return false;
    const CodePageTables &page = CodePage();
    for (int i = 0; i < length; ++i) {
        const unsigned char a = Byte(left[i]), b = Byte(right[i]);
        if (page.folded[a] != page.folded[b])
            return false;
        // The second byte of a character has no case.
        if (page.isLead[a] && i + 1 < length && left[i + 1] != right[i + 1])
            return false;
        i += page.isLead[a];
    }
    return true;
}
