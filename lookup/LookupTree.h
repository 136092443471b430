// CLookupTree: the trie against which typed text is validated; the root of it, with the memory of all its nodes.
#pragma once

#include "lookup/LookupNode.h"

#include <afx.h>
#include <afxcoll.h>

class ORVANE_API CLookupTree : public CObject, public CLookupNode {
    DECLARE_DYNAMIC(CLookupTree)
public:
    CLookupTree();
    ~CLookupTree() override;

    // Adds the code that the level codes make, from a position in the code of one level on. A level "!" may be left
    // out in typing, and is a character as well. Throws CMemoryException; codes added before are then whole.
    void AddCode(bool bCaseSensitive, const CStringArray &levelCodes, int firstLevel, int position);

    // The code is the start of a complete one. What was found last is kept, so typing on costs a step a character.
    // Both are true for the empty code, and throw CMemoryException.
    bool IsPartialCode(LPCSTR code, bool bCaseSensitive);
    bool IsCompleteCode(LPCSTR code, bool bCaseSensitive);
    // The level codes of a code that ends a level, as long as all codes through it have the same; else false, and no
    // codes. Running out of memory is told to the user and is false.
    bool GetCodeList(LPCSTR code, bool bCaseSensitive, CStringArray &codes) const;

    void Clear();
    size_t GetHeldBytes() const { return m_Pool.GetHeldBytes() + m_TextPool.GetHeldBytes(); }
    CTreePool &GetPool() { return m_Pool; }
    CTreePool &GetTextPool() { return m_TextPool; } // of the level codes

    // The last successful search.
    const CLookupNode *m_pLastNode = nullptr;
    CString m_sLastCode;

private:
    // A place in a code: at the first character of a level's code, or a later one.
    struct Place {
        CLookupNode *node;
        int level, position;
    };
    bool EndLevel(CLookupNode *node, bool bCaseSensitive, const CStringArray &levelCodes, int level);
    const CLookupNode *Search(LPCSTR code, bool bCaseSensitive);
    void ForgetSearch();

    CTreePool m_Pool;
    // Apart from the nodes: a search wants many of these in few lines of the processor's cache.
    CTreePool m_TextPool;
};
