#include "lookup/LookupTree.h"

#include "lookup/CodeCompare.h"

#include <afxwin.h>

#include <cstring>
#include <vector>

IMPLEMENT_DYNAMIC(CLookupTree, CObject)

CLookupTree::CLookupTree() = default;

CLookupTree::~CLookupTree() = default;

void CLookupTree::Clear() {
    ForgetSearch();
    Forget();
    m_Pool.Clear();
    m_TextPool.Clear();
}

void CLookupTree::ForgetSearch() {
    m_pLastNode = nullptr;
    m_sLastCode.Empty();
}

void CLookupTree::AddCode(bool bCaseSensitive, const CStringArray &levelCodes, int firstLevel, int position) {
    ForgetSearch(); // its node may move
    const unsigned char *ranks = CodeByteRanks(bCaseSensitive);
    // Where a level "!" stands as a character, after all that follows without it has been added. The nodes that wait
    // stand above the ones that move.
    std::vector<Place> waiting;
    Place at{this, firstLevel, position};
    for (bool isThere = true;;) {
        if (!isThere || at.level >= levelCodes.GetSize() || at.position >= levelCodes[at.level].GetLength()) {
            if (waiting.empty())
                return;
            at = waiting.back();
            waiting.pop_back();
        } else if (levelCodes[at.level] == '!') {
            waiting.push_back(at);
            at = {at.node, at.level + 1, 0};
            isThere = true;
            continue;
        }
        const CString &code = levelCodes[at.level];
        at.node = at.node->AddChild(m_Pool, code[at.position], ranks);
        isThere = true;
        if (++at.position == code.GetLength()) {
            isThere = EndLevel(at.node, bCaseSensitive, levelCodes, at.level);
            at = {at.node, at.level + 1, 0};
        }
    }
}

// The node ends the code of the level; false at the last level.
bool CLookupTree::EndLevel(CLookupNode *node, bool bCaseSensitive, const CStringArray &levelCodes, int level) {
    const bool isLast = level == levelCodes.GetSize() - 1;
    if (isLast)
        node->m_bEndOfCode = true;
    if (node->m_bSinglePath) {
        const CPoolCodes codes = node->GetCodeList();
        if (codes.GetCount() == 0) {
            node->SetCodeList(m_Pool, CPoolCodes(m_TextPool, levelCodes, level + 1));
        } else if (!codes.AreFirstOf(levelCodes, level + 1, bCaseSensitive)) {
            node->SetCodeList(m_Pool, CPoolCodes());
            node->m_bSinglePath = false;
        }
    }
    return !isLast;
}

// The node of the code, null if there is none; what was found is kept.
const CLookupNode *CLookupTree::Search(LPCSTR code, bool bCaseSensitive) {
    const int length = static_cast<int>(std::strlen(code));
    const int known = m_sLastCode.GetLength();
    const bool goesOn = m_pLastNode != nullptr && known > 0 && known <= length &&
                        IsSameStart(m_sLastCode, code, known, bCaseSensitive);
    if (goesOn && known == length)
        return m_pLastNode;
    const int done = goesOn ? known : 0;
    const CLookupNode *from = goesOn ? m_pLastNode : this;
    const CLookupNode *node = from->FindPath(code + done, length - done, bCaseSensitive);
    if (node != nullptr) {
        m_sLastCode.SetString(code, length);
        m_pLastNode = node;
    }
    return node;
}

bool CLookupTree::IsPartialCode(LPCSTR code, bool bCaseSensitive) {
    return *code == '\0' || Search(code, bCaseSensitive) != nullptr;
}

bool CLookupTree::IsCompleteCode(LPCSTR code, bool bCaseSensitive) {
    if (*code == '\0')
        return true;
    const CLookupNode *node = Search(code, bCaseSensitive);
    return node != nullptr && node->m_bEndOfCode;
}

bool CLookupTree::GetCodeList(LPCSTR code, bool bCaseSensitive, CStringArray &codes) const {
    codes.RemoveAll();
    if (*code == '\0')
        return false;
    const CLookupNode *node = FindPath(code, static_cast<int>(std::strlen(code)), bCaseSensitive);
    if (node == nullptr)
        return false;
    try {
        node->GetCodeList().CopyTo(codes);
    } catch (CMemoryException *e) {
        e->Delete();
        codes.RemoveAll();
        AfxMessageBox("CLookupTree::GetCodeList: Out of memory!", MB_ICONHAND, 0);
    }
    return codes.GetSize() > 0;
}
