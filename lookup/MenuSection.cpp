#include "lookup/MenuSection.h"

#include "lookup/FileClaims.h"

#include <vector>

namespace {

constexpr int kMenuVersion = 2;
constexpr int kSharedSince = 2;         // the version that tells whether lists are shared
constexpr unsigned kLeastNodeBytes = 22; // two empty strings and five numbers, in either form
constexpr unsigned kListSizeBytes = 4;

[[noreturn]] void ThrowBadIndex(CArchive &ar) {
    AfxThrowArchiveException(CArchiveException::badIndex, ar.GetFile()->GetFilePath());
}

void WriteText(CArchive &ar, const CPoolText &text) {
    ar.WriteText(text, static_cast<unsigned>(text.GetLength()));
}

void WriteNode(CArchive &ar, const CMenuTree &node) {
    WriteText(ar, node.m_sCode);
    WriteText(ar, node.m_sDescription);
    ar << node.m_nMaxCode << node.m_nMaxDescription << node.m_nMaxTotal << node.m_nSourceOrder;
}

void ReadNode(CArchive &ar, CMenuTree &node) {
    unsigned length;
    LPCSTR text = ar.ReadText(&length);
    node.SetCode(text, length);
    text = ar.ReadText(&length);
    node.SetDescription(text, length);
    ar >> node.m_nMaxCode >> node.m_nMaxDescription >> node.m_nMaxTotal >> node.m_nSourceOrder;
}

void WritePlain(CArchive &ar, const CMenuTree &root) {
    struct Step {
        const CMenuTree *node;
        int next;
    };
    std::vector<Step> steps;
    const auto enter = [&](const CMenuTree *node) {
        WriteNode(ar, *node);
        ar << node->GetChildCount();
        steps.push_back({node, 0});
    };
    enter(&root);
    while (!steps.empty()) {
        const CMenuTree *child = steps.back().node->GetChild(steps.back().next++);
        if (child != nullptr)
            enter(child);
        else
            steps.pop_back();
    }
}

void ReadPlain(CArchive &ar, CMenuTree &root) {
    struct Step {
        CMenuTree *node;
        int left;
    };
    std::vector<Step> steps;
    CFileClaims claims(ar, kLeastNodeBytes);
    const auto enter = [&](CMenuTree *node) {
        ReadNode(ar, *node);
        const int children = claims.ReadCount();
        if (children == 0)
            return;
        node->m_pChildren = root.NewList(children);
        steps.push_back({node, children});
    };
    enter(&root);
    while (!steps.empty()) {
        if (steps.back().left == 0) {
            steps.pop_back();
            continue;
        }
        --steps.back().left;
        claims.Take();
        CMenuTree *parent = steps.back().node;
        CMenuTree *child = root.AppendNew(parent->m_pChildren);
        child->m_pParent = parent;
        enter(child);
    }
}

void WriteShared(CArchive &ar, const CMenuTree &root) {
    const auto write = [&](const CMenuTree &node) {
        ar << node.m_nSharedIndex;
        WriteNode(ar, node);
    };
    const int lists = root.GetSharedListCount();
    ar << lists;
    for (int i = 0; i < lists; ++i)
        ar << root.GetSharedList(i)->GetSize();
    for (int i = 0; i < lists; ++i) {
        const CMenuList &list = *root.GetSharedList(i);
        for (int node = 0; node < list.GetSize(); ++node)
            write(*list.GetAt(node));
    }
    write(root);
}

void ReadSharedNode(CArchive &ar, CMenuTree &root, CMenuTree &node) {
    int index;
    ar >> index;
    if (index >= root.GetSharedListCount())
        ThrowBadIndex(ar);
    node.m_bShared = true;
    if (index >= 0) {
        node.m_nSharedIndex = index;
        node.m_pChildren = root.GetSharedList(index);
    }
    ReadNode(ar, node);
}

// Whether the way down from every list ends. Lists to which nothing refers are taken away until there are none.
bool DoListsEnd(const CMenuTree &root) {
    const int lists = root.GetSharedListCount();
    std::vector<unsigned> references(static_cast<size_t>(lists), 0);
    const auto count = [&](int list, auto &&work) {
        const CMenuList &nodes = *root.GetSharedList(list);
        for (int i = 0; i < nodes.GetSize(); ++i) {
            if (const int index = nodes.GetAt(i)->m_nSharedIndex; index >= 0)
                work(index);
        }
    };
    for (int i = 0; i < lists; ++i)
        count(i, [&](int index) { ++references[static_cast<size_t>(index)]; });
    std::vector<int> free;
    for (int i = 0; i < lists; ++i) {
        if (references[static_cast<size_t>(i)] == 0)
            free.push_back(i);
    }
    int taken = 0;
    for (; !free.empty(); ++taken) {
        const int list = free.back();
        free.pop_back();
        count(list, [&](int index) {
            if (--references[static_cast<size_t>(index)] == 0)
                free.push_back(index);
        });
    }
    return taken == lists;
}

void ReadShared(CArchive &ar, CMenuTree &root) {
    root.m_bShared = true;
    const int lists = CFileClaims(ar, kListSizeBytes).ReadCount();
    std::vector<int> sizes;
    CFileClaims claims(ar, kLeastNodeBytes);
    for (int i = 0; i < lists; ++i)
        sizes.push_back(claims.ReadCount());
    for (int size : sizes)
        root.AddSharedList(root.NewList(size));
    for (int i = 0; i < lists; ++i) {
        for (int node = 0; node < sizes[static_cast<size_t>(i)]; ++node) {
            claims.Take();
            ReadSharedNode(ar, root, *root.AppendNew(root.GetSharedList(i)));
        }
    }
    ReadSharedNode(ar, root, root);
    if (!DoListsEnd(root))
        ThrowBadIndex(ar);
}

} // namespace

void WriteMenuSection(CArchive &ar, const CMenuTree &root) {
    ar << kMenuVersion << static_cast<int>(root.m_bShared);
    if (root.m_bShared)
        WriteShared(ar, root);
    else
        WritePlain(ar, root);
}

void ReadMenuSection(CArchive &ar, CMenuTree &root) {
    int version, shared = 0;
    ar >> version;
    if (version > kMenuVersion)
        AfxThrowArchiveException(CArchiveException::badSchema, "CMenuTree");
    if (version == kSharedSince)
        ar >> shared;
    if (shared > 0)
        ReadShared(ar, root);
    else
        ReadPlain(ar, root);
}
