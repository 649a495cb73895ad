#include "tests/database/CountedAllocations.h"

#include <cstdlib>
#include <new>

namespace {

long allocations;

} // namespace

// The program's own: everything else of the language's memory functions ends here.
void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

namespace refhost {

long allocationsOf(const std::function<void()>& work) {
    const long before = allocations;
    work();
    return allocations - before;
}

} // namespace refhost
