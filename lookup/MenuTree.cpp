#include "lookup/MenuTree.h"

#include "lookup/MenuPaths.h"

#include <afxwin.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <vector>

IMPLEMENT_DYNAMIC(CMenuTree, CObject)

// What belongs to the tree as a whole.
struct CMenuStore {
    CTreePool pool;
    CArray<CMenuList *, CMenuList *> m_SharedLists;
};

namespace {

unsigned Length(LPCSTR text) {
    return static_cast<unsigned>(std::strlen(text));
}

} // namespace

CMenuTree::CMenuTree() : m_bOwnsStore(true) {}

CMenuTree::~CMenuTree() {
    if (m_bOwnsStore)
        delete m_pStore;
}

CMenuStore &CMenuTree::Store() {
    if (m_pStore == nullptr)
        m_pStore = new CMenuStore;
    return *m_pStore;
}

CMenuTree *CMenuTree::GetChild(int index) const {
    return index >= 0 && index < GetChildCount() ? m_pChildren->GetAt(index) : nullptr;
}

CMenuTree *CMenuTree::GetNextChild() {
    if (m_nIterator < GetChildCount())
        ++m_nIterator;
    return GetChild(m_nIterator);
}

int CMenuTree::FindChild(LPCSTR code, bool bCaseSensitive) const {
    return m_pChildren != nullptr ? m_pChildren->FindCode(code, bCaseSensitive) : -1;
}

void CMenuTree::TakeWidths(const CMenuWidths &widths) {
    m_nMaxCode = std::max(m_nMaxCode, widths.code);
    m_nMaxDescription = std::max(m_nMaxDescription, widths.description);
    m_nMaxTotal = std::max(m_nMaxTotal, widths.total);
}

CMenuTree *CMenuTree::NewNode(LPCSTR code, LPCSTR description, int order) {
    auto *node = new (Store().pool.Allocate(sizeof(CMenuTree))) CMenuTree(m_pStore);
    node->SetCode(code, Length(code));
    node->SetDescription(description, Length(description));
    node->m_nSourceOrder = order;
    return node;
}

CMenuList *CMenuTree::NewList(int room) {
    CTreePool &pool = Store().pool;
    auto *list = new (pool.Allocate(sizeof(CMenuList))) CMenuList;
    list->Reserve(pool, room);
    return list;
}

CMenuTree *CMenuTree::AppendNew(CMenuList *list) {
    auto *node = new (Store().pool.Allocate(sizeof(CMenuTree))) CMenuTree(m_pStore);
    list->InsertAt(m_pStore->pool, list->GetSize(), node);
    return node;
}

void CMenuTree::SetCode(LPCSTR text, unsigned bytes) {
    m_sCode = CPoolText(Store().pool, text, bytes);
}

void CMenuTree::SetDescription(LPCSTR text, unsigned bytes) {
    m_sDescription = CPoolText(Store().pool, text, bytes);
}

CMenuTree *CMenuTree::InsertChild(LPCSTR code, LPCSTR description, int order, bool bCaseSensitive) {
    if (m_nSharedIndex >= 0)
        return nullptr;
    try {
        return LinkChild(code, description, order, bCaseSensitive);
    } catch (CMemoryException *e) {
        e->Delete();
        AfxMessageBox("CMenuTree::InsertChild: Out of memory!", MB_ICONHAND, 0);
        return nullptr;
    }
}

CMenuTree *CMenuTree::LinkChild(LPCSTR code, LPCSTR description, int order, bool bCaseSensitive) {
    CMenuTree *node = NewNode(code, description, order);
    if (m_pChildren == nullptr)
        m_pChildren = NewList();
    const int position = HasChildren() ? FindChild(node->m_sCode, bCaseSensitive) : 0;
    if (position < 0) {
        AfxMessageBox("Internal error!\nCMenuTree::InsertChild: Could not add code.\n\n"
                      "Please report this to Orvane.",
                      MB_ICONHAND, 0);
        return nullptr;
    }
    m_pChildren->InsertAt(m_pStore->pool, position, node);
    node->m_pParent = this;
    CMenuWidths widths;
    widths.Take(*node);
    TakeWidths(widths);
    return node;
}

CMenuTree *CMenuTree::FindPath(const CStringArray &codes, bool bCaseSensitive) {
    CMenuTree *node = this;
    for (int i = 0; i < codes.GetSize() && node != nullptr; ++i) {
        bool found = false;
        const int position =
            node->m_pChildren != nullptr ? node->m_pChildren->FindCode(codes[i], bCaseSensitive, &found) : -1;
        node = found ? node->GetChild(position) : nullptr;
    }
    return node;
}

void CMenuTree::GetFullCode(CString &text, int childIndex) const {
    std::vector<const CMenuTree *> line; // from this node up to the first level
    for (const CMenuTree *node = this; node->m_pParent != nullptr; node = node->m_pParent)
        line.push_back(node);
    for (auto node = line.rbegin(); node != line.rend(); ++node) {
        if (std::strcmp((*node)->m_sCode, "!") != 0)
            text += (*node)->m_sCode.GetString();
    }
    if (const CMenuTree *child = GetChild(childIndex))
        text += child->GetCode();
}

void CMenuTree::CollectPaths(const CStringArrayEx &path, CArray<CStringArrayEx> &paths) const {
    int count = 0;
    for (CMenuPaths counted(this); counted.Next();) {
        if (++count > kMostPaths)
            AfxThrowMemoryException();
    }
    CMenuPaths walk(this, path);
    while (walk.Next())
        paths.Add(walk.GetPath());
}

void CMenuTree::AddToList(CMenuList *list, CMenuTree *node, bool bCaseSensitive) {
    const int position = list->GetSize() > 0 ? list->FindCode(node->m_sCode, bCaseSensitive) : 0;
    list->InsertAt(Store().pool, position, node);
}

int CMenuTree::AddSharedList(CMenuList *list) {
    const int index = Store().m_SharedLists.Add(list);
    CMenuWidths widths;
    for (int i = 0; i < list->GetSize(); ++i)
        widths.Take(*list->GetAt(i));
    list->m_Widths = widths;
    TakeWidths(widths);
    return index;
}

void CMenuTree::SetSharedChildren(CMenuList *list, int index) {
    m_pChildren = list;
    m_nSharedIndex = index;
    TakeWidths(list->m_Widths);
}

int CMenuTree::GetSharedListCount() const {
    return m_pStore != nullptr ? m_pStore->m_SharedLists.GetSize() : 0;
}

CMenuList *CMenuTree::GetSharedList(int index) const {
    return m_pStore->m_SharedLists.GetAt(index);
}

void CMenuTree::Clear(bool bFreeShared) {
    m_pChildren = nullptr;
    m_nIterator = -1;
    m_nMaxCode = m_nMaxDescription = m_nMaxTotal = 0;
    m_nSharedIndex = -1;
    if (!m_bOwnsStore || (!bFreeShared && GetSharedListCount() > 0))
        return;
    delete m_pStore;
    m_pStore = nullptr;
    // They stood in that memory.
    m_sCode = m_sDescription = CPoolText();
    m_bShared = false;
}

size_t CMenuTree::GetHeldBytes() const {
    return m_pStore != nullptr ? m_pStore->pool.GetHeldBytes() : 0;
}
