// Which fields are shown after the user chose, and in which order.
#pragma once

#include <afxcoll.h>
#include <afxtempl.h>

// `displayed` are the fields shown now, in their order; `positions` all fields in the full ordering, and `shown` the
// choice for each of these. What stays shown keeps its order; a field newly shown comes behind its nearest shown
// forerunner in the full ordering, or first. `result` may not be one of the others.
void ChooseFields(const CUIntArray &displayed, const CUIntArray &positions, const CArray<bool, bool> &shown,
                  CUIntArray &result);
