#include "stringcase.h"

#include <algorithm>
#include <cctype>
#include <windows.h>

// Declared here and defined by the application part of the framework, which knows the current module.
HINSTANCE AfxFindStringModule(UINT id);

namespace {

// One character of text: its value without case, and the pointer moved past it.
unsigned NextFolded(const char *&text) {
    const unsigned char lead = static_cast<unsigned char>(*text++);
    if (IsDBCSLeadByte(lead) && *text)
        return lead << 8 | static_cast<unsigned char>(*text++);
    char folded[1] = {static_cast<char>(lead)};
    if (lead < 0x80)
        return static_cast<unsigned char>(std::tolower(lead));
    CharLowerBuffA(folded, 1);
    return static_cast<unsigned char>(folded[0]);
}

} // namespace

int StringCompareNoCase(LPCSTR left, LPCSTR right) {
    for (;;) {
        if (!*left || !*right)
            return !*left ? (!*right ? 0 : -1) : 1;
        const unsigned a = NextFolded(left);
        const unsigned b = NextFolded(right);
        if (a != b)
            return a < b ? -1 : 1;
    }
}

void StringMakeUpper(char *text, int length) {
    CharUpperBuffA(text, static_cast<DWORD>(length));
}

void StringMakeLower(char *text, int length) {
    CharLowerBuffA(text, static_cast<DWORD>(length));
}

void StringMakeReverse(char *text, int length) {
    std::reverse(text, text + length);
    // A double-byte character now stands trail byte first: put its bytes back in order.
    for (int i = length - 1; i > 0; i--)
        if (IsDBCSLeadByte(static_cast<BYTE>(text[i]))) {
            std::swap(text[i], text[i - 1]);
            i--;
        }
}

bool StringIsSpace(char character) {
    return std::isspace(static_cast<unsigned char>(character)) != 0;
}

int StringResource(UINT id, char *buffer, int capacity) {
    const HINSTANCE module = AfxFindStringModule(id);
    const int length = LoadStringA(module, id, buffer, capacity);
    return length > 0 ? length : -1;
}

bool StringIsResourceId(LPCSTR text) {
    return text && IS_INTRESOURCE(text);
}
