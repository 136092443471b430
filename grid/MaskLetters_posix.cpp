// The native build knows ASCII only, as its strings do.
#include "grid/MaskLetters.h"

#include <cctype>

bool UGIsLetter(char character) {
    return std::isalpha(static_cast<unsigned char>(character)) != 0;
}

bool UGIsLetterOrDigit(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0;
}
