#pragma once

#include <cstddef>

namespace keltavlo {

// The program's memory while a reader is at work. New memory is filled with a byte of the caller's choice, so
// that a reader that uses what it has not written gives two results for two fills.
void BeginMemoryWatch(unsigned char fill);

// The most bytes that were in use at a time since then, beyond those in use before.
std::size_t EndMemoryWatch();

} // namespace keltavlo
