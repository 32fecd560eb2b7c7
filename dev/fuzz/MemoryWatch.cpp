#include "MemoryWatch.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <new>

namespace keltavlo {

namespace {

unsigned char fillByte = 0;
std::size_t used = 0;
std::size_t usedBefore = 0;
std::size_t most = 0;

void* Allocate(std::size_t size) {
    void* memory = std::malloc(size);
    if (!memory) throw std::bad_alloc();
    std::memset(memory, fillByte, size);
    used += malloc_usable_size(memory);
    most = std::max(most, used);
    return memory;
}

void Release(void* memory) {
    if (memory) used -= malloc_usable_size(memory);
    std::free(memory);
}

} // namespace

void BeginMemoryWatch(unsigned char fill) {
    fillByte = fill;
    usedBefore = most = used;
}

std::size_t EndMemoryWatch() {
    return most - usedBefore;
}

} // namespace keltavlo

using namespace keltavlo;

void* operator new(std::size_t size) {
    return Allocate(size);
}
void* operator new[](std::size_t size) {
    return Allocate(size);
}
void operator delete(void* memory) noexcept {
    Release(memory);
}
void operator delete[](void* memory) noexcept {
    Release(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    Release(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    Release(memory);
}
