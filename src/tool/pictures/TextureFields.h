#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace keltavlo {

// What the game formats store beside a picture. Fields without a value stay as they are in the source.
struct TextureFields {
    std::optional<std::uint32_t> surface, contents, value; // of a WAL texture
    std::optional<std::string> next;                       // the next frame of a WAL texture
    std::optional<std::string> name;                       // of a WAL or MIP texture

    bool operator==(const TextureFields&) const = default;
};

} // namespace keltavlo
