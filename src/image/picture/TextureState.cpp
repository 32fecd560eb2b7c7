#include "image/picture/TextureState.h"

#include "image/picture/ColorList.h"
#include "image/picture/Texture.h"
#include "resources/streams/StreamText.h"

namespace keltavlo {

namespace {

void RequireColors(InputStream& in, std::uint64_t count) {
    if (count > in.GetRemaining() / sizeof(Color)) in.FailUnnamed(StreamError::endOfFile);
}

} // namespace

void WriteTextureState(OutputStream& out, const Texture& texture) {
    out.Write(static_cast<std::uint32_t>(texture.GetWidth()));
    out.Write(static_cast<std::uint32_t>(texture.GetHeight()));
    out.Write(texture.Pixels());
    WriteText(out, texture.quakeName);
    WriteText(out, texture.quake2.name);
    WriteText(out, texture.quake2.nextFrameName);
    for (const std::uint32_t number :
         {texture.quake2.surfaceFlags, texture.quake2.contents, texture.quake2.value})
        out.Write(number);
    const std::size_t colorCount = texture.palette ? texture.palette->GetCount() : 0;
    out.Write(static_cast<std::uint32_t>(colorCount));
    if (colorCount > 0) out.Write(texture.palette->Colors());
}

void ReadTextureState(InputStream& in, Texture& texture) {
    const auto width = in.Read<std::uint32_t>();
    const auto height = in.Read<std::uint32_t>();
    RequireColors(in, std::uint64_t{width} * height);
    texture.SetSizeUncleared(static_cast<int>(width), static_cast<int>(height));
    in.Read(texture.Pixels());
    texture.quakeName = ReadText(in);
    texture.quake2.name = ReadText(in);
    texture.quake2.nextFrameName = ReadText(in);
    for (std::uint32_t* number :
         {&texture.quake2.surfaceFlags, &texture.quake2.contents, &texture.quake2.value})
        *number = in.Read<std::uint32_t>();
    const auto colorCount = in.Read<std::uint32_t>();
    RequireColors(in, colorCount);
    std::vector<Color> colors(colorCount);
    in.Read(std::span<Color>(colors));
    texture.palette = colorCount > 0 ? std::make_unique<ColorList>(std::move(colors)) : nullptr;
}

} // namespace keltavlo
