#include "search/PatternText.h"

#include "search/TypedFormat.h"
#include "search/TypedRegex.h"
#include "search/WrappedPattern.h"

namespace Search {

namespace {

constexpr const char *kNoRegex = "("; // for what the user typed wrong

std::string Named(const char *group) {
    return std::string("$+{") + group + "}";
}

} // namespace

std::string ConvertWildcardsToRegex(const std::string &text) {
    static const std::string kSpecial = ".[]{}()\\*+?|^$/#";
    std::string regex;
    const auto literal = [&](char c) {
        if (kSpecial.find(c) != std::string::npos)
            regex += '\\';
        regex += c;
    };
    for (size_t at = 0; at < text.size(); ++at) {
        switch (text[at]) {
        case '*': regex += ".*?"; break;
        case '?': regex += '.'; break;
        case '#': regex += "\\d"; break;
        case '\\':
            if (at + 1 < text.size())
                ++at;
            [[fallthrough]];
        default: literal(text[at]);
        }
    }
    return regex;
}

std::string RegexifyFindString(const std::string &regex, int matchMode) {
    const TypedRegex typed(regex);
    return typed.valid ? WrapRegex(typed.moved, matchMode) : kNoRegex;
}

std::string RegexifyReplaceString(const std::string &replacement, const std::string &find, int matchMode) {
    const std::string format = matchMode & kTypedRegex ? MoveFormat(replacement, TypedRegex(find).groups)
                                                       : EscapeFormat(replacement);
    return Named(kBeforeName) + format + "\\E" +
           Named(kAfterName); // \E: a change of case ends with what was typed
}

std::string WhyRefused(const std::string &regex) {
    return TypedRegex(regex).refused;
}

} // namespace Search
