// CMenuList: the children of a node of a menu tree, sorted by display code. Its memory is the tree's pool, and it has
// no destructor. It does not own the nodes.
#pragma once

#include "lookup/TreePool.h"

#include <afx.h>

class CMenuTree;

// Bytes.
struct CMenuWidths {
    int code = 0;        // the longest display code
    int description = 0; // the longest description
    int total = 0;       // the longest sum of both, of one node

    void Take(const CMenuTree &node);
    void Take(const CMenuWidths &other);
};

class ORVANE_API CMenuList {
public:
    int GetSize() const { return m_nSize; }
    CMenuTree *GetAt(int index) const { return m_pNodes[index]; }
    // Where the code stands, or would have to stand; -1 in an empty list. Of several equal codes the one that the
    // search meets first.
    int FindCode(LPCSTR code, bool bCaseSensitive, bool *found = nullptr) const;

    // Both throw CMemoryException, the list then being as it was. The index is from 0 to the size.
    void Reserve(CTreePool &pool, int nodes);
    void InsertAt(CTreePool &pool, int index, CMenuTree *node);

    CMenuWidths m_Widths; // of the nodes, in a list of a tree of independent levels

private:
    CMenuTree **m_pNodes = nullptr;
    int m_nSize = 0;
    int m_nCapacity = 0;
};
