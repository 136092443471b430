#include "FilterExpressionFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size) {
    exerciseFilterExpression(bytes, size);
    return 0;
}
