#pragma once

#include <cstdint>
#include <string>

namespace keltavlo {

// What a Quake II WAL texture stores beside its picture.
struct Quake2Properties {
    std::string name;
    // The texture that follows this one in its animation.
    std::string nextFrameName;
    std::uint32_t surfaceFlags = 0;
    std::uint32_t contents = 0;
    std::uint32_t value = 0;

    bool operator==(const Quake2Properties&) const = default;
};

} // namespace keltavlo
