#include "filter/Ticks.h"

#include <windows.h>

namespace filter {

std::uint64_t ticks() noexcept {
    return GetTickCount64();
}

} // namespace filter
