// A clock that may be looked at for every field of every record: exact to a few hundredths of a second.
#pragma once

#include <cstdint>

namespace filter {

// Milliseconds since some moment.
std::uint64_t ticks() noexcept;

} // namespace filter
