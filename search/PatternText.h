// From what the user typed to what the regular expression library takes. All texts are in the machine's code
// page.
//
// Wildcard text: `*` stands for any run of characters, `?` for one, `#` for one digit; a backslash takes the
// next character as it is. Typed regular expressions are in the Perl syntax of Boost.Regex.
//
// The final pattern fits a cell's whole text exactly when the match mode says that the cell matches.
// Replacing its match with the final format replaces what was found and keeps the text around it.
#pragma once

#include <string>

namespace Search {

enum MatchMode {
    kWholeCell = 0,
    kAnywhere = 1,
    kAtStart = 2,
    kAtEnd = 3,
    kWholeWords = 4, // letters, digits and _ make words
};
// Added to a match mode: the find text was typed as a regular expression, so that the replacement is a
// format, in which $1, $& and the like work as in Perl. Otherwise the replacement is literal.
constexpr int kTypedRegex = 0x100;

// The wildcard text as a regular expression that finds the shortest runs.
ORVANE_API std::string ConvertWildcardsToRegex(const std::string &text);

// `regex` is the user's expression, or the one made of his wildcards. One that is no regular expression gives
// a pattern that is none either. A match mode that is not known counts as kWholeCell.
ORVANE_API std::string RegexifyFindString(const std::string &regex, int matchMode);

// Why a regular expression that the library knows gives none here, as a sentence for the user; empty for all
// others.
ORVANE_API std::string WhyRefused(const std::string &regex);

// `find` is what the user typed.
ORVANE_API std::string RegexifyReplaceString(const std::string &replacement, const std::string &find,
                                             int matchMode);

} // namespace Search
