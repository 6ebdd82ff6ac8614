// In a file of its own: where a compiler can put the operators in line it takes malloc and free for a mismatch.
#include "Allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> allocated{0};

} // namespace

std::size_t AllocatedBytes()
{
    return allocated;
}

void * operator new(std::size_t size)
{
    allocated += size;
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
