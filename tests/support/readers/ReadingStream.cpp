#include "support/readers/ReadingStream.h"

#include "app/HeadlessApplication.h"
#include "formats/TextureBytes.h"
#include "resources/BuiltInFiles.h"

namespace keltavlo {

void NeedApplication() {
    static HeadlessApplication application([](const std::string&) {});
}

Bytes EncodePicture(std::string_view documentClass, const Texture& texture) {
    NeedApplication();
    return EncodeTexture(*FindCodec(documentClass), texture, &GetQuakeIIPalette());
}

Texture MakePicture() {
    Texture picture(8, 8);
    for (Color color = 0xFF000000; Color & pixel : picture.Pixels()) pixel = color += 0x020301;
    return picture;
}

} // namespace keltavlo
