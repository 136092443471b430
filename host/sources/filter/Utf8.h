// Text of the display code page and UTF-8. A character that one side lacks becomes '?'.
#pragma once

#include "dbf/CodePage.h"

#include <string>
#include <string_view>

namespace filter {

// `page` may be null: then only ASCII is known.
std::string toUtf8(std::string_view text, const dbf::CodePage *page);
std::string fromUtf8(std::string_view text, const dbf::CodePage *page);
// Leaves at most so many bytes, and no half character at the end.
void cutUtf8(std::string &text, std::size_t most);
// How many characters of the display stand before a byte of the UTF-8 text.
std::size_t charactersBefore(std::string_view utf8, std::size_t byte);

} // namespace filter
