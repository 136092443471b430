#include "lookup/MenuList.h"

#include "lookup/CodeCompare.h"
#include "lookup/MenuTree.h"

#include <algorithm>
#include <climits>
#include <cstring>

void CMenuWidths::Take(const CMenuTree &node) {
    const int codeBytes = node.GetCodeLength();
    const int descriptionBytes = node.m_sDescription.GetLength();
    Take(CMenuWidths{codeBytes, descriptionBytes, codeBytes + descriptionBytes});
}

void CMenuWidths::Take(const CMenuWidths &other) {
    code = std::max(code, other.code);
    description = std::max(description, other.description);
    total = std::max(total, other.total);
}

int CMenuList::FindCode(LPCSTR code, bool bCaseSensitive, bool *found) const {
    if (found != nullptr)
        *found = false;
    if (m_nSize == 0)
        return -1;
    const LPCSTR wanted = CMenuTree::DisplayCode(code);
    int first = 0, last = m_nSize - 1, position = 0;
    while (first <= last) {
        const int middle = first + (last - first) / 2;
        const int order = CompareCodes(wanted, m_pNodes[middle]->GetCode(), bCaseSensitive);
        if (order == 0) {
            if (found != nullptr)
                *found = true;
            return middle;
        }
        position = order > 0 ? middle + 1 : middle;
        (order > 0 ? first : last) = order > 0 ? middle + 1 : middle - 1;
    }
    return position;
}

void CMenuList::Reserve(CTreePool &pool, int nodes) {
    if (nodes <= m_nCapacity)
        return;
    auto **fresh = static_cast<CMenuTree **>(pool.Allocate(sizeof(CMenuTree *) * static_cast<size_t>(nodes)));
    if (m_nSize > 0)
        std::memcpy(fresh, m_pNodes, sizeof(CMenuTree *) * static_cast<size_t>(m_nSize));
    pool.Release(m_pNodes, sizeof(CMenuTree *) * static_cast<size_t>(m_nCapacity));
    m_pNodes = fresh;
    m_nCapacity = nodes;
}

void CMenuList::InsertAt(CTreePool &pool, int index, CMenuTree *node) {
    if (m_nSize == m_nCapacity) {
        if (m_nSize > INT_MAX / 2)
            AfxThrowMemoryException();
        Reserve(pool, m_nSize < 4 ? m_nSize + 1 : m_nSize + m_nSize / 2);
    }
    std::memmove(m_pNodes + index + 1, m_pNodes + index,
                 sizeof(CMenuTree *) * static_cast<size_t>(m_nSize - index));
    m_pNodes[index] = node;
    ++m_nSize;
}
