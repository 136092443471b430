// AllocationFault: lets the nth allocation of this thread fail once, in every module of the process.
//
// Programs and libraries share one runtime, whose operator new takes its memory from malloc: the runtime's import of
// malloc is what is replaced. Memory that the system takes for itself is not counted.
#pragma once

class AllocationFault {
public:
    explicit AllocationFault(long nth); // from 0
    ~AllocationFault() { Disarm(); }
    AllocationFault(const AllocationFault &) = delete;
    AllocationFault &operator=(const AllocationFault &) = delete;

    void Disarm();
    bool Failed() const; // the nth allocation was reached
    // Allocations less frees of all threads since the first fault was made, in blocks.
    static long LiveBlocks();
};

// Memory that is given back is overwritten, so that whoever goes on using it falls.
class SpoiledMemory {
public:
    SpoiledMemory();
    ~SpoiledMemory();
    SpoiledMemory(const SpoiledMemory &) = delete;
    SpoiledMemory &operator=(const SpoiledMemory &) = delete;
};
