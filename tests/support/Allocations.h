#pragma once

#include <cstddef>

namespace rhomba::test {

// The bytes asked of operator new since the program started.
std::size_t AllocatedBytes();

// While alive, the allocation numbered nth (from 0, counted from construction) throws
// std::bad_alloc; all others succeed. Running an operation with nth = 0, 1, 2, ... until
// Failed() stays false tries a failure at every allocation it makes.
class FailingAllocation {
public:
    explicit FailingAllocation(long nth);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    bool Failed() const;
};

} // namespace rhomba::test
