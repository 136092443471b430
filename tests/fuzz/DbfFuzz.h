// Drives a table made of arbitrary bytes through everything that reads or changes it.
#pragma once

#include <cstddef>
#include <cstdint>

// The first two bytes say how the rest is divided into table and memo file.
void exerciseTable(const std::uint8_t *bytes, std::size_t size);
