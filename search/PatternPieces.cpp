#include "search/PatternPieces.h"

#include "search/ClassEnd.h"

#include <algorithm>
#include <cctype>

namespace Search {

namespace {

constexpr int kDeepestGroup = 100;
constexpr int kMostCounted = 1000;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

Piece OneOf(const CharSet &set) {
    Piece piece;
    piece.kind = Piece::kOneOf;
    piece.set = set;
    return piece;
}

Piece Condition(Between condition) {
    Piece piece;
    piece.kind = Piece::kCondition;
    piece.condition = condition;
    return piece;
}

Piece Repeat(const Piece &body, int least, int most) {
    Piece piece;
    piece.kind = Piece::kRepeat;
    piece.parts = {body};
    piece.least = least;
    piece.most = most;
    return piece;
}

Piece AnyText() {
    return Repeat(OneOf(CharSet().set()), 0, Piece::kNoEnd);
}

class Reader {
public:
    Reader(const std::string &pattern, CharSets *sets) : m_pattern(pattern), m_sets(sets) {}

    bool Read(Piece *whole) {
        if (ChangesCase())
            m_sets->TakeBoth();
        *whole = ReadChoice();
        return m_known && m_at == m_pattern.size();
    }

private:
    char At(size_t at) const { return at < m_pattern.size() ? m_pattern[at] : '\0'; }
    bool Ended() const { return m_at >= m_pattern.size(); }
    bool Take(const char *text) {
        const size_t length = std::char_traits<char>::length(text);
        const bool follows = m_pattern.compare(m_at, length, text) == 0;
        m_at += follows ? length : 0;
        return follows;
    }
    // The end of an inline option such as (?i) or (?-s: that begins here; 0 where there is none.
    size_t OptionEnd(size_t at) const {
        if (m_pattern.compare(at, 2, "(?") != 0)
            return 0;
        const size_t end = m_pattern.find_first_not_of("ims-", at + 2);
        return end == std::string::npos || end == at + 2 || (m_pattern[end] != ')' && m_pattern[end] != ':')
                   ? 0
                   : end;
    }
    bool ChangesCase() const {
        for (size_t at = m_pattern.find("(?"); at != std::string::npos; at = m_pattern.find("(?", at + 1)) {
            if (m_pattern.substr(at, OptionEnd(at) - at).find('i') != std::string::npos)
                return true;
        }
        return false;
    }
    Piece Unknown() {
        m_known = false;
        m_at = m_pattern.size();
        return Piece();
    }

    Piece ReadChoice() {
        Piece choice;
        choice.kind = Piece::kChoice;
        do
            choice.parts.push_back(ReadSequence());
        while (Take("|"));
        return choice;
    }
    Piece ReadSequence() {
        Piece sequence;
        while (!Ended() && At(m_at) != '|' && At(m_at) != ')') {
            m_repeatable = true;
            const Piece piece = ReadOne();
            sequence.parts.push_back(ReadQuantifier(piece));
        }
        return sequence;
    }
    bool AtQuantifier() const { return !Ended() && std::string("*+?{").find(At(m_at)) != std::string::npos; }
    // A shortest run and one that gives nothing back fit no more texts than the plain one.
    Piece ReadQuantifier(const Piece &piece) {
        if (!AtQuantifier())
            return piece;
        int least = 0, most = Piece::kNoEnd;
        if (!m_repeatable || !ReadCounts(&least, &most))
            return Unknown();
        if (!Take("?"))
            Take("+");
        return AtQuantifier() ? Unknown() : Repeat(piece, least, most);
    }
    bool ReadCounts(int *least, int *most) {
        if (Take("*"))
            return true;
        if (Take("+")) {
            *least = 1;
            return true;
        }
        if (Take("?")) {
            *most = 1;
            return true;
        }
        Take("{");
        if (!ReadNumber(least))
            return false;
        *most = *least;
        if (Take(",")) {
            *most = Piece::kNoEnd;
            if (IsDigit(At(m_at)) && !ReadNumber(most))
                return false;
        }
        return Take("}") && (*most == Piece::kNoEnd || *most >= *least);
    }
    bool ReadNumber(int *number) {
        *number = 0;
        const size_t first = m_at;
        for (; IsDigit(At(m_at)) && *number <= kMostCounted; ++m_at)
            *number = *number * 10 + (At(m_at) - '0');
        return m_at > first && *number <= kMostCounted;
    }

