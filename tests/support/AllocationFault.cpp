#include "AllocationFault.h"

#include <windows.h>

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

namespace {

thread_local long g_untilFault = -1; // below 0 none is due
thread_local bool g_failed = false;
std::atomic<long> g_live{0};
std::atomic<bool> g_spoils{false};

void *FaultyMalloc(size_t bytes) {
    if (g_untilFault >= 0 && g_untilFault-- == 0) {
        g_failed = true;
        return nullptr;
    }
    void *block = std::malloc(bytes);
    g_live += block != nullptr;
    return block;
}

void CountingFree(void *block) {
    g_live -= block != nullptr;
    if (g_spoils && block != nullptr)
        std::memset(block, 0xDD, ::_msize(block));
    std::free(block);
}

template <class T> T *At(HMODULE module, DWORD offset) {
    return reinterpret_cast<T *>(reinterpret_cast<char *>(module) + offset);
}

void Replace(IMAGE_THUNK_DATA *slot, void *function) {
    DWORD before;
    ::VirtualProtect(&slot->u1.Function, sizeof slot->u1.Function, PAGE_READWRITE, &before);
    slot->u1.Function = reinterpret_cast<ULONG_PTR>(function);
    ::VirtualProtect(&slot->u1.Function, sizeof slot->u1.Function, before, &before);
}

// Replaces a function that the module imports by name, from wherever.
bool ReplaceImport(HMODULE module, const char *name, void *function) {
    const auto *dos = At<IMAGE_DOS_HEADER>(module, 0);
    const auto *headers = At<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(dos->e_lfanew));
    const DWORD imports =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto *from = At<IMAGE_IMPORT_DESCRIPTOR>(module, imports); from->Name != 0; ++from) {
        auto *names = At<IMAGE_THUNK_DATA>(module, from->OriginalFirstThunk);
        auto *slots = At<IMAGE_THUNK_DATA>(module, from->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++slots) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal))
                continue;
            const auto *entry = At<IMAGE_IMPORT_BY_NAME>(module, static_cast<DWORD>(names->u1.AddressOfData));
            if (std::strcmp(reinterpret_cast<const char *>(entry->Name), name) == 0) {
                Replace(slots, function);
                return true;
            }
        }
    }
    return false;
}

bool Install() {
    const HMODULE runtime = ::GetModuleHandleA("libstdc++-6.dll");
    return runtime != nullptr && ReplaceImport(runtime, "malloc", reinterpret_cast<void *>(&FaultyMalloc)) &&
           ReplaceImport(runtime, "free", reinterpret_cast<void *>(&CountingFree));
}

void InstallOnce() {
    static const bool installed = Install();
    if (!installed)
        throw std::logic_error("the runtime does not import malloc");
}

} // namespace

SpoiledMemory::SpoiledMemory() {
    InstallOnce();
    g_spoils = true;
}

SpoiledMemory::~SpoiledMemory() {
    g_spoils = false;
}

AllocationFault::AllocationFault(long nth) {
    InstallOnce();
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
