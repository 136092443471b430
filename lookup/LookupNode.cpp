#include "lookup/LookupNode.h"

#include "lookup/CodeCompare.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <new>
#include <type_traits>

#include <emmintrin.h>

namespace {

constexpr unsigned kSearchedInNodes = 4; // children; above, their characters stand side by side as well

size_t RoundUp(size_t bytes) {
    return (bytes + 7) & ~static_cast<size_t>(7);
}

constexpr size_t kLineBytes = 64; // of the processor's cache

// A step down waits for memory. The lines behind the first are asked for together with it: those of the children, of
// whom it is not known yet which it will be, or the tail of a code, whose nodes follow each other.
void AskForMemory(const char *body, size_t bytes) {
    for (size_t at = kLineBytes; at <= std::max(bytes, kLineBytes); at += kLineBytes)
        _mm_prefetch(body + at, _MM_HINT_T0);
}

} // namespace

static_assert(sizeof(CLookupNode) == 8);
static_assert(std::is_trivially_copyable_v<CLookupNode> && std::is_trivially_destructible_v<CLookupNode>);

// Grows by about a quarter, so that a node that gets its children one by one is not moved for each.
unsigned CLookupNode::CapacityFor(unsigned children) {
    if (children <= kSearchedInNodes)
        return children;
    const unsigned quarter = std::bit_floor(children - 1) / 4;
    const unsigned step = quarter < 2 ? 2 : quarter; // a power of two
    return (children + step - 1) & ~(step - 1);
}

CLookupNode::Shape CLookupNode::ShapeFor(bool hasList, unsigned children) {
    const unsigned capacity = CapacityFor(children);
    Shape shape;
    shape.characters = hasList ? sizeof(const char *) : 0;
    shape.nodes = shape.characters + (capacity > kSearchedInNodes ? RoundUp(capacity) : 0);
    shape.end = shape.nodes + capacity * sizeof(CLookupNode);
    return shape;
}

// The child of that rank, or the one in front of which it would have to stand. There are children. The halving makes
// no jump that depends on the characters: which way it goes cannot be foreseen.
unsigned CLookupNode::FindPosition(unsigned char wanted, const unsigned char *ranks, const Shape &shape) const {
    const auto *characters = reinterpret_cast<const unsigned char *>(Body() + shape.characters);
    const auto *nodes = reinterpret_cast<const CLookupNode *>(Body() + shape.nodes);
    const unsigned children = GetChildCount();
    unsigned first = 0;
    if (children <= kSearchedInNodes) {
        while (first < children && ranks[static_cast<unsigned char>(nodes[first].m_cChar)] < wanted)
            ++first;
        return first;
    }
    for (unsigned left = children; left > 1;) {
        const unsigned half = left / 2;
        first += ranks[characters[first + half - 1]] < wanted ? half : 0;
        left -= half;
    }
    return first + (ranks[characters[first]] < wanted);
}

const CLookupNode *CLookupNode::FindChild(char character, const unsigned char *ranks, bool exact) const {
    const unsigned char wanted = ranks[static_cast<unsigned char>(character)];
    const unsigned children = GetChildCount();
    if (children == 0)
        return nullptr;
    if (children <= kSearchedInNodes) {
        // Most nodes: they have one child.
        AskForMemory(Body(), kLineBytes);
        const CLookupNode *nodes = Nodes(), *end = nodes + children;
        while (nodes != end && ranks[static_cast<unsigned char>(nodes->m_cChar)] != wanted)
            ++nodes;
        return nodes != end ? nodes : nullptr;
    }
    const Shape shape = Now();
    const char *body = Body();
    AskForMemory(body, shape.end);
    const auto *nodes = reinterpret_cast<const CLookupNode *>(body + shape.nodes);
    if (exact)
        return FindByte(character, body + shape.characters, nodes);
    const unsigned position = FindPosition(wanted, ranks, shape);
    const bool found = position < children && ranks[static_cast<unsigned char>(nodes[position].m_cChar)] == wanted;
    return found ? nodes + position : nullptr;
}

