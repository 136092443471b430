#include "search/TypedFormat.h"

#include "search/TypedRegex.h"

#include <cstdint>
#include <limits>

namespace Search {

namespace {

constexpr int kNoNumber = -1;
constexpr const char *kNothing = "${99999}"; // no pattern has so many groups

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Reads as the library does, odd forms included.
class FormatMover {
public:
    FormatMover(const std::string &text, int groups) : m_text(text), m_groups(groups) {}

    std::string Move() {
        while (m_at < m_text.size()) {
            switch (m_text[m_at]) {
            case '\\': MoveEscape(); break;
            case '$': MoveDollar(); break;
            default: m_moved += m_text[m_at++];
            }
        }
        return m_moved;
    }

private:
    char At(size_t at) const { return at < m_text.size() ? m_text[at] : '\0'; }
    void Replace(size_t count, const std::string &by) {
        m_moved += by;
        m_at += count;
    }
    // 0 is the whole match.
    std::string Group(int number) const {
        return number > m_groups ? kNothing : "${" + std::to_string(number + kFoundGroup) + "}";
    }
    std::string LastGroup() const { return m_groups > 0 ? Group(m_groups) : kNothing; }
    std::string LastClosed() const { return m_groups > 1 ? kLastClosed : LastGroup(); }
    static std::string Named(const std::string &name) { return "$+{" + name + "}"; }

    // An escape that the format's end cuts off must not take in what is put after it.
    void MoveEscape() {
        const char next = At(m_at + 1);
        if (m_at + 1 >= m_text.size())
            Replace(1, "\\\\");
        else if (next >= '1' && next <= '9')
            Replace(2, Group(next - '0'));
        else if (next == 'c' && m_at + 2 >= m_text.size())
            Replace(2, "c");
        else
            Copy(next == 'c' ? 3 : 2);
    }
    void Copy(size_t count) { Replace(count, m_text.substr(m_at, count)); }

    void MoveDollar() {
        switch (At(m_at + 1)) {
        case '$': Copy(2); break;
        case '&': Replace(2, Group(0)); break;
        case '`': Replace(2, Named(kBeforeName)); break;
        case '\'': Replace(2, Named(kAfterName)); break;
        case '+': MovePlus(); break;
        default: MoveNumberOrWord();
        }
    }
    void MovePlus() {
        const size_t end = At(m_at + 2) == '{' ? m_text.find('}', m_at) : std::string::npos;
        if (end == std::string::npos) {
            Replace(2, LastGroup());
            return;
        }
        const std::string name = m_text.substr(m_at + 3, end - m_at - 3);
        const bool ours = name == kBeforeName || name == kAfterName || Named(name) == kLastClosed;
        Replace(end + 1 - m_at, ours ? kNothing : Named(name));
    }
    void MoveNumberOrWord() {
        const bool braced = At(m_at + 1) == '{';
        size_t after = m_at + (braced ? 2 : 1);
        const int number = Number(&after);
        if (number != kNoNumber && (!braced || At(after) == '}'))
            Replace(after + braced - m_at, Group(number));
        else if (!MoveWord(after, braced))
            Replace(1, "$$");
    }
    // As the library cuts them off: those that are too long are none, others lose their upper bits.
    int Number(size_t *at) const {
        if (!IsDigit(At(*at)))
            return kNoNumber;
        intmax_t number = 0;
        while (IsDigit(At(*at))) {
            number = number * 10 + (m_text[(*at)++] - '0');
            if (number > std::numeric_limits<intmax_t>::max() / 10)
                return kNoNumber;
        }
        return static_cast<int>(number) < 0 ? kNoNumber : static_cast<int>(number);
    }
    // $MATCH, ${^MATCH} and the like; `at` is where the word is to begin.
    bool MoveWord(size_t at, bool braced) {
        const std::pair<std::string, std::string> words[] = {{"MATCH", Group(0)},
                                                             {"PREMATCH", Named(kBeforeName)},
                                                             {"POSTMATCH", Named(kAfterName)},
                                                             {"LAST_PAREN_MATCH", LastGroup()},
                                                             {"LAST_SUBMATCH_RESULT", LastClosed()},
                                                             {"^N", LastClosed()}};
        at += braced && At(at) == '^';
        for (const auto &[word, meaning] : words) {
            const size_t end = at + word.size();
            if (m_text.compare(at < m_text.size() ? at : m_text.size(), word.size(), word) != 0 ||
                (braced && At(end) != '}'))
                continue;
            Replace(end + braced - m_at, meaning);
            return true;
        }
        return false;
    }

    const std::string &m_text;
    int m_groups;
    std::string m_moved;
    size_t m_at = 0;
};

} // namespace

std::string MoveFormat(const std::string &format, int groups) {
    return FormatMover(format, groups).Move();
}

std::string EscapeFormat(const std::string &text) {
    std::string escaped;
    for (char c : text) {
        if (c == '\\' || c == '$')
            escaped += '\\';
        escaped += c;
    }
    return escaped;
}

} // namespace Search
