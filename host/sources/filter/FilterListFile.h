// The bytes of a list's file: an SQLite database of user_version 1 that holds one table and nothing else,
//   CREATE TABLE filter(number INTEGER PRIMARY KEY, name TEXT NOT NULL, expression TEXT NOT NULL)
// A list comes with its table, from anybody. So nothing is evaluated before the file is known to hold this
// table alone, and what does not fit is refused as a whole.
#pragma once

#include "filter/Expression.h"
#include "filter/FilterList.h"

namespace filter {

inline constexpr std::size_t kLargestListFile = 16 * 1024 * 1024; // bytes
inline constexpr std::size_t kMostFilters = 5000;
inline constexpr std::size_t kLongestListText =
    kLongestExpression; // bytes of a name or an expression in UTF-8

// `filters` is filled, in the order of the numbers, when the list is one. Else the message is the reason
// alone.
dbf::Result readFilters(dbf::Bytes bytes, const dbf::CodePage *page, std::vector<Definition> &filters);
// Refuses what readFilters would refuse.
dbf::Result writeFilters(const std::vector<Definition> &filters, const dbf::CodePage *page,
                         std::vector<std::uint8_t> &bytes);

// The reason for refusing a file by its size; empty when there is none.
std::string refusedSize(std::uint64_t bytes);

} // namespace filter
