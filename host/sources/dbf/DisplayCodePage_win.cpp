#include "DisplayCodePage.h"

#include <windows.h>

namespace dbf {

int processCodePage() {
    return static_cast<int>(GetACP());
}

} // namespace dbf
