#include "report.h"

#include <windows.h>

HINSTANCE AfxFindStringModule(UINT) {
    return GetModuleHandleA(nullptr);
}

int ReportToUser(LPCSTR text, UINT type, UINT) {
    return MessageBoxA(nullptr, text, nullptr, type);
}
