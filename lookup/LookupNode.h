// CLookupNode: a node of the validation trie, one character of codes.
//
// A table of a million codes has several million nodes, most of them with one child and without a code list. So a node
// is 16 bytes, and its m_Children and m_CodeList stand together in one piece of the tree's pool, which has a place for
// each only where there is one: first the code list, then, from five children on, their characters side by side for the
// search, then the children themselves. Nodes move when a sibling is added.
#pragma once

#include "lookup/PoolCodes.h"
#include "lookup/TreePool.h"

#include <afx.h>

class ORVANE_API CLookupNode {
public:
    unsigned GetChildCount() const { return m_nChildren; }
    CLookupNode *GetChild(unsigned index) { return Nodes() + index; }
    const CLookupNode *GetChild(unsigned index) const { return Nodes() + index; }
    // The node down the characters, null if there is none; this node for none.
    const CLookupNode *FindPath(const char *text, int length, bool bCaseSensitive) const;

    // Finds the child, or inserts it in sorted position; `ranks` orders characters (CodeByteRanks). Throws
    // CMemoryException, the node then being as it was; so do the other operations with a pool.
    CLookupNode *AddChild(CTreePool &pool, char character, const unsigned char *ranks);
    // Gives a node without children that many, whose characters then have to be set in sorted order.
    void MakeChildren(CTreePool &pool, unsigned count);
    void SetChildCharacter(unsigned index, char character);

    // The level codes of the path.
    CPoolCodes GetCodeList() const;
    void SetCodeList(CTreePool &pool, CPoolCodes codes);

    bool m_bSinglePath = true;  // all codes through this node have the same level codes
    bool m_bEndOfCode = false;  // a complete code ends here
    signed char m_cChar = 0;

protected:
    void Forget(); // as a new node; the pool keeps the memory

private:
    // Where the parts of the body stand, in bytes.
    struct Shape {
        size_t characters, nodes, end;
    };
    static unsigned CapacityFor(unsigned children);
    static Shape ShapeFor(bool hasList, unsigned children);

    CLookupNode *Nodes() const { return reinterpret_cast<CLookupNode *>(m_pBody + Now().nodes); }
    char *Characters() const { return m_pBody + Now().characters; }
    Shape Now() const { return ShapeFor(m_bHasList, m_nChildren); }
    const CLookupNode *FindChild(char character, const unsigned char *ranks, bool exact) const;
    const CLookupNode *FindByte(char character, const char *characters, const CLookupNode *nodes) const;
    unsigned FindPosition(unsigned char wanted, const unsigned char *ranks, const Shape &shape) const;
    void Reshape(CTreePool &pool, bool hasList, unsigned children, unsigned gap);

    bool m_bHasList = false; // the body has a place for a code list
    unsigned m_nChildren = 0;
    char *m_pBody = nullptr;
};