// Sixteen characters at a time. The nodes behind them are what is read beyond their end.
const CLookupNode *CLookupNode::FindByte(char character, const char *characters, const CLookupNode *nodes) const {
    const __m128i wanted = _mm_set1_epi8(character);
    for (unsigned first = 0; first < m_nChildren; first += 16) {
        const __m128i piece = _mm_loadu_si128(reinterpret_cast<const __m128i *>(characters + first));
        const auto equal = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(piece, wanted)));
        const unsigned position = first + static_cast<unsigned>(std::countr_zero(equal | 0x10000u));
        if (equal != 0)
            return position < m_nChildren ? nodes + position : nullptr;
    }
    return nullptr;
}

const CLookupNode *CLookupNode::FindPath(const char *text, int length, bool bCaseSensitive) const {
    const unsigned char *ranks = CodeByteRanks(bCaseSensitive);
    const CLookupNode *node = this;
    for (const char *end = text + length; text != end && node != nullptr; ++text)
        node = node->FindChild(*text, ranks, bCaseSensitive);
    return node;
}

// No address is lost in the bits that a node has for it.
ULONGLONG CLookupNode::Packed(const char *body) {
    const ULONGLONG packed = reinterpret_cast<std::uintptr_t>(body) >> kBodyShift;
    if (packed >> kBodyBits != 0)
        AfxThrowMemoryException();
    return packed;
}

// Changes the number of children and the place for a list. New children are blank: in front of the child `gap` when
// there is one more, and all of them when there were none.
void CLookupNode::Reshape(CTreePool &pool, bool hasList, unsigned children, unsigned gap) {
    if (children > kMostChildren)
        AfxThrowMemoryException();
    const Shape before = Now(), after = ShapeFor(hasList, children);
    const unsigned old = GetChildCount(), behind = old - gap, added = children - old;
    char *const oldBody = Body();
    char *body = oldBody;
    const bool moves = hasList != (m_bHasList != 0) || before.end != after.end;
    if (moves) {
        body = static_cast<char *>(pool.Allocate(after.end));
        const ULONGLONG packed = Packed(body);
        if (hasList)
            *reinterpret_cast<const char **>(body) = m_bHasList ? CodeListPlace() : nullptr;
        m_nBody = packed;
    }
    auto *nodes = reinterpret_cast<CLookupNode *>(body + after.nodes);
    const auto *oldNodes = reinterpret_cast<const CLookupNode *>(oldBody + before.nodes);
    if (old > 0) {
        std::memmove(static_cast<void *>(nodes + gap + added), oldNodes + gap, behind * sizeof(CLookupNode));
        if (moves)
            std::memcpy(static_cast<void *>(nodes), oldNodes, gap * sizeof(CLookupNode));
    }
    for (unsigned i = gap; i < gap + added; ++i)
        new (nodes + i) CLookupNode;
    if (moves)
        pool.Release(oldBody, before.end);
    m_nChildren = children;
    m_bHasList = hasList;
    if (children > kSearchedInNodes) {
        for (unsigned i = moves ? 0 : gap; i < children; ++i)
            Characters()[i] = static_cast<char>(nodes[i].m_cChar);
    }
}

CLookupNode *CLookupNode::AddChild(CTreePool &pool, char character, const unsigned char *ranks) {
    const unsigned char wanted = ranks[static_cast<unsigned char>(character)];
    const unsigned position = m_nChildren > 0 ? FindPosition(wanted, ranks, Now()) : 0;
    const bool found =
        position < m_nChildren && ranks[static_cast<unsigned char>(Nodes()[position].m_cChar)] == wanted;
    if (!found) {
        Reshape(pool, m_bHasList != 0, GetChildCount() + 1, position);
        SetChildCharacter(position, character);
    }
    return Nodes() + position;
}

void CLookupNode::MakeChildren(CTreePool &pool, unsigned count) {
    Reshape(pool, m_bHasList != 0, count, 0);
}

void CLookupNode::SetChildCharacter(unsigned index, char character) {
    Nodes()[index].m_cChar = static_cast<signed char>(character);
    if (m_nChildren > kSearchedInNodes)
        Characters()[index] = character;
}

CPoolCodes CLookupNode::GetCodeList() const {
    return m_bHasList ? CPoolCodes(CodeListPlace()) : CPoolCodes();
}

void CLookupNode::SetCodeList(CTreePool &pool, CPoolCodes codes) {
    if (!m_bHasList && codes.GetPacked() != nullptr)
        Reshape(pool, true, GetChildCount(), GetChildCount());
    if (m_bHasList)
        CodeListPlace() = codes.GetPacked();
}

void CLookupNode::Forget() {
    *this = CLookupNode();
}
