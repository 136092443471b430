#include "grid/UGDragScroll.h"

long UGDragSteps(long position, long extent, int unit, int ballisticMode, bool rows) {
    if (position >= 0 && position < extent)
        return 0;
    const long sign = position < 0 ? -1 : 1;
    const long outside = position < 0 ? -position : position - extent;
    const long n = unit > 0 ? outside / unit : 0;
    if (ballisticMode == 0 || n == 0)
        return sign;
    if (ballisticMode == 1)
        return sign * n;
    return sign * (ballisticMode == 3 && rows ? n * n * n : n * n);
}
