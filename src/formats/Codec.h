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

// One picture format: its document class, and how it is read and written. A reader
// replaces what the file carries and leaves the rest of the texture; both throw the stream's exceptions.
// `palette` is the default palette of the row (null for none).
struct Codec {
    std::string_view documentClass;
    std::string_view name; // the extension of its files, without the dot
    void (*read)(InputStream& in, Texture& texture, const ColorList* palette);
    void (*write)(OutputStream& out, const Texture& texture, const ColorList* palette);
    bool hasGameSizes; // sides must be multiples of 8 from 8 to 256 when it is written
    DefaultPalette defaultPalette;
};

// All formats, those of the games first.
std::span<const Codec> Codecs();

// Their names with a text before each, as a sentence lists them: "wal, mip, pcx, tga or bmp".
std::string ListFormats(std::string_view before = {});

// The codec of a document class, or null.
const Codec* FindCodec(std::string_view documentClass);

} // namespace keltavlo
