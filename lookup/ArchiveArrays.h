// The arrays of the persisted files: a count, then the elements. Reading throws CArchiveException endOfFile for a
// count that what is left of the file cannot hold, before anything is allocated for it; the array is then as it was.
#pragma once

#include "lookup/Archive.h"

ORVANE_API void SerializeArray(CArchive &ar, CStringArray &strings);
// Each element four bytes.
ORVANE_API void SerializeArray(CArchive &ar, CArray<int, int> &numbers);
