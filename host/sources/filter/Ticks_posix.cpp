#include "filter/Ticks.h"

#include <ctime>

namespace filter {

std::uint64_t ticks() noexcept {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
    return static_cast<std::uint64_t>(now.tv_sec) * 1000 +
           static_cast<std::uint64_t>(now.tv_nsec) / 1'000'000;
}

} // namespace filter
