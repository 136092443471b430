// CLookupNode: a node of the validation trie, one character of codes.
//
// A table of a million codes has several million nodes, most of them with one child and without a code list, and a
// search waits for memory most of its time. So a node is 8 bytes, and its m_Children and m_CodeList stand together in
// one piece of the tree's pool, which has a place for each only where there is one: first the code list, then, from five
// children on, their characters side by side for the search, then the children themselves. Nodes move when a sibling is
// added.
#pragma once

#include "lookup/PoolCodes.h"
#include "lookup/TreePool.h"

#include <afx.h>

#include <cstdint>

class ORVANE_API CLookupNode {
public:
    unsigned GetChildCount() const { return static_cast<unsigned>(m_nChildren); }
    CLookupNode *GetChild(unsigned index) { return Nodes() + index; }
    const CLookupNode *GetChild(unsigned index) const { return Nodes() + index; }
    // The node down the characters, null if there is none; this node for none.
    const CLookupNode *FindPath(const char *text, int length, bool bCaseSensitive) const;

    // Finds the child, or inserts it in sorted position; `ranks` orders characters (CodeByteRanks). Throws
    // CMemoryException, the node then being as it was; so do the other operations with a pool.
    CLookupNode *AddChild(CTreePool &pool, char character, const unsigned char *ranks);
    // Gives a node without children that many, whose characters then have to be set in sorted order. There is one for
    // each character at most.
    static constexpr unsigned kMostChildren = 256;
    void MakeChildren(CTreePool &pool, unsigned count);
    void SetChildCharacter(unsigned index, char character);

    // The level codes of the path.
    CPoolCodes GetCodeList() const;
    void SetCodeList(CTreePool &pool, CPoolCodes codes);

    ULONGLONG m_bSinglePath : 1 = true;  // all codes through this node have the same level codes
    ULONGLONG m_bEndOfCode : 1 = false;  // a complete code ends here
    LONGLONG m_cChar : 8 = 0;

protected:
    void Forget(); // as a new node; the pool keeps the memory

private:
    // Where the parts of the body stand, in bytes.
    struct Shape {
        size_t characters, nodes, end;
    };
    static unsigned CapacityFor(unsigned children);
    static Shape ShapeFor(bool hasList, unsigned children);

    // The pool aligns to 8 bytes, and programs have the lower half of an address space of 48 bits: 44 are enough.
    static constexpr int kBodyShift = 3, kBodyBits = 44;

    char *Body() const { return reinterpret_cast<char *>(static_cast<std::uintptr_t>(m_nBody << kBodyShift)); }
    const char *&CodeListPlace() const { return *reinterpret_cast<const char **>(Body()); }
    CLookupNode *Nodes() const { return reinterpret_cast<CLookupNode *>(Body() + Now().nodes); }
    char *Characters() const { return Body() + Now().characters; }
    Shape Now() const { return ShapeFor(m_bHasList != 0, GetChildCount()); }
    const CLookupNode *FindChild(char character, const unsigned char *ranks, bool exact) const;
    const CLookupNode *FindByte(char character, const char *characters, const CLookupNode *nodes) const;
    unsigned FindPosition(unsigned char wanted, const unsigned char *ranks, const Shape &shape) const;
    static ULONGLONG Packed(const char *body);
    void Reshape(CTreePool &pool, bool hasList, unsigned children, unsigned gap);

    ULONGLONG m_bHasList : 1 = false; // the body has a place for a code list
    ULONGLONG m_nChildren : 9 = 0;
    ULONGLONG m_nBody : kBodyBits = 0; // its address without the lowest bits
};
