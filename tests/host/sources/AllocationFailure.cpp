#include "AllocationFailure.h"

#include <cstdlib>
#include <new>

namespace {

int failing = 0;
int counted = 0;
bool failed = false;

void *allocate(std::size_t size) {
    if (failing > 0 && ++counted == failing) {
        failed = true;
        throw std::bad_alloc();
    }
    void *memory = std::malloc(size ? size : 1);
    if (!memory) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

namespace allocations {

void failAt(int number) {
    failing = number;
    counted = 0;
    failed = false;
}

bool hasFailed() {
    return failed;
}

} // namespace allocations

void *operator new(std::size_t size) {
    return allocate(size);
}
void *operator new[](std::size_t size) {
    return allocate(size);
}
void operator delete(void *memory) noexcept {
    std::free(memory);
}
void operator delete[](void *memory) noexcept {
    std::free(memory);
}
void operator delete(void *memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void *memory, std::size_t) noexcept {
    std::free(memory);
}
