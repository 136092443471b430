#include "support.h"

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    TestApp app;
    AfxWinInit(::GetModuleHandle(nullptr), nullptr, argv[0], SW_SHOW);
    return RUN_ALL_TESTS();
}
