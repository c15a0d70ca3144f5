#pragma once

// A program that has FailingAllocations.cpp among its sources has allocations that fail on demand, each once.
namespace zebtest {

/// Lets one allocation fail.
/// @param number counted from 0 from now on
void FailAllocation(int number);
/// Lets no allocation fail from now on.
/// @return whether the one that was to fail did
bool StopFailing();

}  // namespace zebtest
