// A static trie of somebody else's, to hold the lookup trie against. Where there is none, IsThere is false.
#pragma once

#include <memory>
#include <string>
#include <vector>

class StaticTrie {
public:
    static bool IsThere();

    explicit StaticTrie(const std::vector<std::string> &codes);
    ~StaticTrie();
    bool Contains(const std::string &code) const;
    size_t Bytes() const;

private:
    struct Trie;
    std::unique_ptr<Trie> m_trie;
};
