#include "search/KeptPatterns.h"

#include <utility>

namespace Search {

const CellPattern &KeptPatterns::Get(const char *pattern, bool matchCase) {
    const auto isAsked = [&](const Kept &kept) {
        return kept.compiled != nullptr && kept.matchCase == matchCase && kept.pattern == pattern;
    };
    if (isAsked(m_last))
        return *m_last.compiled;
    if (!isAsked(m_other))
        m_other = Kept{pattern, matchCase, std::make_unique<CellPattern>(pattern, matchCase)};
    std::swap(m_last, m_other);
    return *m_last.compiled;
}

} // namespace Search
