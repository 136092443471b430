#include "LayoutFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size) {
    ExerciseLayout(bytes, size);
    return 0;
}
