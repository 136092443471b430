#include "search/PatternText.h"

#include "search/ClassEnd.h"

#include <cctype>

namespace Search {

namespace {

// The final pattern: the text in front of what was found, what was found as the group of this number, the text behind.
constexpr const char *kBefore = "$+{_before}";
constexpr const char *kAfter = "$+{_after}";
constexpr int kFoundGroup = 2;
constexpr const char *kNoRegex = "("; // for what the user typed wrong

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

int ModeOf(int matchMode) {
    const int mode = matchMode & ~kTypedRegex;
    return mode < kWholeCell || mode > kWholeWords ? kWholeCell : mode;
}

// Rewrites a typed expression for its place inside a group: its own groups count from kFoundGroup there.
class RegexMover {
public:
    explicit RegexMover(const std::string &text) : m_text(text) {}

    // Empty when the parentheses do not match, whatever else is wrong with it.
    std::string Move() {
        while (m_at < m_text.size()) {
            switch (m_text[m_at]) {
            case '\\': MoveEscape(); break;
            case '[': Copy(ClassEnd(m_text, m_at) - m_at); break;
            case '(': MoveOpening(); break;
            case ')':
                if (--m_depth < 0)
                    return kNoRegex;
                [[fallthrough]];
            default: Copy(1);
            }
        }
        return m_depth == 0 ? m_moved : kNoRegex;
    }

private:
    bool Follows(const char *text) const { return m_text.compare(m_at, std::char_traits<char>::length(text), text) == 0; }
    void Copy(size_t count) {
        m_moved.append(m_text, m_at, count);
        m_at += count < m_text.size() - m_at ? count : m_text.size() - m_at;
    }
    void CopyThrough(const char *end, const char *endMissing) {
        const size_t found = m_text.find(end, m_at);
        if (found == std::string::npos) {
            Copy(m_text.size());
            m_moved += endMissing;
        } else {
            Copy(found + std::char_traits<char>::length(end) - m_at);
        }
    }
    // Reads digits at an offset from the present place; 0 for none. `after` gets where they end.
    int Number(size_t at, size_t *after) const {
        int number = 0;
        for (; at < m_text.size() && IsDigit(m_text[at]) && number < 10000; ++at)
            number = number * 10 + (m_text[at] - '0');
        *after = at;
        return number;
    }
    void MoveEscape() {
        if (Follows("\\Q")) {
            CopyThrough("\\E", "\\E");
            return;
        }
        const char next = m_at + 1 < m_text.size() ? m_text[m_at + 1] : '\0';
        if (next >= '1' && next <= '9') {
            m_moved += "\\g{" + std::to_string(next - '0' + kFoundGroup) + "}";
            m_at += 2;
            return;
        }
        if (next == 'g' && MoveNamedReference())
            return;
        Copy(2);
    }
    // \g2 and \g{2}; names and relative numbers stay.
    bool MoveNamedReference() {
        const bool braced = m_at + 2 < m_text.size() && m_text[m_at + 2] == '{';
        size_t after;
        const int number = Number(m_at + (braced ? 3 : 2), &after);
        if (number == 0 || (braced && (after >= m_text.size() || m_text[after] != '}')))
            return false;
        m_moved += "\\g{" + std::to_string(number + kFoundGroup) + "}";
        m_at = braced ? after + 1 : after;
        return true;
    }
    void MoveOpening() {
        if (Follows("(?#")) {
            CopyThrough(")", "");
            return;
        }
        ++m_depth;
        size_t after;
        if (Follows("(?R)") || Follows("(?0)")) {
            m_moved += "(?" + std::to_string(kFoundGroup);
            m_at += 3;
        } else if (Follows("(?(") && Number(m_at + 3, &after) > 0) {
            // The parenthesis of the condition is passed here with its number.
            m_moved += "(?(" + std::to_string(Number(m_at + 3, &after) + kFoundGroup);
            m_at = after;
            ++m_depth;
        } else if (Follows("(?") && Number(m_at + 2, &after) > 0) {
            m_moved += "(?" + std::to_string(Number(m_at + 2, &after) + kFoundGroup);
            m_at = after;
        } else {
            Copy(1);
        }
    }

