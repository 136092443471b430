// RunInMemory: work that may run out of memory. False when it did; what it had done until then is the caller's to
// put right and to tell.
#pragma once

#include <afx.h>

template <class Work> bool RunInMemory(Work work) {
    try {
        work();
        return true;
    } catch (CMemoryException *e) {
        e->Delete();
        return false;
    }
}
