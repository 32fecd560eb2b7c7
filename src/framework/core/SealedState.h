#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace keltavlo {

// Bytes for the settings under a version of their owner's and a checksum of ours: what others must not see
// damaged.
std::vector<std::byte> SealState(std::uint32_t version, const QByteArray& state);
// The bytes as they were sealed; null when one of them changed, when some are missing, and for another
// version.
QByteArray UnsealState(std::uint32_t version, const std::vector<std::byte>& sealed);

} // namespace keltavlo
