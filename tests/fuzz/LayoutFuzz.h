// Drives a layout file made of arbitrary bytes through everything that reads or changes it.
#pragma once

#include <cstddef>
#include <cstdint>

void ExerciseLayout(const std::uint8_t *bytes, std::size_t size);
