#include "bench/StaticTrie.h"

struct StaticTrie::Trie {};

bool StaticTrie::IsThere() {
    return false;
}

StaticTrie::StaticTrie(const std::vector<std::string> &) {}

StaticTrie::~StaticTrie() = default;

bool StaticTrie::Contains(const std::string &) const {
    return false;
}

size_t StaticTrie::Bytes() const {
    return 0;
}
