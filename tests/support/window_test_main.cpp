// The entry of the window test programs.
#include "WindowTestApp.h"

#include <gmock/gmock.h>

int main(int argc, char **argv) {
    testing::InitGoogleMock(&argc, argv);
    if (!AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), SW_SHOW))
        return 1;
    const int result = RUN_ALL_TESTS();
    AfxWinTerm();
    return result;
}
