// KeptPatterns: the last two patterns that were asked for, so that a search compiles its own once. Two, since a
// replacement that repeats goes from its pattern to the empty one and back in every cell.
#pragma once

#include "search/CellPattern.h"

#include <memory>
#include <string>

namespace Search {

class ORVANE_API KeptPatterns {
public:
    // The pattern lives until two others have been asked for.
    const CellPattern &Get(const char *pattern, bool matchCase);

private:
    struct Kept {
        std::string pattern;
        bool matchCase = false;
        std::unique_ptr<CellPattern> compiled;
    };

    Kept m_last, m_other;
};

} // namespace Search
