#include "formats/BMP.h"

#include "image/picture/DibSection.h"
#include "image/picture/Texture.h"
#include "resources/streams/OutputStream.h"

namespace keltavlo {

void ReadBMP(InputStream& in, Texture& texture, const ColorList*) {
    texture.FromStoredBitmap(in, true);
}

void WriteBMP(OutputStream& out, const Texture& texture, const ColorList*) {
    if (texture.Pixels().empty()) out.Fail(StreamError::badIndex);
    DibSection bitmap(texture.GetWidth(), texture.GetHeight(), 32);
    texture.RenderTo(bitmap, IdentityTransform{});
    bitmap.WriteStream(out, true);
}

} // namespace keltavlo
