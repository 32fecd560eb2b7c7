#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace keltavlo {

// What the games store beside the pixels. Only fields with a value change a texture.
struct TextureFields {
    std::optional<std::uint32_t> surface, contents, value;
    std::optional<std::string> next; // the name of the next frame of an animation
    std::optional<std::string> name; // the texture's own name
};

// Reads "surface=0x80,value=300,next=wall1". Numbers are decimal or hexadecimal. Throws std::invalid_argument
// with a sentence for the user.
TextureFields ParseTextureFields(std::string_view text);

} // namespace keltavlo
