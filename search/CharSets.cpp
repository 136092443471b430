#include "search/CharSets.h"

#include <boost/regex.hpp>

namespace Search {

namespace {

// Asking the library character by character takes some microseconds once, and leaves nothing to know about
// its classes.
CharSet Ask(const std::string &expression, boost::regex::flag_type flags) {
    CharSet set;
    try {
        const boost::regex regex(expression, flags);
        for (size_t c = 0; c < set.size(); ++c) {
            const char text = static_cast<char>(c);
            set[c] = boost::regex_match(&text, &text + 1, regex);
        }
    } catch (const boost::regex_error &) {
        set.reset();
    }
    return set;
}

} // namespace

void CharSets::TakeBoth() {
    m_withCase = m_withoutCase = true;
    m_known.clear();
}

CharSet CharSets::Of(char literal) const {
    const boost::regex_traits<char> traits;
    CharSet set;
    for (size_t c = 0; c < set.size(); ++c) {
        set[c] = static_cast<char>(c) == literal ||
                 (m_withoutCase &&
                  traits.translate_nocase(static_cast<char>(c)) == traits.translate_nocase(literal));
    }
    return set;
}

const CharSet &CharSets::Of(const std::string &expression) {
    const auto [known, isNew] = m_known.try_emplace(expression);
    if (isNew && m_withCase)
        known->second = Ask(expression, boost::regex::perl);
    if (isNew && m_withoutCase)
        known->second |= Ask(expression, boost::regex::perl | boost::regex::icase);
    return known->second;
}

} // namespace Search
