#include "stringcase.h"

#include <algorithm>
#include <cctype>
#include <strings.h>

int StringCompareNoCase(LPCSTR left, LPCSTR right) {
    return strcasecmp(left, right);
}

void StringMakeUpper(char *text, int length) {
    std::transform(text, text + length, text, [](unsigned char c) { return char(std::toupper(c)); });
}

void StringMakeLower(char *text, int length) {
    std::transform(text, text + length, text, [](unsigned char c) { return char(std::tolower(c)); });
}

void StringMakeReverse(char *text, int length) {
    std::reverse(text, text + length);
}

bool StringIsSpace(char character) {
    return std::isspace(static_cast<unsigned char>(character)) != 0;
}

int StringResource(UINT, char *, int) {
    return -1;
}

bool StringIsResourceId(LPCSTR) {
    return false;
}
