// AllocationMeter: the most memory that was allocated at one time while it lives, in bytes. It counts operator new of
// a program that AllocationMeter.cpp is linked into.
#pragma once

class AllocationMeter {
public:
    AllocationMeter();
    long Peak() const;
};
