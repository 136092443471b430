// The validation trie's part of a lookup table file.
#pragma once

#include "lookup/Archive.h"
#include "lookup/LookupTree.h"

// Both throw CArchiveException, CFileException and CMemoryException.
void WriteTrieSection(CArchive &ar, const CLookupTree &tree);
// The tree is empty before, and harmless behind an exception.
void ReadTrieSection(CArchive &ar, CLookupTree &tree);
