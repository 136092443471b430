// Drives a lookup table file made of arbitrary bytes through everything that reads or uses it.
#pragma once

#include <cstddef>
#include <cstdint>

// Whether it is a lookup table.
bool ExerciseLookup(const std::uint8_t *bytes, std::size_t size);
