#include "grid/UGDragScroll.h"

#include <algorithm>

namespace {

// Half of what rows are counted in, so that the farthest target and its distance can both be told.
constexpr long long kFarthest = 0x3FFFFFFF;

} // namespace

UGDragStep UGDragStepOf(long position, long extent, int unit, int ballisticMode, bool rows) {
    if (position >= 0 && position < extent)
        return {};
    const long sign = position < 0 ? -1 : 1;
    const long outside = position < 0 ? -position : position - extent;
    const long long n = unit > 0 ? outside / unit : 0;
    if (ballisticMode == 0 || n == 0)
        return {sign, true};
    long long steps = n;
    if (ballisticMode > 1)
        steps = std::min(steps * n, kFarthest);
    if (ballisticMode == 3 && rows)
        steps = std::min(steps * n, kFarthest);
    return {sign * static_cast<long>(steps), false};
}

long UGDragTarget(long current, long steps) {
    const long long target = static_cast<long long>(current) + steps;
    return static_cast<long>(std::clamp(target, -kFarthest, 2 * kFarthest));
}
