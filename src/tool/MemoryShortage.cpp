#include "tool/MemoryShortage.h"

#include "framework/core/Exceptions.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <unistd.h>

namespace keltavlo {

namespace {

std::terminate_handler formerTerminate = nullptr;

bool IsMemoryShortage(const std::exception_ptr& failure) {
    try {
        if (failure) std::rethrow_exception(failure);
    } catch (const std::bad_alloc&) {
        return true;
    } catch (...) { // a fault of the program
    }
    return false;
}

[[noreturn]] void OnTerminate() {
    if (IsMemoryShortage(std::current_exception())) EndWithoutMemory();
    formerTerminate();
    std::abort();
}

} // namespace

// Destroys nothing: whatever lacked memory may be in any state, and other threads may use it.
void EndWithoutMemory() {
    std::fprintf(stderr, "keltavlo-tool: %s\n", SentenceOf(std::bad_alloc()));
    _exit(1);
}

void EndOnMemoryShortage() {
    formerTerminate = std::set_terminate(OnTerminate);
}

} // namespace keltavlo
