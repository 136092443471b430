// What the input mask asks of the machine's code page: which characters are letters.
#pragma once

bool UGIsLetter(char character);
bool UGIsLetterOrDigit(char character);
