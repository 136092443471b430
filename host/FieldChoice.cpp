#include "host/FieldChoice.h"

namespace {

int IndexOf(const CUIntArray &fields, UINT field) {
    for (int i = 0; i < fields.GetSize(); ++i) {
        if (fields.GetAt(i) == field)
            return i;
    }
    return -1;
}

} // namespace

void ChooseFields(const CUIntArray &displayed, const CUIntArray &positions, const CArray<bool, bool> &shown,
                  CUIntArray &result) {
    result.RemoveAll();
    for (int i = 0; i < displayed.GetSize(); ++i) {
        const int position = IndexOf(positions, displayed.GetAt(i));
        if (position < 0 || position >= shown.GetSize() || shown.GetAt(position))
            result.Add(displayed.GetAt(i));
    }
    int place = 0; // behind the last shown field of the ordering so far
    for (int i = 0; i < positions.GetSize() && i < shown.GetSize(); ++i) {
        if (!shown.GetAt(i))
            continue;
        const int at = IndexOf(result, positions.GetAt(i));
        if (at < 0)
            result.InsertAt(place, positions.GetAt(i));
        place = (at < 0 ? place : at) + 1;
    }
}
