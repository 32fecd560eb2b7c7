#include "support/Fault.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <exception>
#include <execinfo.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace keltavlo {

std::atomic<std::ptrdiff_t> liveAllocations = 0;

bool Fault::Watches(Step step) noexcept {
    const Fault* const fault = current;
    return fault && fault->step == step;
}

bool Fault::Hits(Step step) noexcept {
    if (!Watches(step)) return false;
    Fault* const fault = current;
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
namespace {

// The library or program around some code.
dl_find_object LibraryOf(const void* code) {
    dl_find_object library{};
    _dl_find_object(const_cast<void*>(code), &library);
    return library;
}

bool IsIn(const dl_find_object& library, const void* code) {
    return code >= library.dlfo_map_start && code < library.dlfo_map_end;
}

// Whether the code belongs to the program, or to the standard library when the program calls it.
bool IsOwn(const void* code) {
    static const dl_find_object program = LibraryOf(reinterpret_cast<const void*>(&LibraryOf)),
                                standard = LibraryOf(reinterpret_cast<const void*>(&std::terminate));
    if (!IsIn(standard, code)) return IsIn(program, code);
    std::array<void*, 32> frames{};
    backtrace(frames.data(), static_cast<int>(frames.size()));
    const auto isStandard = [](const void* frame) { return IsIn(standard, frame); };
    const auto first = std::ranges::find_if(frames, isStandard);
    const auto caller = std::find_if_not(first, frames.end(), isStandard);
    return caller != frames.end() && IsIn(program, *caller);
}

void* Allocate(std::size_t size, const void* caller) {
    constexpr std::size_t large = 64 << 10;
    const bool fails =
        Fault::Hits(Step::allocation) || (size >= large && Fault::Hits(Step::largeAllocation)) ||
        (Fault::Watches(Step::ownAllocation) && IsOwn(caller) && Fault::Hits(Step::ownAllocation));
    void* memory = fails ? nullptr : std::malloc(size);
    if (!memory) throw std::bad_alloc();
    ++liveAllocations;
    return memory;
}

} // namespace

void* operator new(std::size_t size) {
    return Allocate(size, __builtin_return_address(0));
}
void* operator new[](std::size_t size) {
    return Allocate(size, __builtin_return_address(0));
}
void operator delete(void* memory) noexcept {
    if (memory) --liveAllocations;
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}
#endif
