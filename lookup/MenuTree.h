// CMenuTree: a node of the tree from which pick lists are shown, and with its root the tree.
//
// Only a root is constructed; it owns the memory of all its nodes, which are never deleted one by one. The nodes of a
// tree of independent levels have no parent: each level is one list, which all nodes of the level above share.
#pragma once

#include "lookup/MenuList.h"
#include "lookup/PoolText.h"
#include "lookup/StringArrayEx.h"

#include <afx.h>
#include <afxcoll.h>

struct CMenuStore;

class ORVANE_API CMenuTree : public CObject {
    DECLARE_DYNAMIC(CMenuTree)
public:
    CMenuTree();
    ~CMenuTree() override;

    // What is shown and added to the full code: nothing of a code that begins with '!'.
    static LPCSTR DisplayCode(LPCSTR code) { return *code == '!' ? "" : code; }
    LPCSTR GetCode() const { return DisplayCode(m_sCode); }
    int GetCodeLength() const { return m_sCode.GetAt(0) == '!' ? 0 : m_sCode.GetLength(); }

    CMenuTree *GetParent() const { return m_pParent; }
    int GetChildCount() const { return m_pChildren != nullptr ? m_pChildren->GetSize() : 0; }
    bool HasChildren() const { return GetChildCount() > 0; }
    CMenuTree *GetChild(int index) const; // null out of range
    void ResetIterator() { m_nIterator = -1; }
    CMenuTree *GetNextChild(); // null at the end

    // Adds a child in sorted position, in front of an equal code where the search meets one, and keeps the widths.
    // Null when the children are shared, or on a failure, of which the user has been told.
    CMenuTree *InsertChild(LPCSTR code, LPCSTR description, int order, bool bCaseSensitive);
    // The position of the code among the children, or the one at which it would have to be inserted; -1 without
    // children.
    int FindChild(LPCSTR code, bool bCaseSensitive) const;
    // The node down the codes, null when a step fails; this node for no codes.
    CMenuTree *FindPath(const CStringArray &codes, bool bCaseSensitive);
    // Appends the codes from the first level down to this node, and the display code of the child.
    void GetFullCode(CString &text, int childIndex = -1) const;
    // Adds every path from this node down to a leaf: `path`, then the codes as they are, "!" included. Throws
    // CMemoryException, also for more than kMostPaths of them: lists that share their children multiply, so that a small
    // file may tell of more paths than any memory holds. Nothing is added then.
    static constexpr int kMostPaths = 4'000'000;
    void CollectPaths(const CStringArrayEx &path, CArray<CStringArrayEx> &paths) const;

    // Parts of a tree in this tree's memory, none of them linked to a node yet. They throw CMemoryException, and so
    // does AddSharedList.
    CMenuTree *NewNode(LPCSTR code, LPCSTR description, int order);
    CMenuList *NewList(int room = 0);
    // In sorted position, as InsertChild does, and at the end.
    void AddToList(CMenuList *list, CMenuTree *node, bool bCaseSensitive);
    CMenuTree *AppendNew(CMenuList *list);
    void SetCode(LPCSTR text, unsigned bytes);
    void SetDescription(LPCSTR text, unsigned bytes);
    // Root only: the index of the list in the table. The root's widths become those of the longest in all lists.
    int AddSharedList(CMenuList *list);
    // Makes the list the children, and gives the node the list's widths.
    void SetSharedChildren(CMenuList *list, int index);
    int GetSharedListCount() const;
    CMenuList *GetSharedList(int index) const;

    // Leaves the node without children. The table of shared lists goes only when asked to, and with it, at the root,
    // all memory of the tree.
    void Clear(bool bFreeShared);
    size_t GetHeldBytes() const;

    CMenuTree *m_pParent = nullptr; // null at the root and in shared lists
    CPoolText m_sCode;
    CPoolText m_sDescription;
    int m_nIterator = -1; // the position of GetNextChild, -1 before the first
    // Of the children, in bytes. In a tree of shared lists the root's are those of all lists.
    int m_nMaxCode = 0;
    int m_nMaxDescription = 0;
    int m_nMaxTotal = 0;
    int m_nSourceOrder = -1; // among the siblings, as they stood in the source
    int m_nSharedIndex = -1; // of the child list in the root's table; -1 when the children are the node's own
    CMenuList *m_pChildren = nullptr;
    bool m_bShared = false; // part of a tree of independent levels

private:
    explicit CMenuTree(CMenuStore *store) : m_pStore(store) {}
    CMenuStore &Store();
    void TakeWidths(const CMenuWidths &widths);
    CMenuTree *LinkChild(LPCSTR code, LPCSTR description, int order, bool bCaseSensitive);

    bool m_bOwnsStore = false; // the root
    CMenuStore *m_pStore = nullptr;
};
