#include "framework/core/Exceptions.h"
#include "framework/core/MemoryReserve.h"
#include "framework/core/SaveJournal.h"
#include "tool/Tool.h"

#include <cstdio>
#include <iostream>
#include <new>
#include <unistd.h>

using namespace keltavlo;

int main(int argc, char** argv) try {
    KeepMemoryReserve();
    RemoveAbandonedSaves();
    Tool tool(std::cout, std::cerr, isatty(STDERR_FILENO) != 0);
    return tool.Run({argv + 1, argv + argc}); // the arguments may have any encoding
} catch (const std::bad_alloc& failure) {
    std::fprintf(stderr, "keltavlo-tool: %s\n", SentenceOf(failure));
    return 1;
}
