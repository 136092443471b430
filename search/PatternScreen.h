// Tells texts apart that cannot match, without the regular expression library and in a few steps a character.
//
// The pattern's graph is walked with all nodes at once that the text read so far allows. The sets of nodes
// that were met are states, kept in a table with their followers by class of character; the table grows while
// texts are read.
#pragma once

#include "search/PatternGraph.h"

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Search {

class ORVANE_API PatternScreen {
public:
    // `pattern` is one that compiles.
    PatternScreen(const std::string &pattern, bool matchCase);

    // False only for a text that the pattern does not fit. For one thread at a time, since the table grows.
    bool MayMatch(const char *text, size_t length);
    // Is anything known of the pattern? If not, every text may match. For tests.
    bool Knows() const { return !m_graph.nodes.empty(); }

private:
    enum Side : unsigned char {
        kEdge,
        kLineBreak,
        kWord,
        kOther
    };                                             // what stands beside a place between characters
    using Key = std::pair<Side, std::vector<int>>; // what stands before, and the nodes, in order

    struct State {
        Key key;
        signed char fitsAtEnd; // kUnknown, 0 or 1
    };

    void SortCharacters(CharSets *sets);
    bool Holds(Between condition, Side before, Side after) const;
    std::vector<int> Reach(const State &state, Side after) const;
    int StateOf(Key key);
    int Follow(int state, unsigned char character);
    bool FitsAtEnd(int state);

    PatternGraph m_graph;
    std::array<unsigned char, 256> m_classOf{};
    std::array<Side, 256> m_sideOf{};
    int m_classes = 0;
    std::vector<State> m_states;
    std::vector<short> m_followers; // by state and class
    std::map<Key, int> m_stateOf;
};

} // namespace Search
