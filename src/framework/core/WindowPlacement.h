#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace keltavlo {

// The position and state of a window, as stored in the settings: 44 bytes, eleven little-endian 32-bit words.
// Coordinates are in desktop pixels.
struct WindowPlacement {
    enum ShowCommand : std::uint32_t { showNormal = 1, showMinimized = 2, showMaximized = 3, show = 5 };

    struct Point {
        std::int32_t x = -1; // -1: the system chooses
        std::int32_t y = -1;
        bool operator==(const Point&) const = default;
    };
    struct Rectangle {
        std::int32_t left = 0, top = 0, right = 0, bottom = 0;
        bool operator==(const Rectangle&) const = default;
    };

    std::uint32_t flags = 0;
    std::uint32_t showCommand = show;
    Point minimized, maximized;
    Rectangle normal;

    bool operator==(const WindowPlacement&) const = default;

    std::vector<std::byte> ToBytes() const;
    // Returns null unless the record is complete and its normal rectangle has an area. An unknown show
    // command becomes `show`.
    static std::optional<WindowPlacement> FromBytes(const std::vector<std::byte>& bytes);
};

} // namespace keltavlo
