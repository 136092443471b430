// A regular expression as a graph that fits at least the texts which the expression fits.
//
// What a graph cannot tell is taken wider: a reference to a group stands for any text, a look ahead or behind
// and the order of preference for nothing at all. So a text that the graph does not fit, the expression does
// not fit either.
#pragma once

#include "search/CharSets.h"

#include <string>
#include <vector>

namespace Search {

// What must hold between two characters, or at an end of the text.
enum class Between {
    TextStart,
    TextEnd,
    LineStart,
    LineEnd,
    WordEdge,
    NoWordEdge,
    WordStart,
    WordEnd,
    NotAfterWord,
    NotBeforeWord
};

struct GraphNode {
    enum Kind { kOneOf, kFork, kCondition, kEnd };
    Kind kind = kEnd;
    Between condition = Between::TextStart;
    CharSet set;    // of kOneOf: takes one character of it
    int next = -1;  // the node that follows
    int other = -1; // of kFork: the other one
};

struct PatternGraph {
    std::vector<GraphNode> nodes;
    int start = -1;
};

// False, and no graph, where the pattern holds anything whose meaning is not known here or the graph gets too
// large.
bool MakePatternGraph(const std::string &pattern, CharSets *sets, PatternGraph *graph);

} // namespace Search