    Piece Fixed(const Piece &piece) {
        m_repeatable = false;
        return piece;
    }
    Piece Set(size_t end) {
        if (end > m_pattern.size())
            return Unknown();
        const CharSet &set = m_sets->Of(m_pattern.substr(m_at, end - m_at));
        m_at = end;
        return OneOf(set);
    }
    Piece ReadOne() {
        switch (At(m_at)) {
        case '\\': return ReadEscape();
        case '(': return ReadGroup();
        case '[': return ReadClass();
        case '.': return Set(m_at + 1);
        case '^': ++m_at; return Fixed(Condition(Between::LineStart));
        case '$': ++m_at; return Fixed(Condition(Between::LineEnd));
        case '*':
        case '+':
        case '?':
        case '{':
        case '}': return Unknown();
        default: return OneOf(m_sets->Of(m_pattern[m_at++]));
        }
    }
    // A class may hold elements of several characters, named like this.
    Piece ReadClass() {
        const size_t end = ClassEnd(m_pattern, m_at);
        const std::string text = m_pattern.substr(m_at, end - m_at);
        if (text.find("[.") == std::string::npos && text.find("[=") == std::string::npos)
            return Set(end);
        m_at = end;
        return AnyText();
    }
    Piece ReadEscape() {
        const char c = At(m_at + 1);
        if (m_at + 1 >= m_pattern.size())
            return Unknown();
        if (std::string("dDwWsSlLuUhHvVntrfae").find(c) != std::string::npos)
            return Set(m_at + 2);
        if (c == 'x')
            return ReadCode();
        m_at += 2;
        switch (c) {
        case 'A':
        case '`': return Fixed(Condition(Between::TextStart));
        case '<': return Fixed(Condition(Between::WordStart));
        case '>': return Fixed(Condition(Between::WordEnd));
        case '\'':
        case 'z': return Fixed(Condition(Between::TextEnd));
        case 'Z': return Fixed(Condition(Between::LineEnd)); // the line breaks at the end may stand behind
        case 'b': return Fixed(Condition(Between::WordEdge));
        case 'B': return Fixed(Condition(Between::NoWordEdge));
        case 'g': return ReadReference();
        case 'Q': return ReadQuoted();
        default: break;
        }
        return std::ispunct(static_cast<unsigned char>(c)) ? OneOf(m_sets->Of(c)) : Unknown();
    }
    Piece ReadQuoted() {
        Piece sequence;
        while (!Ended() && !Take("\\E"))
            sequence.parts.push_back(OneOf(m_sets->Of(m_pattern[m_at++])));
        return Fixed(sequence);
    }
    Piece ReadCode() {
        const auto isHex = [this](size_t at) {
            return std::isxdigit(static_cast<unsigned char>(At(at))) != 0;
        };
        if (At(m_at + 2) == '{')
            return Set(std::min(m_pattern.find('}', m_at), m_pattern.size()) + 1);
        return isHex(m_at + 2) && isHex(m_at + 3) ? Set(m_at + 4) : Unknown();
    }
    Piece ReadReference() {
        const size_t end = At(m_at) == '{' ? m_pattern.find('}', m_at) : std::string::npos;
        if (end == std::string::npos)
            return Unknown();
        m_at = end + 1;
        return AnyText();
    }
    // The options for lines and dots only narrow what is taken without them.
    Piece ReadOption() {
        m_at = OptionEnd(m_at);
        return At(m_at++) == ':' ? ReadInner() : Fixed(Piece());
    }
    Piece ReadGroup() {
        if (OptionEnd(m_at) > 0)
            return ReadOption();
        if (Take("(?<!\\w)"))
            return Fixed(Condition(Between::NotAfterWord));
        if (Take("(?!\\w)"))
            return Fixed(Condition(Between::NotBeforeWord));
        if (Take("(?=") || Take("(?!") || Take("(?<=") || Take("(?<!")) {
            ReadInner();
            return Fixed(Piece());
        }
        if (Take("(?:") || Take("(?>") || TakeName())
            return ReadInner();
        const bool plain = At(m_at + 1) != '?' && At(m_at + 1) != '*';
        return plain && Take("(") ? ReadInner() : Unknown();
    }
    bool TakeName() {
        const size_t end = Take("(?<")   ? m_pattern.find('>', m_at)
                           : Take("(?'") ? m_pattern.find('\'', m_at)
                                         : std::string::npos;
        m_at = end == std::string::npos ? m_at : end + 1;
        return end != std::string::npos;
    }
    // Behind the opening of a group, to behind its end.
    Piece ReadInner() {
        if (++m_depth > kDeepestGroup)
            return Unknown();
        const Piece inner = ReadChoice();
        --m_depth;
        m_repeatable = true;
        return Take(")") ? inner : Unknown();
    }

    const std::string &m_pattern;
    CharSets *m_sets;
    size_t m_at = 0;
    int m_depth = 0;
    bool m_repeatable = true; // the piece that was read may stand before a quantifier
    bool m_known = true;
};

} // namespace

bool ReadPatternPieces(const std::string &pattern, CharSets *sets, Piece *whole) {
    return Reader(pattern, sets).Read(whole);
}

} // namespace Search
