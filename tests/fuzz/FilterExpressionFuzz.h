// Compiles arbitrary text as a filter's expression and evaluates it over a few records, one with a long memo.
#pragma once

#include <cstddef>
#include <cstdint>

// Whether it is an expression. What takes long is stopped as a user would stop it, and must then end at once.
bool exerciseFilterExpression(const std::uint8_t *bytes, std::size_t size);
