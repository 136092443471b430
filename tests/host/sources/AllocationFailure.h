// Lets the Nth allocation of the test program fail.
#pragma once

namespace allocations {

// The allocation of this number, counted from 1, throws std::bad_alloc; 0: none does.
void failAt(int number);
bool hasFailed();

} // namespace allocations
