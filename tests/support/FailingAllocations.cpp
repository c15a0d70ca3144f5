#include "support/FailingAllocations.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constexpr int kNever = -1;
int s_iAllocationsUntilFailure = kNever;

}  // namespace

namespace zebtest {

void FailAllocation(int number) { s_iAllocationsUntilFailure = number; }

bool StopFailing() {
  const bool failed = s_iAllocationsUntilFailure == kNever;
  s_iAllocationsUntilFailure = kNever;
  return failed;
}

}  // namespace zebtest

// Stand in for those of the runtime, in this whole program.
void* operator new(std::size_t size) {
  if (s_iAllocationsUntilFailure == 0) {
    s_iAllocationsUntilFailure = kNever;
    throw std::bad_alloc();
  }
  if (s_iAllocationsUntilFailure > 0) --s_iAllocationsUntilFailure;
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
