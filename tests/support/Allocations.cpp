// The test program's own operator new: it counts the bytes asked for and lets FailingAllocation
// make one allocation fail.
#include "support/Allocations.h"

#include <cstdlib>
#include <new>

namespace {

long countdown = -1;
bool failed = false;
std::size_t allocated = 0;

} // namespace

namespace rhomba::test {

std::size_t AllocatedBytes() { return allocated; }

FailingAllocation::FailingAllocation(long nth) {
    countdown = nth;
    failed = false;
}
FailingAllocation::~FailingAllocation() { countdown = -1; }
bool FailingAllocation::Failed() const { return failed; }

} // namespace rhomba::test

void* operator new(std::size_t size) {
    if (countdown >= 0 && countdown-- == 0) {
        failed = true;
        throw std::bad_alloc();
    }
    allocated += size;
    if (void* memory = std::malloc(size != 0 ? size : 1)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
