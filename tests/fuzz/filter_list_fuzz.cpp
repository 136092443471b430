#include "FilterListFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size) {
    exerciseFilterList(bytes, size);
    return 0;
}
