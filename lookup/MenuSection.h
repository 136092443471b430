// The menu tree's part of a lookup table file.
#pragma once

#include "lookup/Archive.h"
#include "lookup/MenuTree.h"

// Both throw CArchiveException, CFileException and CMemoryException.
void WriteMenuSection(CArchive &ar, const CMenuTree &root);
// The tree is empty before. It is left in an undefined but harmless state by an exception: badSchema for an unknown
// version, badIndex for lists that are not there or that contain themselves.
void ReadMenuSection(CArchive &ar, CMenuTree &root);
