// ScramblePassword: passwords are stored and compared in this form only. Different ones may come out alike.
#pragma once

#include <afx.h>

// Scrambles in place, to at most 8 characters; what is longer than 8 does not count. False, and nothing
// changed, for an empty text. Throws CMemoryException.
ORVANE_API bool ScramblePassword(CString &text);
