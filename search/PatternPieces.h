// A regular expression read into its pieces, for PatternGraph; what is taken wider stands there.
#pragma once

#include "search/PatternGraph.h"

#include <string>
#include <vector>

namespace Search {

struct Piece {
    enum Kind { kOneOf, kCondition, kSequence, kChoice, kRepeat };
    static constexpr int kNoEnd = -1;

    Kind kind = kSequence; // of no parts: nothing
    CharSet set;           // of kOneOf
    Between condition = Between::TextStart;
    std::vector<Piece> parts; // one of a kRepeat, at least one of a kChoice
    int least = 0;            // of kRepeat
    int most = kNoEnd;
};

// False where the pattern holds anything whose meaning is not known here. The pattern is one that compiles.
bool ReadPatternPieces(const std::string &pattern, CharSets *sets, Piece *whole);

} // namespace Search
