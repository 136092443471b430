#include "LookupFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size) {
    ExerciseLookup(bytes, size);
    return 0;
}
