#include "bench/Allocations.h"

#include <cstdlib>
#include <new>

namespace
{

// One for each thread: a common counter would make the threads wait for each other.
thread_local std::size_t allocations = 0;

} // namespace

std::size_t allocationsOfThisThread()
{
    return allocations;
}

// The forms for arrays and those that do not throw end here too. The ones for over-aligned types do not, and are not
// counted.

void* operator new(std::size_t size)
{
    ++allocations;
    void* memory = std::malloc(size != 0 ? size : 1);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}
