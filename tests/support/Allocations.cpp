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

void * operator new(std::size_t size)
{
    bytes += size;
    ++count;
    if (void * const memory = std::malloc(size != 0 ? size : 1))
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
