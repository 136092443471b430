// Drives a list of filters made of arbitrary bytes through everything that reads or writes it.
#pragma once

#include <cstddef>
#include <cstdint>

// Whether it is a list.
bool exerciseFilterList(const std::uint8_t *bytes, std::size_t size);
