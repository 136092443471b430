#include "search/TypedRegex.h"

#include "search/ClassEnd.h"

#include <boost/regex.hpp>

#include <vector>

namespace Search {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Rewrites an expression, one that compiles, so that it keeps its meaning with two groups before its own.
class RegexMover {
public:
    explicit RegexMover(const std::string &text) : m_text(text) {}

    std::string Move() {
        while (m_at < m_text.size()) {
            switch (m_text[m_at]) {
            case '\\': MoveEscape(); break;
            case '[': Copy(ClassEnd(m_text, m_at) - m_at); break;
            case '(': MoveOpening(); break;
            case ')':
                Leave();
                Copy(1);
                break;
            case '#': m_extended ? DropComment() : Copy(1); break;
            default: Copy(1);
            }
        }
        return m_moved;
    }
    const std::string &Refused() const { return m_refused; }

private:
    char At(size_t at) const { return at < m_text.size() ? m_text[at] : '\0'; }
    bool Follows(const char *text) const {
        return m_text.compare(m_at, std::char_traits<char>::length(text), text) == 0;
    }
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
    // A comment up to the line's end may hold anything; a line break in its place keeps its neighbours apart.
    void DropComment() {
        const size_t end = m_text.find_first_of("\n\r\f", m_at);
        m_at = end == std::string::npos ? m_text.size() : end + 1;
        m_moved += '\n';
    }
    // Reads digits; 0 for none. `after` gets where they end.
    int Number(size_t at, size_t *after) const {
        int number = 0;
        for (; IsDigit(At(at)) && number < 10000; ++at)
            number = number * 10 + (m_text[at] - '0');
        *after = at;
        return number;
    }
    void MoveEscape() {
        if (Follows("\\Q")) {
            CopyThrough("\\E", "\\E");
            return;
        }
        const char next = At(m_at + 1);
        if (next == 'K')
            m_refused = "\\K cannot be used here: what is found cannot begin later than its match.";
        if (next >= '1' && next <= '9') {
            m_moved += "\\g{" + std::to_string(next - '0' + kFoundGroup) + "}";
            m_at += 2;
            return;
        }
        if (next == 'g' && MoveNumberedReference())
            return;
        Copy(2);
    }
    // \g2 and \g{2}; names and relative numbers stay.
    bool MoveNumberedReference() {
        const bool braced = At(m_at + 2) == '{';
        size_t after;
        const int number = Number(m_at + (braced ? 3 : 2), &after);
        if (number == 0 || (braced && At(after) != '}'))
            return false;
        m_moved += "\\g{" + std::to_string(number + kFoundGroup) + "}";
        m_at = braced ? after + 1 : after;
        return true;
    }
    void Enter() { m_outer.push_back(m_extended); }
    void Leave() {
        if (m_outer.empty())
            return;
        m_extended = m_outer.back();
        m_outer.pop_back();
    }
    // Options such as (?x) or (?i-x: change how what follows is read.
    bool MoveOptions() {
        size_t end = m_at + 2;
        bool extended = m_extended, on = true;
        for (; At(end) != '\0' && std::string("imsx-").find(At(end)) != std::string::npos; ++end) {
            on = on && At(end) != '-';
            extended = At(end) == 'x' ? on : extended;
        }
        if (At(end) != ')' && At(end) != ':')
            return false;
        if (At(end) == ':')
            Enter();
        m_extended = extended;
        Copy(end + 1 - m_at);
        return true;
    }
    // The parenthesis and what says of which kind the group is, as far as numbers stand in it.
    void MoveOpening() { At(m_at + 1) == '?' ? MoveSpecialGroup() : MovePlainGroup(); }
    void MovePlainGroup() {
        if (Follows("(*"))
            m_refused = "Verbs such as (*PRUNE) cannot be used here.";
        Enter();
        Copy(1);
    }
    void MoveSpecialGroup() {
        if (Follows("(?#")) {
            CopyThrough(")", "");
            return;
        }
        if (MoveOptions())
            return;
        Enter();
        if (Follows("(?R)") || Follows("(?0)")) {
            m_moved += "(?" + std::to_string(kFoundGroup);
            m_at += 3;
        } else if (MoveNumber("(?(R") || MoveNumber("(?(")) {
            Enter(); // the parenthesis of the condition is passed here with its number
        } else if (!MoveNumber("(?")) {
            Copy(1);
        }
    }
    bool MoveNumber(const std::string &before) {
        size_t after;
        const int number = Number(m_at + before.size(), &after);
        if (!Follows(before.c_str()) || number == 0)
            return false;
        m_moved += before + std::to_string(number + kFoundGroup);
        m_at = after;
        return true;
    }

    const std::string &m_text;
    std::string m_moved, m_refused;
    size_t m_at = 0;
    bool m_extended = false;   // spaces mean nothing and # begins a comment
    std::vector<bool> m_outer; // the same for the groups around
};

} // namespace

TypedRegex::TypedRegex(const std::string &typed) {
    try {
        groups = static_cast<int>(boost::regex(typed).mark_count());
    } catch (const std::runtime_error &) {
        return;
    }
    RegexMover mover(typed);
    moved = mover.Move();
    refused = mover.Refused();
    valid = refused.empty();
}

} // namespace Search
