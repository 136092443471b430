// CellPattern: a pattern compiled once and tried on the texts of many cells.
//
// A text that cannot match, because no order of its characters leads through the pattern, is told apart
// without the regular expression; the answer is the same. What is learnt in doing so is kept, so a pattern
// serves one thread at a time.
#pragma once

#include <memory>
#include <string>

namespace Search {

class ORVANE_API CellPattern {
public:
    // Perl syntax of Boost.Regex. One that does not compile matches nothing.
    CellPattern(const std::string &pattern, bool matchCase);
    ~CellPattern();
    CellPattern(const CellPattern &) = delete;
    CellPattern &operator=(const CellPattern &) = delete;

    // Does the pattern fit the whole text? A match that would take without end is given up and counts as
    // none, and so does any of a pattern with back-references in a text of over 4,096 characters.
    bool Matches(const char *text, size_t length) const;
    bool Matches(const std::string &text) const { return Matches(text.data(), text.size()); }
    // The text with its first match replaced after the format; false, and no text, where nothing matches.
    bool ReplaceFirst(const std::string &text, const std::string &format, std::string *replaced) const;

private:
    struct Compiled;
    std::unique_ptr<Compiled> m_compiled;
};

} // namespace Search
