#include "AllocationMeter.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

long g_live = 0, g_peak = 0;

constexpr std::size_t kHeader = alignof(std::max_align_t) < 16 ? 16 : alignof(std::max_align_t);

void *Take(std::size_t bytes) {
    void *block = std::malloc(bytes + kHeader);
    if (block == nullptr)
        throw std::bad_alloc();
    *static_cast<std::size_t *>(block) = bytes;
    g_live += static_cast<long>(bytes);
    if (g_live > g_peak)
        g_peak = g_live;
    return static_cast<char *>(block) + kHeader;
}

void Give(void *memory) {
    if (memory == nullptr)
        return;
    void *block = static_cast<char *>(memory) - kHeader;
    g_live -= static_cast<long>(*static_cast<std::size_t *>(block));
    std::free(block);
}

} // namespace

AllocationMeter::AllocationMeter() {
    g_live = g_peak = 0;
}

long AllocationMeter::Peak() const {
    return g_peak;
}

void *operator new(std::size_t bytes) {
    return Take(bytes);
}
void *operator new[](std::size_t bytes) {
    return Take(bytes);
}
void operator delete(void *memory) noexcept {
    Give(memory);
}
void operator delete[](void *memory) noexcept {
    Give(memory);
}
void operator delete(void *memory, std::size_t) noexcept {
    Give(memory);
}
void operator delete[](void *memory, std::size_t) noexcept {
    Give(memory);
}
