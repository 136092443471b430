// Codes compared as users read them: double-byte characters count as one, case is folded to lower case.
#pragma once

#include <afx.h>

// Below 0, 0 or above 0, as `left` stands before, at or behind `right`.
int CompareCodes(LPCSTR left, LPCSTR right, bool bCaseSensitive);
// Single bytes; what a trie is ordered by.
int CompareCodeBytes(char left, char right, bool bCaseSensitive);
// Whether the first `length` bytes of both are the same text. Both have that many.
bool IsSameStart(LPCSTR left, LPCSTR right, int length, bool bCaseSensitive);
