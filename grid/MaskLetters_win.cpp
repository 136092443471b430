#include "grid/MaskLetters.h"

#include <windows.h>

bool UGIsLetter(char character) {
    return ::IsCharAlphaA(character) != FALSE;
}

bool UGIsLetterOrDigit(char character) {
    return ::IsCharAlphaNumericA(character) != FALSE;
}
