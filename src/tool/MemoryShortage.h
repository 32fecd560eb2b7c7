#pragma once

namespace keltavlo {

// Reports that memory ran out and ends the program with exit code 1.
[[noreturn]] void EndWithoutMemory();

// From now on, ends the program in this way if memory runs out where no exception can be caught. Libraries
// allocate in functions that must not throw, such as the destructors of JSON values.
void EndOnMemoryShortage();

} // namespace keltavlo
