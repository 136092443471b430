// The pattern around an expression: it fits a whole text in which the expression finds something, and holds
// what stands before and after that as groups.
#pragma once

#include <string>

namespace Search {

// `moved` is an expression for the group kFoundGroup.
std::string WrapRegex(const std::string &moved, int matchMode);

// The expression within a pattern that WrapRegex made, for a match that begins where the pattern found it: no
// group of the pattern's own closes after those that were typed, which have the same numbers. Empty for any
// other pattern.
std::string UnwrapRegex(const std::string &pattern);

} // namespace Search
