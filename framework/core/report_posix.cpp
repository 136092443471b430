#include "report.h"

#include <cstdio>

int ReportToUser(LPCSTR text, UINT, UINT) {
    constexpr int kOk = 1;
    std::fprintf(stderr, "%s\n", text);
    return kOk;
}
