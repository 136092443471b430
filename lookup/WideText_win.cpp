#include "lookup/WideText.h"

#include <windows.h>

CString TextFromWide(const std::vector<WORD> &units) {
    const auto *wide = reinterpret_cast<const wchar_t *>(units.data());
    const int count = static_cast<int>(units.size());
    if (count == 0)
        return CString();
    const int bytes = ::WideCharToMultiByte(CP_ACP, 0, wide, count, nullptr, 0, nullptr, nullptr);
    CString text;
    ::WideCharToMultiByte(CP_ACP, 0, wide, count, text.GetBuffer(bytes), bytes, nullptr, nullptr);
    text.ReleaseBuffer(bytes);
    return text;
}
