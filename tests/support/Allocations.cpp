// In a file of its own: where a compiler can put the operators in line it takes malloc and free for a mismatch.
#include "Allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> bytes{0};
std::atomic<std::size_t> count{0};

} // namespace

namespace Testing {

std::size_t allocatedBytes()
{
    return bytes;
}

std::size_t allocationCount()
{
    return count;
}

} // namespace Testing

// The operators for arrays call these by themselves.
void * operator new(std::size_t size, std::nothrow_t const &) noexcept
{
    bytes += size;
    ++count;
    return std::malloc(size != 0 ? size : 1);
}

void * operator new(std::size_t size)
{
    if (void * const memory = operator new(size, std::nothrow))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void * memory) noexcept
{
    std::free(memory);
}

void operator delete(void * memory, std::size_t) noexcept
{
    std::free(memory);
}
