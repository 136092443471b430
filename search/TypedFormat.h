// A replacement's format that the user typed, for the pattern that his expression became part of.
#pragma once

#include <string>

namespace Search {

// Stands in a format for the text of the typed group that closed last. Which one that is only the match
// tells, so it must be replaced before the library gets the format, for which it is an unknown name.
constexpr const char *kLastClosed = "$+{_last}";

// `groups` is how many the typed expression has.
std::string MoveFormat(const std::string &format, int groups);

// The text as a format that stands for it and nothing else.
std::string EscapeFormat(const std::string &text);

} // namespace Search