    const std::string &m_text;
    std::string m_moved;
    size_t m_at = 0;
    int m_depth = 0;
};

std::string Group(int number) {
    return "${" + std::to_string(number) + "}";
}

// Rewrites a typed format for the pattern that its expression became part of.
class FormatMover {
public:
    explicit FormatMover(const std::string &text) : m_text(text) {}

    std::string Move() {
        while (m_at < m_text.size()) {
            const char c = m_text[m_at];
            const char next = m_at + 1 < m_text.size() ? m_text[m_at + 1] : '\0';
            if (c == '\\' && next >= '1' && next <= '9')
                Replace(2, Group(next - '0' + kFoundGroup));
            else if (c == '\\' || (c == '$' && next == '$'))
                Replace(2, m_text.substr(m_at, 2));
            else if (c == '$')
                MoveDollar(next);
            else
                Replace(1, std::string(1, c));
        }
        return m_moved;
    }

private:
    void Replace(size_t count, const std::string &by) {
        m_moved += by;
        m_at += count;
    }
    void MoveDollar(char next) {
        if (next == '&') {
            Replace(2, Group(kFoundGroup));
        } else if (next == '`' || next == '\'') {
            Replace(2, next == '`' ? kBefore : kAfter);
        } else if (m_text.compare(m_at, 9, "${^MATCH}") == 0) {
            Replace(9, Group(kFoundGroup));
        } else if (m_text.compare(m_at, 12, "${^PREMATCH}") == 0) {
            Replace(12, kBefore);
        } else if (m_text.compare(m_at, 13, "${^POSTMATCH}") == 0) {
            Replace(13, kAfter);
        } else if (IsDigit(next) || (next == '{' && m_at + 2 < m_text.size() && IsDigit(m_text[m_at + 2]))) {
            MoveNumber(next == '{');
        } else {
            Replace(1, "$");
        }
    }
    void MoveNumber(bool braced) {
        size_t at = m_at + (braced ? 2 : 1);
        int number = 0;
        for (; at < m_text.size() && IsDigit(m_text[at]) && number < 10000; ++at)
            number = number * 10 + (m_text[at] - '0');
        if (braced && at < m_text.size() && m_text[at] == '}')
            ++at;
        Replace(at - m_at, Group(number + kFoundGroup));
    }

    const std::string &m_text;
    std::string m_moved;
    size_t m_at = 0;
};

std::string EscapeFormat(const std::string &text) {
    std::string escaped;
    for (char c : text) {
        if (c == '\\' || c == '$')
            escaped += '\\';
        escaped += c;
    }
    return escaped;
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
    const std::string moved = RegexMover(regex).Move();
    if (moved == kNoRegex)
        return kNoRegex;
    const std::string found = "(" + moved + ")";
    const std::string any = "\\A(?<_before>.*?)", none = "\\A(?<_before>)";
    const std::string rest = "(?<_after>.*)", end = "(?<_after>)\\z";
    switch (ModeOf(matchMode)) {
    case kAnywhere: return any + found + rest;
    case kAtStart: return none + found + rest;
    case kAtEnd: return any + found + end;
    case kWholeWords: return any + "(?<!\\w)" + found + "(?!\\w)" + rest;
    default: return none + found + end;
    }
}

std::string RegexifyReplaceString(const std::string &replacement, const std::string &, int matchMode) {
    const std::string format =
        matchMode & kTypedRegex ? FormatMover(replacement).Move() : EscapeFormat(replacement);
    return kBefore + format + "\\E" + kAfter; // \E: a change of case ends with what was typed
}

} // namespace Search
