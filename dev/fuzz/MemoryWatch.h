#pragma once

#include <cstddef>

namespace keltavlo {

// Watches the program's memory while a reader works. Fills new memory with the byte, so that a reader of
// uninitialized memory returns different results for different fills.
void BeginMemoryWatch(unsigned char fill);

// Returns the peak of the bytes in use since BeginMemoryWatch, less those in use then.
std::size_t EndMemoryWatch();

} // namespace keltavlo
