// CMenuPaths: walks the paths from one node of a menu tree down to each leaf, depth first. A tree of independent
// levels has as many as there are combinations of codes: none but the current one is held.
#pragma once

#include "lookup/StringArrayEx.h"

#include <vector>

class CMenuTree;

class CMenuPaths {
public:
    // The codes of `above` stand in front of each path.
    explicit CMenuPaths(const CMenuTree *from, const CStringArrayEx &above = CStringArrayEx());

    // Goes to the first or next path; false behind the last. Throws CMemoryException.
    bool Next();
    // Codes as they are, "!" included.
    const CStringArrayEx &GetPath() const { return m_path; }

private:
    struct Step {
        const CMenuTree *node;
        int next; // the child to go down to
    };
    void Enter(const CMenuTree *node);

    const CMenuTree *m_from;
    std::vector<Step> m_steps;
    CStringArrayEx m_path;
};
