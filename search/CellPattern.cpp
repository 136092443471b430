#include "search/CellPattern.h"

#include "search/PatternScreen.h"
#include "search/RequiredText.h"

#include <boost/regex.hpp>

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

namespace Search {

namespace {

// How the library itself folds characters when case does not count.
std::array<char, 256> Folding(bool matchCase) {
    std::array<char, 256> folding;
    const boost::regex_traits<char> traits;
    for (int c = 0; c < 256; ++c)
        folding[static_cast<size_t>(c)] =
            matchCase ? static_cast<char>(c) : traits.translate_nocase(static_cast<char>(c));
    return folding;
}

} // namespace

struct CellPattern::Compiled {
    boost::regex regex;
    bool valid = false;
    std::optional<PatternScreen> screen;
    boost::cmatch match; // kept for its memory
    std::string needed, neededFolded;
    std::array<char, 256> folding{};

    char Fold(char c) const { return folding[static_cast<unsigned char>(c)]; }
    bool HasNeeded(const char *text, size_t length) const {
        return std::search(text, text + length, neededFolded.begin(), neededFolded.end(),
                           [this](char a, char b) { return Fold(a) == b; }) != text + length;
    }
};

CellPattern::CellPattern(const std::string &pattern, bool matchCase)
    : m_compiled(std::make_unique<Compiled>()) {
    try {
        m_compiled->regex.assign(pattern,
                                 matchCase ? boost::regex::perl : boost::regex::perl | boost::regex::icase);
        m_compiled->valid = true;
    } catch (const boost::regex_error &) {
        return;
    }
    m_compiled->screen.emplace(pattern, matchCase);
    m_compiled->folding = Folding(matchCase);
    m_compiled->needed = m_compiled->neededFolded = RequiredText(pattern);
    for (char &c : m_compiled->neededFolded)
        c = m_compiled->Fold(c);
}

CellPattern::~CellPattern() = default;

const std::string &CellPattern::Needed() const {
    return m_compiled->needed;
}

bool CellPattern::Matches(const char *text, size_t length) const {
    if (!m_compiled->valid || (!m_compiled->needed.empty() && !m_compiled->HasNeeded(text, length)) ||
        !m_compiled->screen->MayMatch(text, length))
        return false;
    try {
        return boost::regex_match(text, text + length, m_compiled->match, m_compiled->regex,
                                  boost::regex_constants::match_any);
    } catch (const std::runtime_error &) {
        return false; // the library's own bound on backtracking
    }
}

bool CellPattern::ReplaceFirst(const std::string &text, const std::string &format,
                               std::string *replaced) const {
    replaced->clear();
    if (!m_compiled->valid)
        return false;
    try {
        boost::smatch match;
        if (!boost::regex_search(text, match, m_compiled->regex))
            return false;
        replaced->assign(text.begin(), match[0].first);
        match.format(std::back_inserter(*replaced), format, boost::regex_constants::format_first_only,
                     m_compiled->regex);
        replaced->append(match[0].second, text.end());
        return true;
    } catch (const std::runtime_error &) {
        replaced->clear();
        return false;
    }
}

} // namespace Search
