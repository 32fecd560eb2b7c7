#include "framework/core/MemoryReserve.h"
#include "framework/core/SaveJournal.h"
#include "tool/MemoryShortage.h"
#include "tool/Tool.h"

#include <iostream>
#include <malloc.h>
#include <new>
#include <unistd.h>

using namespace keltavlo;

namespace {

// Pictures come and go one after the other, and new pages from the system cost as much as converting a small
// one.
void KeepFreedMemory() {
    mallopt(M_MMAP_THRESHOLD, 32 << 20); // the most that a thread's heap takes
    mallopt(M_TRIM_THRESHOLD, 256 << 20);
}

} // namespace

int main(int argc, char** argv) try {
    KeepFreedMemory();
    KeepMemoryReserve();
    EndOnMemoryShortage();
    RemoveAbandonedSaves();
    Tool tool(std::cout, std::cerr, isatty(STDERR_FILENO) != 0);
    return tool.Run({argv + 1, argv + argc}); // the arguments may have any encoding
} catch (const std::bad_alloc&) {
    EndWithoutMemory();
}
