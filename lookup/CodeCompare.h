// Codes compared as users read them: double-byte characters count as one, case is folded to lower case.
#pragma once

#include <afx.h>

// Below 0, 0 or above 0, as `left` stands before, at or behind `right`.
int CompareCodes(LPCSTR left, LPCSTR right, bool bCaseSensitive);
// What single bytes are ordered by: a rank for each of the 256.
const unsigned char *CodeByteRanks(bool bCaseSensitive);
// Whether the first `length` bytes of both are the same text. Both have that many.
bool IsSameStart(LPCSTR left, LPCSTR right, int length, bool bCaseSensitive);
