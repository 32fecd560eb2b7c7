#include "support/Fault.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <sys/syscall.h>
#include <unistd.h>

namespace keltavlo {

std::atomic<std::ptrdiff_t> liveAllocations = 0;

bool Fault::Hits(Step step) noexcept {
    Fault* const fault = current;
    if (!fault || fault->step != step) return false;
    const unsigned count = ++fault->count;
    return fault->lasting ? count >= fault->first : count == fault->first;
}

} // namespace keltavlo

using namespace keltavlo;

namespace {

template <class... Arguments>
long Call(Step step, long number, Arguments... arguments) noexcept {
    if (!Fault::Hits(step)) return syscall(number, arguments...);
    errno = EIO;
    return -1;
}

} // namespace

// These replace the system's own.
extern "C" {
ssize_t pread(int file, void* bytes, std::size_t count, off_t offset) {
    return Call(Step::read, SYS_pread64, file, bytes, count, offset);
}
ssize_t write(int file, const void* bytes, std::size_t count) {
    if (Fault::Hits(Step::shortWrite)) count = (count + 1) / 2;
    return Call(Step::write, SYS_write, file, bytes, count);
}
int fsync(int) { // the disk itself takes time, and no test pulls its plug
    return static_cast<int>(Call(Step::flush, SYS_getpid)) < 0 ? -1 : 0;
}
int syncfs(int) noexcept {
    return fsync(0);
}
int rename(const char* from, const char* to) noexcept {
    return static_cast<int>(Call(Step::rename, SYS_rename, from, to));
}
}

#ifndef __SANITIZE_ADDRESS__
void* operator new(std::size_t size) {
    constexpr std::size_t large = 64 << 10;
    const bool fails = Fault::Hits(Step::allocation) || (size >= large && Fault::Hits(Step::largeAllocation));
    void* memory = fails ? nullptr : std::malloc(size);
    if (!memory) throw std::bad_alloc();
    ++liveAllocations;
    return memory;
}
void operator delete(void* memory) noexcept {
    if (memory) --liveAllocations;
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}
#endif
