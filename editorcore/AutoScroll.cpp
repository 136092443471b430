#include "editorcore/AutoScroll.h"

namespace {

// In keeping with the sizes of rows and columns.
constexpr int kRowUnitPx = 20;
constexpr int kColUnitPx = 50;

long PastEdge(int position, int extent, int unit) {
    if (position >= 0 && position <= extent)
        return 0;
    const bool back = position < 0;
    const long distance = (back ? -static_cast<long>(position) : position - extent) / unit;
    const long step = distance > 0 ? distance * distance : 1;
    return back ? -step : step;
}

} // namespace

long UGRowsPastEdge(int position, int extent) {
    return PastEdge(position, extent, kRowUnitPx);
}

long UGColsPastEdge(int position, int extent) {
    return PastEdge(position, extent, kColUnitPx);
}
