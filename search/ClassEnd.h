// Where a character class of a regular expression ends.
#pragma once

#include <string>

namespace Search {

// `at` is the place of the opening bracket. Behind the closing one; beyond the text's end where that is missing.
size_t ClassEnd(const std::string &regex, size_t at);

} // namespace Search
