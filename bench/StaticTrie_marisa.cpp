#include "bench/StaticTrie.h"

#include <marisa.h>

struct StaticTrie::Trie {
    marisa::Trie trie;
};

bool StaticTrie::IsThere() {
    return true;
}

StaticTrie::StaticTrie(const std::vector<std::string> &codes) : m_trie(std::make_unique<Trie>()) {
    marisa::Keyset keys;
    for (const std::string &code : codes)
        keys.push_back(code.data(), code.size());
    m_trie->trie.build(keys);
}

StaticTrie::~StaticTrie() = default;

bool StaticTrie::Contains(const std::string &code) const {
    marisa::Agent agent;
    agent.set_query(code.data(), code.size());
    return m_trie->trie.lookup(agent);
}

size_t StaticTrie::Bytes() const {
    return m_trie->trie.total_size();
}
