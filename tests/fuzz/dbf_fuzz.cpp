#include "DbfFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size) {
    exerciseTable(bytes, size);
    return 0;
}
