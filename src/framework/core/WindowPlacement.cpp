#include "framework/core/WindowPlacement.h"

#include <array>
#include <bit>
#include <cstring>

namespace keltavlo {

namespace {

using Words = std::array<std::uint32_t, 11>;
constexpr std::uint32_t recordSize = sizeof(Words);

static_assert(std::endian::native == std::endian::little);

constexpr std::uint32_t Unsigned(std::int32_t value) {
    return static_cast<std::uint32_t>(value);
}

constexpr std::int32_t Signed(std::uint32_t word) {
    return static_cast<std::int32_t>(word);
}

std::uint32_t KnownShowCommand(std::uint32_t command) {
    return command >= WindowPlacement::showNormal && command <= WindowPlacement::showMaximized
               ? command
               : std::uint32_t{WindowPlacement::show};
}

} // namespace

std::vector<std::byte> WindowPlacement::ToBytes() const {
    const Words words{recordSize,
                      flags,
                      showCommand,
                      Unsigned(minimized.x),
                      Unsigned(minimized.y),
                      Unsigned(maximized.x),
                      Unsigned(maximized.y),
                      Unsigned(normal.left),
                      Unsigned(normal.top),
                      Unsigned(normal.right),
                      Unsigned(normal.bottom)};
    std::vector<std::byte> bytes(recordSize);
    std::memcpy(bytes.data(), words.data(), recordSize);
    return bytes;
}

std::optional<WindowPlacement> WindowPlacement::FromBytes(const std::vector<std::byte>& bytes) {
    Words words{};
    if (bytes.size() != recordSize) return std::nullopt;
    std::memcpy(words.data(), bytes.data(), recordSize);
    WindowPlacement placement;
    placement.flags = words[1];
    placement.showCommand = KnownShowCommand(words[2]);
    placement.minimized = {Signed(words[3]), Signed(words[4])};
    placement.maximized = {Signed(words[5]), Signed(words[6])};
    placement.normal = {Signed(words[7]), Signed(words[8]), Signed(words[9]), Signed(words[10])};
    const bool hasArea =
        placement.normal.left < placement.normal.right && placement.normal.top < placement.normal.bottom;
    if (words[0] != recordSize || !hasArea) return std::nullopt;
    return placement;
}

} // namespace keltavlo
