// Text of 16-bit units, as a file may hold it, in the machine's single-byte code page.
#pragma once

#include <afx.h>

#include <vector>

CString TextFromWide(const std::vector<WORD> &units);
