// An expression that the user typed, at its place inside a larger one.
#pragma once

#include <string>

namespace Search {

// The group of the larger expression that holds the typed one; the typed groups count from it.
constexpr int kFoundGroup = 2;
// The groups of the larger expression around that one.
constexpr const char *kBeforeName = "_before";
constexpr const char *kAfterName = "_after";

struct TypedRegex {
    explicit TypedRegex(const std::string &typed);

    bool valid = false;  // an expression, and one that may be moved
    int groups = 0;      // that were typed
    std::string moved;   // means nothing where it is not valid
    std::string refused; // why an expression may not be moved, as a sentence for the user
};

} // namespace Search
