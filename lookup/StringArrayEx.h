// CStringArrayEx: a string array that can be copied; the codes of one path through a menu tree.
#pragma once

#include <afxcoll.h>

class CStringArrayEx : public CStringArray {
public:
    CStringArrayEx() = default;
    CStringArrayEx(const CStringArrayEx &other) : CStringArray() { Copy(other); }
    CStringArrayEx &operator=(const CStringArrayEx &other) {
        Copy(other);
        return *this;
    }
};
