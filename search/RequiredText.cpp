#include "search/RequiredText.h"

#include <cctype>

namespace Search {

namespace {

class Reader {
public:
    explicit Reader(const std::string &pattern) : m_pattern(pattern) {}

    std::string Longest() {
        while (m_plain && m_at < m_pattern.size())
            ReadOne();
        EndRun();
        return m_plain ? m_longest : std::string();
    }

private:
    void EndRun() {
        if (m_run.size() > m_longest.size())
            m_longest = m_run;
        m_run.clear();
    }
    void GiveUp() { m_plain = false; }
    bool Follows(const char *text) const { return m_pattern.compare(m_at, std::char_traits<char>::length(text), text) == 0; }
    bool IsQuantified(size_t at) const {
        return at < m_pattern.size() && std::string("*+?{").find(m_pattern[at]) != std::string::npos;
    }
    // A quantifier that lets its atom be absent.
    bool MayBeAbsent(size_t at) const {
        return at < m_pattern.size() && std::string("*?{").find(m_pattern[at]) != std::string::npos;
    }
    void SkipQuantifier() {
        while (m_at < m_pattern.size() && std::string("*?+").find(m_pattern[m_at]) != std::string::npos)
            ++m_at;
        if (m_at < m_pattern.size() && m_pattern[m_at] == '{')
            GiveUp();
    }
    void Literal(char c, size_t length) {
        if (MayBeAbsent(m_at + length))
            EndRun();
        else
            m_run += c;
        m_at += length;
        if (IsQuantified(m_at)) {
            EndRun();
            SkipQuantifier();
        }
    }
    void Opaque(size_t length) {
        EndRun();
        m_at += length;
        SkipQuantifier();
    }
    void ReadEscape() {
        if (m_at + 1 >= m_pattern.size())
            GiveUp();
        else if (std::isalnum(static_cast<unsigned char>(m_pattern[m_at + 1])))
            std::string("AzZKbBdDsSwW").find(m_pattern[m_at + 1]) != std::string::npos ? Opaque(2) : GiveUp();
        else if (std::string("<>`'").find(m_pattern[m_at + 1]) != std::string::npos)
            Opaque(2); // places at words and at the ends of the text
        else
            Literal(m_pattern[m_at + 1], 2);
    }
    void ReadOpening() {
        // The two looks around a word, and the groups around what is searched for.
        for (const char *known : {"(?<!\\w)", "(?!\\w)", "(?<_before>.*?)", "(?<_before>)", "(?<_after>.*)", "(?<_after>)"}) {
            if (Follows(known)) {
                Opaque(std::char_traits<char>::length(known));
                return;
            }
        }
        Follows("(?") || Follows("(*") ? GiveUp() : void(++m_at);
    }
    void ReadOne() {
        const char c = m_pattern[m_at];
        switch (c) {
        case '\\': ReadEscape(); break;
        case '(': ReadOpening(); break;
        case ')': IsQuantified(++m_at) ? GiveUp() : void(); break;
        case '.': Opaque(1); break;
        case '^':
        case '$': Opaque(1); break;
        case '[':
        case '|':
        case '{': GiveUp(); break;
        default: Literal(c, 1);
        }
    }

    const std::string &m_pattern;
    size_t m_at = 0;
    std::string m_run, m_longest;
    bool m_plain = true;
};

} // namespace

std::string RequiredText(const std::string &pattern) {
    return Reader(pattern).Longest();
}

} // namespace Search
