// AllocationFault of the native build: the program's operator new is replaced. It asks the new handler when it fails,
// as the runtime's own does.
#include "AllocationFault.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

thread_local long g_untilFault = -1; // below 0 none is due
thread_local bool g_failed = false;
std::atomic<long> g_live{0};

void *Take(std::size_t bytes) {
    const bool due = g_untilFault >= 0 && g_untilFault-- == 0;
    g_failed = g_failed || due;
    void *block = due ? nullptr : std::malloc(bytes == 0 ? 1 : bytes);
    if (block == nullptr) {
        if (const std::new_handler handler = std::get_new_handler())
            handler(); // throws
        throw std::bad_alloc();
    }
    ++g_live;
    return block;
}

void Give(void *block) {
    g_live -= block != nullptr;
    std::free(block);
}

} // namespace

AllocationFault::AllocationFault(long nth) {
    g_failed = false;
    g_untilFault = nth;
}

void AllocationFault::Disarm() {
    g_untilFault = -1;
}

bool AllocationFault::Failed() const {
    return g_failed;
}

long AllocationFault::LiveBlocks() {
    return g_live;
}

void *operator new(std::size_t bytes) {
    return Take(bytes);
}
void *operator new[](std::size_t bytes) {
    return Take(bytes);
}
void operator delete(void *block) noexcept {
    Give(block);
}
void operator delete[](void *block) noexcept {
    Give(block);
}
void operator delete(void *block, std::size_t) noexcept {
    Give(block);
}
void operator delete[](void *block, std::size_t) noexcept {
    Give(block);
}
