// CWaitCursorScope: the host's wait cursor for the duration of a block, also when the block is left by an exception.
#pragma once

#include "editorcore/AppInterface.h"

class CWaitCursorScope {
public:
    // `wanted` false shows none; for operations that wait only over many cells.
    explicit CWaitCursorScope(CVAppInterface *host, bool wanted = true) : m_host(wanted ? host : nullptr) {
        if (m_host != nullptr)
            m_host->DoWaitCursor(1);
    }
    ~CWaitCursorScope() { End(); }
    CWaitCursorScope(const CWaitCursorScope &) = delete;
    CWaitCursorScope &operator=(const CWaitCursorScope &) = delete;

    void End() {
        if (m_host != nullptr)
            m_host->DoWaitCursor(-1);
        m_host = nullptr;
    }
    // The cursor outlives the block. Some failing commands have always left it so, and hosts put it right with a
    // count of 0.
    void LeaveRaised() { m_host = nullptr; }

private:
    CVAppInterface *m_host; // borrowed; null when there is nothing to end
};
