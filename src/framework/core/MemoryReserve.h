#pragma once

namespace keltavlo {

// Holds back 16 MiB of memory. The first allocation that fails releases them and tries again, so that there
// is room to unwind and to tell the user. Call again to renew the reserve; the call does nothing if there is
// a reserve already or no room for one.
void KeepMemoryReserve() noexcept;

} // namespace keltavlo
