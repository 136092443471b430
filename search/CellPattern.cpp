#include "search/CellPattern.h"

#include "search/PatternScreen.h"
#include "search/TypedFormat.h"
#include "search/TypedRegex.h"
#include "search/WrappedPattern.h"

#include <boost/regex.hpp>

#include <iterator>
#include <optional>
#include <utility>

namespace Search {

namespace {

// The library counts its steps, but not the characters that a back-reference compares in one step.
constexpr size_t kMostReferenced = 4096;

// Also where it only looks so.
bool RefersBack(const std::string &pattern) {
    for (size_t at = 0; at + 1 < pattern.size(); ++at) {
        if (pattern[at] != '\\')
            continue;
        const char escaped = pattern[++at];
        if ((escaped >= '1' && escaped <= '9') || escaped == 'g' || escaped == 'k')
            return true;
    }
    return false;
}

boost::regex::flag_type FlagsFor(bool matchCase) {
    return matchCase ? boost::regex::perl : boost::regex::perl | boost::regex::icase;
}

} // namespace

struct CellPattern::Compiled {
    Compiled(const std::string &text, bool matchCase)
        : pattern(text), mostChars(RefersBack(text) ? kMostReferenced : std::string::npos), flags(FlagsFor(matchCase)) {}

    std::string pattern;
    size_t mostChars; // of a text that is tried
    boost::regex::flag_type flags;
    boost::regex regex;
    bool valid = false;
    std::optional<PatternScreen> screen;
    boost::cmatch match; // kept for its memory

    std::string WithLastClosed(std::string format, const boost::smatch &found) const;
};

CellPattern::CellPattern(const std::string &pattern, bool matchCase)
    : m_compiled(std::make_unique<Compiled>(pattern, matchCase)) {
    try {
        m_compiled->regex.assign(pattern, m_compiled->flags);
        m_compiled->valid = true;
    } catch (const boost::regex_error &) {
        return;
    }
    m_compiled->screen.emplace(pattern, matchCase);
}

CellPattern::~CellPattern() = default;

bool CellPattern::Matches(const char *text, size_t length) const {
    if (!m_compiled->valid || length > m_compiled->mostChars || !m_compiled->screen->MayMatch(text, length))
        return false;
    try {
        return boost::regex_match(text, text + length, m_compiled->match, m_compiled->regex);
    } catch (const std::runtime_error &) {
        return false; // the library's own bound on backtracking
    }
}

// The pattern's own groups close after the typed ones, so the library is asked again, for the typed
// expression alone.
std::string CellPattern::Compiled::WithLastClosed(std::string format, const boost::smatch &found) const {
    size_t at = format.find(kLastClosed);
    const std::string unwrapped = at == std::string::npos ? "" : UnwrapRegex(pattern);
    if (unwrapped.empty())
        return format;
    std::string closed;
    boost::smatch alone;
    if (boost::regex_search(found[kFoundGroup].first, found[0].second, alone, boost::regex(unwrapped, flags),
                            boost::regex_constants::match_continuous, found[0].first))
        closed = EscapeFormat(alone.get_last_closed_paren().str());
    const size_t length = std::char_traits<char>::length(kLastClosed);
    for (; at != std::string::npos; at = format.find(kLastClosed, at + closed.size()))
        format.replace(at, length, closed);
    return format;
}

bool CellPattern::ReplaceFirst(const std::string &text, const std::string &format,
                               std::string *replaced) const {
    replaced->clear();
    if (!m_compiled->valid || text.size() > m_compiled->mostChars)
        return false;
    try {
        boost::smatch match;
        if (!boost::regex_search(text, match, m_compiled->regex))
            return false;
        std::string whole(text.begin(), match[0].first);
        match.format(std::back_inserter(whole), m_compiled->WithLastClosed(format, match),
                     boost::regex_constants::format_first_only, m_compiled->regex);
        whole.append(match[0].second, text.end());
        *replaced = std::move(whole);
        return true;
    } catch (const std::runtime_error &) {
        return false;
    }
}

} // namespace Search
