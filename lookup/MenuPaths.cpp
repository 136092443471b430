#include "lookup/MenuPaths.h"

#include "lookup/MenuTree.h"

CMenuPaths::CMenuPaths(const CMenuTree *from, const CStringArrayEx &above) : m_from(from), m_path(above) {}

void CMenuPaths::Enter(const CMenuTree *node) {
    m_steps.push_back({node, 0});
    m_path.Add(node->m_sCode.GetString());
}

bool CMenuPaths::Next() {
    if (m_from != nullptr) {
        Enter(m_from);
        m_from = nullptr;
    } else if (!m_steps.empty()) {
        // The leaf of the last path.
        m_steps.pop_back();
        m_path.RemoveAt(m_path.GetUpperBound());
    }
    while (!m_steps.empty()) {
        Step &step = m_steps.back();
        const CMenuTree *child = step.node->GetChild(step.next++);
        if (child != nullptr) {
            Enter(child);
        } else if (!step.node->HasChildren()) {
            return true;
        } else {
            m_steps.pop_back();
            m_path.RemoveAt(m_path.GetUpperBound());
        }
    }
    return false;
}
