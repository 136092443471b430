#include "search/WrappedPattern.h"

#include "search/PatternText.h"

namespace Search {

namespace {

const std::string kAnyBefore = "\\A(?<_before>.*?)", kNoneBefore = "\\A(?<_before>)";
const std::string kAnyAfter = "(?<_after>.*)", kNoneAfter = "(?<_after>)\\z";
const std::string kWordStart = "(?<!\\w)", kWordEnd = "(?!\\w)";

struct Wrapping {
    std::string before, after;
    std::string end; // what must hold after what was found, besides the expression
};

Wrapping WrappingOf(int matchMode) {
    switch (matchMode & ~kTypedRegex) {
    case kAnywhere: return {kAnyBefore, kAnyAfter, ""};
    case kAtStart: return {kNoneBefore, kAnyAfter, ""};
    case kAtEnd: return {kAnyBefore, kNoneAfter, "\\z"};
    case kWholeWords: return {kAnyBefore + kWordStart, kWordEnd + kAnyAfter, kWordEnd};
    default: return {kNoneBefore, kNoneAfter, "\\z"};
    }
}

} // namespace

std::string WrapRegex(const std::string &moved, int matchMode) {
    const Wrapping wrapping = WrappingOf(matchMode);
    return wrapping.before + "(" + moved + ")" + wrapping.after;
}

std::string UnwrapRegex(const std::string &pattern) {
    // Whole words before anywhere, of which they are a special case.
    for (const int mode : {kWholeCell, kAtStart, kAtEnd, kWholeWords, kAnywhere}) {
        const Wrapping wrapping = WrappingOf(mode);
        const std::string before = wrapping.before + "(", after = ")" + wrapping.after;
        if (pattern.size() < before.size() + after.size() || !pattern.starts_with(before) ||
            !pattern.ends_with(after))
            continue;
        const size_t length = pattern.size() - before.size() - after.size();
        return "()()(?:" + pattern.substr(before.size(), length) + ")" + wrapping.end;
    }
    return "";
}

} // namespace Search
