#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace keltavlo {

// Adds its owner's version and a checksum to bytes for the settings, so that damage is noticed.
std::vector<std::byte> SealState(std::uint32_t version, const QByteArray& state);
// Returns the sealed bytes, or null if they are damaged, incomplete or of another version.
QByteArray UnsealState(std::uint32_t version, const std::vector<std::byte>& sealed);

} // namespace keltavlo
