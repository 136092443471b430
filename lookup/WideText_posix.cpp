#include "lookup/WideText.h"

// The native build has no code page of the system; its texts are Latin-1.
CString TextFromWide(const std::vector<WORD> &units) {
    CString text;
    for (WORD unit : units)
        text += unit < 0x100 ? static_cast<char>(unit) : '?';
    return text;
}
