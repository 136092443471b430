#include "bench/BenchFrame.h"

CBenchFrame::CBenchFrame(int widthPx, int heightPx) {
    Create(nullptr, "Bench", WS_POPUP | WS_VISIBLE, CRect(0, 0, widthPx, heightPx));
}

void BeginBench() {
    AfxWinInit(::GetModuleHandleA(nullptr), nullptr, const_cast<char *>(""), SW_SHOW);
}
