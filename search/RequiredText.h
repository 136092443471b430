// What a text must hold to match a pattern at all, as far as a look at the pattern tells.
#pragma once

#include <string>

namespace Search {

// The longest run of literal characters that every match holds; empty when there is none or the pattern has anything
// whose meaning is not plain: alternatives, repeated groups, inline options.
ORVANE_API std::string RequiredText(const std::string &pattern);

} // namespace Search
