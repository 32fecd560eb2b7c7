#pragma once

namespace keltavlo {

// Keeps 16 MiB back for the time when there is no other memory: the first allocation that fails gives them up
// and tries again, so that what was under way can be unwound and the user be told. Call it again to take a
// reserve anew; nothing happens while there is one or no room for one.
void KeepMemoryReserve() noexcept;

} // namespace keltavlo
