#include "lookup/ScramblePassword.h"

#include <algorithm>
#include <cstring>

bool ScramblePassword(CString &text) {
    constexpr int kBytes = 8;
    if (text.IsEmpty())
        return false;
    BYTE plain[kBytes];
    const int given = std::min(text.GetLength(), kBytes);
    std::memcpy(plain, text.GetString(), static_cast<size_t>(given));
    for (int i = given; i < kBytes; ++i)
        plain[i] = static_cast<BYTE>(plain[i - 1] + i % 3);

    char scrambled[kBytes + 1] = "";
    for (int i = 0; i < kBytes; ++i) {
        const int alike =
            i + 1 < kBytes ? static_cast<int>(std::count(plain + i, plain + kBytes - 1, plain[i + 1])) : 0;
        scrambled[i] = static_cast<char>(2 * plain[kBytes - 1 - i] + alike);
    }
    text = scrambled; // up to the first null
    return true;
}
