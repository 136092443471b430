// ScramblePassword: passwords are stored and compared in this form only. Different ones may come out alike, and a zero
// byte ends the form early. It keeps honest users from the administrator's options; it is no protection against the user
// himself, who can read and change the stored form.
#pragma once

#include <afx.h>

// Scrambles in place, to at most 8 characters; what is longer than 8 does not count. False, and nothing
// changed, for an empty text. Throws CMemoryException.
ORVANE_API bool ScramblePassword(CString &text);
