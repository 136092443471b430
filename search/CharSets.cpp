#include "search/CharSets.h"

#include <boost/regex.hpp>

namespace Search {

CharSet CharSets::Of(char literal) const {
    const boost::regex_traits<char> traits;
    CharSet set;
    for (size_t c = 0; c < set.size(); ++c)
        set[c] =
            traits.translate(static_cast<char>(c), !m_matchCase) == traits.translate(literal, !m_matchCase);
    return set;
}

// Asking the library character by character takes some microseconds once, and leaves nothing to know about
// its classes.
const CharSet &CharSets::Of(const std::string &expression) {
    const auto [known, isNew] = m_known.try_emplace(expression);
    if (!isNew)
        return known->second;
    try {
        const boost::regex regex(expression,
                                 m_matchCase ? boost::regex::perl : boost::regex::perl | boost::regex::icase);
        for (size_t c = 0; c < known->second.size(); ++c) {
            const char text = static_cast<char>(c);
            known->second[c] = boost::regex_match(&text, &text + 1, regex);
        }
    } catch (const boost::regex_error &) {
        known->second.reset();
    }
    return known->second;
}

} // namespace Search
