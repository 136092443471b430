// Sets of characters, as the regular expression library itself sees them.
#pragma once

#include <bitset>
#include <map>
#include <string>

namespace Search {

using CharSet = std::bitset<256>; // by the character's byte

class CharSets {
public:
    explicit CharSets(bool matchCase) : m_withCase(matchCase), m_withoutCase(!matchCase) {}
    // From now on a set holds what fits in either case; for patterns that change between the two.
    void TakeBoth();

    // The characters that a literal one fits.
    CharSet Of(char literal) const;
    // The characters that an expression fits which fits one character: a class, a dot, an escape such as \d.
    // Empty when it is no expression.
    const CharSet &Of(const std::string &expression);

private:
    bool m_withCase, m_withoutCase; // how the characters are compared, or both
    std::map<std::string, CharSet> m_known;
};

} // namespace Search
