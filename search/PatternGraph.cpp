#include "search/PatternGraph.h"

#include "search/PatternPieces.h"

namespace Search {

namespace {

constexpr size_t kMostNodes = 1000;

// Builds from the end to the beginning, so that a node's follower is there before the node.
class GraphMaker {
public:
    explicit GraphMaker(PatternGraph *graph) : m_graph(graph) {}

    bool Make(const Piece &whole) {
        const int end = Add(GraphNode{});
        m_graph->start = Build(whole, end);
        return !m_tooLarge;
    }

private:
    int Add(const GraphNode &node) {
        m_tooLarge = m_tooLarge || m_graph->nodes.size() >= kMostNodes;
        if (!m_tooLarge)
            m_graph->nodes.push_back(node);
        return static_cast<int>(m_graph->nodes.size()) - 1;
    }
    int Fork(int next, int other) {
        GraphNode node;
        node.kind = GraphNode::kFork;
        node.next = next;
        node.other = other;
        return Add(node);
    }
    // The node at which the piece begins that `next` follows.
    int Build(const Piece &piece, int next) {
        if (m_tooLarge)
            return next;
        GraphNode node;
        node.next = next;
        switch (piece.kind) {
        case Piece::kOneOf:
            node.kind = GraphNode::kOneOf;
            node.set = piece.set;
            return Add(node);
        case Piece::kCondition:
            node.kind = GraphNode::kCondition;
            node.condition = piece.condition;
            return Add(node);
        case Piece::kSequence:
            for (auto part = piece.parts.rbegin(); part != piece.parts.rend(); ++part)
                next = Build(*part, next);
            return next;
        case Piece::kChoice: return BuildChoice(piece, next);
        default: return BuildRepeat(piece, next);
        }
    }
    int BuildChoice(const Piece &piece, int next) {
        int start = Build(piece.parts.front(), next);
        for (size_t i = 1; i < piece.parts.size(); ++i)
            start = Fork(Build(piece.parts[i], next), start);
        return start;
    }
    int BuildRepeat(const Piece &piece, int next) {
        const Piece &body = piece.parts.front();
        int start = next;
        if (piece.most == Piece::kNoEnd) {
            start = Fork(-1, next);
            const int again = Build(body, start);
            m_graph->nodes[static_cast<size_t>(start)].next = again;
        }
        for (int i = piece.least; i < piece.most && !m_tooLarge; ++i)
            start = Fork(Build(body, start), next);
        for (int i = 0, before = -1; i < piece.least && start != before && !m_tooLarge; ++i) {
            before = start; // where it is the start again the body is empty, however often it stands there
            start = Build(body, start);
        }
        return start;
    }

    PatternGraph *m_graph;
    bool m_tooLarge = false;
};

} // namespace

bool MakePatternGraph(const std::string &pattern, CharSets *sets, PatternGraph *graph) {
    *graph = PatternGraph();
    Piece whole;
    if (ReadPatternPieces(pattern, sets, &whole) && GraphMaker(graph).Make(whole))
        return true;
    *graph = PatternGraph();
    return false;
}

} // namespace Search
