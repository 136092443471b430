// The input mask of the in-cell edit, without the edit: what may be typed where, and where literals come in.
#pragma once

#include <string>

class ORVANE_API CUGEditMask {
public:
    // Null or empty switches the mask off. A backslash makes the next character a literal and has no position
    // of its own.
    void Set(const char *mask);
    bool IsOn() const { return !m_kinds.empty(); }
    // Positions, which is also the longest text.
    int Length() const { return static_cast<int>(m_kinds.size()); }

    // Where a character goes that is typed at the caret: behind the literals there.
    struct Place {
        int position;        // where the character will stand; the length where nothing more can be typed
        int passed;          // literals that stand in the text already
        std::string missing; // those to put in behind them
    };
    Place PlaceOf(const std::string &text, int caret) const;

    // The literal at a position, or 0 where a typed character goes.
    char LiteralAt(int position) const;
    // Whether the character may be typed at a position that holds no literal.
    bool Accepts(int position, char character) const;
    // The text written into the mask anew: literals where they belong, characters that do not fit dropped.
    std::string Reformat(const std::string &text) const;

private:
    std::string m_kinds;    // mask character by position, or the literal mark
    std::string m_literals; // literal by position, or the literal mark
};
