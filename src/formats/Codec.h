#pragma once

#include <span>
#include <string>
#include <string_view>

namespace keltavlo {

class ColorList;
class InputStream;
class OutputStream;
class Texture;

// The palette that a paletted format falls back on when the texture has none.
enum class DefaultPalette { none, quake, quake2 };

// A picture format: its document class, its reader and its writer. A reader replaces what the file contains
// and leaves the rest of the texture as it is. Both throw the stream's exceptions. `palette` is the row's
// default palette, or null.
struct Codec {
    std::string_view documentClass;
    std::string_view name; // the extension of its files, without the dot
    void (*read)(InputStream& in, Texture& texture, const ColorList* palette);
    void (*write)(OutputStream& out, const Texture& texture, const ColorList* palette);
    bool hasGameSizes; // when writing, sides must be multiples of 8 from 8 to 256
    DefaultPalette defaultPalette;
};

// All formats, starting with those of the games.
std::span<const Codec> Codecs();

// Lists the names of the formats, each after the text `before`: "wal, mip, pcx, tga or bmp".
std::string ListFormats(std::string_view before = {});

// The codec of a document class, or null.
const Codec* FindCodec(std::string_view documentClass);

} // namespace keltavlo
