#include "search/PatternScreen.h"

namespace Search {

namespace {

constexpr int kUnknown = -1;
constexpr int kNothing = -2; // no text that goes on from here matches
constexpr int kTooMany = -3; // the table is full
constexpr size_t kMostStates = 2000;

} // namespace

PatternScreen::PatternScreen(const std::string &pattern, bool matchCase) {
    CharSets sets(matchCase);
    if (!MakePatternGraph(pattern, &sets, &m_graph))
        return;
    SortCharacters(&sets);
    StateOf({kEdge, {m_graph.start}});
}

// Characters that no node and no condition tells apart are of one class.
void PatternScreen::SortCharacters(CharSets *sets) {
    const CharSet words = sets->Of(std::string("\\w"));
    const std::string breaks = "\n\r\f\x85";
    std::map<std::vector<bool>, int> classes;
    for (size_t c = 0; c < m_classOf.size(); ++c) {
        const bool isBreak = breaks.find(static_cast<char>(c)) != std::string::npos;
        m_sideOf[c] = isBreak ? kLineBreak : words[c] ? kWord : kOther;
        std::vector<bool> traits = {isBreak, words[c]};
        for (const GraphNode &node : m_graph.nodes) {
            if (node.kind == GraphNode::kOneOf)
                traits.push_back(node.set[c]);
        }
        m_classOf[c] = static_cast<unsigned char>(
            classes.try_emplace(traits, static_cast<int>(classes.size())).first->second);
    }
    m_classes = static_cast<int>(classes.size());
}

// Wider than the library where it looks further than one character.
bool PatternScreen::Holds(Between condition, Side before, Side after) const {
    switch (condition) {
    case Between::TextStart: return before == kEdge;
    case Between::TextEnd: return after == kEdge;
    case Between::LineStart: return before == kEdge || before == kLineBreak;
    case Between::LineEnd: return after == kEdge || after == kLineBreak;
    case Between::WordEdge: return (before == kWord) != (after == kWord);
    case Between::NoWordEdge: return (before == kWord) == (after == kWord);
    case Between::WordStart: return before != kWord && after == kWord;
    case Between::WordEnd: return before == kWord && after != kWord;
    case Between::NotAfterWord: return before != kWord;
    default: return after != kWord;
    }
}

// The nodes that take a character, and the end, as far as they are reached without one.
std::vector<int> PatternScreen::Reach(const State &state, Side after) const {
    std::vector<bool> seen(m_graph.nodes.size());
    std::vector<int> open = state.key.second, reached;
    while (!open.empty()) {
        const auto at = static_cast<size_t>(open.back());
        open.pop_back();
        if (seen[at])
            continue;
        seen[at] = true;
        const GraphNode &node = m_graph.nodes[at];
        if (node.kind == GraphNode::kOneOf || node.kind == GraphNode::kEnd)
            reached.push_back(static_cast<int>(at));
        else if (node.kind == GraphNode::kFork)
            open.insert(open.end(), {node.next, node.other});
        else if (Holds(node.condition, state.key.first, after))
            open.push_back(node.next);
    }
    return reached;
}

int PatternScreen::StateOf(Key key) {
    if (key.second.empty())
        return kNothing;
    const auto known = m_stateOf.find(key);
    if (known != m_stateOf.end())
        return known->second;
    if (m_states.size() >= kMostStates)
        return kTooMany;
    const int state = static_cast<int>(m_states.size());
    m_followers.resize(m_followers.size() + static_cast<size_t>(m_classes), kUnknown);
    m_states.push_back({key, kUnknown});
    m_stateOf.emplace(std::move(key), state);
    return state;
}

int PatternScreen::Follow(int state, unsigned char character) {
    std::vector<bool> taken(m_graph.nodes.size());
    for (int at : Reach(m_states[static_cast<size_t>(state)], m_sideOf[character])) {
        const GraphNode &node = m_graph.nodes[static_cast<size_t>(at)];
        if (node.kind == GraphNode::kOneOf && node.set[character])
            taken[static_cast<size_t>(node.next)] = true;
    }
    Key key{m_sideOf[character], {}};
    for (size_t at = 0; at < taken.size(); ++at) {
        if (taken[at])
            key.second.push_back(static_cast<int>(at));
    }
    const int follower = StateOf(std::move(key));
    m_followers[static_cast<size_t>(state * m_classes + m_classOf[character])] = static_cast<short>(follower);
    return follower;
}

bool PatternScreen::FitsAtEnd(int state) {
    State &last = m_states[static_cast<size_t>(state)];
    if (last.fitsAtEnd == kUnknown) {
        last.fitsAtEnd = 0;
        for (int at : Reach(last, kEdge)) {
            if (m_graph.nodes[static_cast<size_t>(at)].kind == GraphNode::kEnd)
                last.fitsAtEnd = 1;
        }
    }
    return last.fitsAtEnd == 1;
}

bool PatternScreen::MayMatch(const char *text, size_t length) {
    if (m_states.empty())
        return true;
    int state = 0;
    for (const char *end = text + length; text != end; ++text) {
        const auto character = static_cast<unsigned char>(*text);
        int follower = m_followers[static_cast<size_t>(state * m_classes + m_classOf[character])];
        if (follower == kUnknown)
            follower = Follow(state, character);
        if (follower < 0)
            return follower == kTooMany;
        state = follower;
    }
    return FitsAtEnd(state);
}

} // namespace Search
