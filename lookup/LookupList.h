// CLookupList: the pick list of a lookup field.
#pragma once

#include <afx.h>

class ORVANE_API CLookupList {
public:
    // An entry with a menu behind it can be taken as well; CUGOrvaneLookupCellType::SetAllowPartialCodes goes
    // with it.
    static bool ms_bAllowPartial;
};
